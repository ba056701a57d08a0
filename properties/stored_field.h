// Tables of stored values: the name in the file, the member that keeps it, and its form.
#pragma once

#include "persistence/filer.h"
#include "persistence/path_operations.h"
#include "properties/refusals.h"

#include <QStringView>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <type_traits>
#include <variant>

namespace tc {

/// What a field's type alone does not say about its text.
enum class FieldForm : std::uint8_t {
  kPlain,
  kPath, ///< a stored path: macros are expanded when it is read and put back when it is written
  kNativeFlag,  ///< a flag that is written as a native boolean value and not as text
  kWholeNumber, ///< a real number that is read as an integer, and written as one if it is whole
};

/// One row: a value of the record R.
template <class R>
struct StoredField {
  using Member = std::variant<bool R::*, std::uint8_t R::*, std::uint16_t R::*, std::int32_t R::*,
                              std::uint32_t R::*, std::uint64_t R::*, double R::*, OdString R::*>;

  QStringView name;
  Member member;
  FieldForm form = FieldForm::kPlain;
};

/// A name that stands in the program, without a copy.
inline OdString staticName(QStringView name) {
  return OdString::fromRawData(name.data(), name.size());
}

namespace field_detail {

// Each gives false for a value that the field cannot hold, and then leaves the field as it is.

inline bool read(bool& field, const OdVariant& value, FieldForm form) {
  const OdString text = value.toString();
  // A native flag is written as "-1", which the shared test of flags does not take for true.
  field = boolFromText(text) || (form == FieldForm::kNativeFlag && odParseInt(text) != 0);
  return true;
}
/// True if a text begins with a number; so it counts if it is empty.
inline bool isNumber(QStringView text) {
  text = text.trimmed();
  if (text.isEmpty()) return true;
  if (text.startsWith(u'-') || text.startsWith(u'+')) text = text.mid(1);
  if (text.startsWith(u'.')) text = text.mid(1);
  return !text.isEmpty() && text.front() >= u'0' && text.front() <= u'9';
}
/// Programs write the bits of a number with a sign or without one.
template <class Number>
constexpr bool hasBitsFor(std::int64_t value) {
  using Low = std::numeric_limits<std::make_signed_t<Number>>;
  using High = std::numeric_limits<std::make_unsigned_t<Number>>;
  return value >= std::int64_t{Low::min()} && value <= std::int64_t{High::max()};
}
template <class Number>
requires std::is_integral_v<Number>
bool read(Number& field, const OdVariant& value, FieldForm) {
  const OdString text = value.toString();
  if (!isNumber(text)) return false;
  if constexpr (std::is_same_v<Number, std::uint64_t>) {
    field = odParseUInt(text);
  } else {
    const std::int64_t whole = odParseInt(text);
    if (!hasBitsFor<Number>(whole)) return false;
    field = static_cast<Number>(whole);
  }
  return true;
}
inline bool read(double& field, const OdVariant& value, FieldForm form) {
  const OdString text = value.toString();
  if (!isNumber(text)) return false;
  // A number without end has no text that could be read again.
  constexpr double kLargest = std::numeric_limits<double>::max();
  const double number =
      form == FieldForm::kWholeNumber ? static_cast<double>(odParseInt(text)) : odParseReal(text);
  field = std::clamp(number, -kLargest, kLargest);
  return true;
}
inline bool read(OdString& field, const OdVariant& value, FieldForm form) {
  field = form == FieldForm::kPath ? expandedStoredPath(value.toString()) : value.toString();
  return true;
}

inline OdVariant write(bool field, FieldForm form) {
  return form == FieldForm::kNativeFlag ? OdVariant(field)
                                        : OdVariant(boolText(field, BoolStyle::kCapitals));
}
// Whole numbers go as text: the filers write a native 32-bit number with a sign or without one as
// the document's kind has it.
template <class Number>
requires std::is_integral_v<Number> OdVariant write(Number field, FieldForm) {
  return OdVariant(OdString::number(field));
}
inline OdVariant write(double field, FieldForm form) {
  // With an exponent, as large reals are written, a whole number would be read only up to its
  // point.
  constexpr double kWithoutExponent = 1e19;
  if (form == FieldForm::kWholeNumber && std::trunc(field) == field &&
      std::abs(field) < kWithoutExponent)
    return OdVariant(OdString::number(field, 'f', 0));
  return OdVariant(field);
}
inline OdVariant write(const OdString& field, FieldForm form) {
  return OdVariant(form == FieldForm::kPath ? collapsedStoredPath(field) : field);
}

} // namespace field_detail

/// The row of a name (compared exactly), or null.
template <class R>
const StoredField<R>* findField(std::span<const StoredField<R>> fields, const OdString& name) {
  for (const StoredField<R>& field : fields)
    if (field.name == name) return &field;
  return nullptr;
}

/// Stores the value if the table has the name; false otherwise. A number that the field cannot hold
/// is told, and the field stays as it is.
template <class R>
bool readStoredField(R& record, std::span<const StoredField<R>> fields, const OdString& name,
                     const OdVariant& value) {
  const StoredField<R>* const field = findField(fields, name);
  if (!field || value.isObject()) return false;
  if (!std::visit(
          [&](auto member) { return field_detail::read(record.*member, value, field->form); },
          field->member))
    tellFieldRefused(name, value.toString());
  return true;
}

/// The value as it goes to a filer.
template <class R>
OdVariant storedValue(const R& record, const StoredField<R>& field) {
  return std::visit([&](auto member) { return field_detail::write(record.*member, field.form); },
                    field.member);
}

/// Writes each value as an attribute, in the table's order.
template <class R>
void writeStoredAttributes(OdTcFiler* filer, const R& record,
                           std::span<const StoredField<R>> fields) {
  for (const StoredField<R>& field : fields)
    filer->writeAttribute(staticName(field.name), storedValue(record, field));
}

/// Writes each value as a child with a text, in the table's order. An empty text is left out: an
/// element without a text would end the reading of the object.
template <class R>
void writeStoredElements(OdTcFiler* filer, const R& record,
                         std::span<const StoredField<R>> fields) {
  for (const StoredField<R>& field : fields) {
    const OdVariant value = storedValue(record, field);
    if (value.isText() && value.toString().isEmpty()) continue;
    filer->writeElement(staticName(field.name), value);
  }
}

/// All values of the table in one map.
template <class R>
OdTcFieldMap storedValues(const R& record, std::span<const StoredField<R>> fields) {
  OdTcFieldMap map;
  for (const StoredField<R>& field : fields)
    map.set(staticName(field.name), storedValue(record, field));
  return map;
}

} // namespace tc
