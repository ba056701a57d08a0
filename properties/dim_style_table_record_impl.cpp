#include "properties/dim_style_table_record_impl.h"

#include "drawing/database.h"
#include "properties/owned_part.h"
#include "properties/refusals.h"

#include <algorithm>
#include <string_view>

namespace tc {

using dim_style::Field;
using dim_style::kFields;
using dim_style::kVariables;
using Variables = OdTcDimStyleVariables;

namespace {

constexpr bool isBefore(const Field& one, const Field& other) {
  const auto text = [](QStringView name) {
    return std::u16string_view(name.utf16(), static_cast<std::size_t>(name.size()));
  };
  return text(one.name) < text(other.name);
}

// A style has very many variables, and each of them is looked up when a file is read.
constexpr auto kByName = [] {
  auto sorted = kFields;
  std::ranges::sort(sorted, isBefore);
  return sorted;
}();

bool readVariable(Variables& variables, const OdString& name, const OdVariant& value) {
  const auto at = std::ranges::lower_bound(kByName, Field{name, {}}, isBefore);
  return at != kByName.end() &&
         readStoredField<Variables>(variables, std::span(&*at, 1), name, value);
}

} // namespace

void OdTcDimStyleTableRecordImpl::setPart(OdTcDimStylePart* part) {
  if (!part) return;
  m_parts[static_cast<std::size_t>(part->part())] = adoptPart(OdTcDimStylePartPtr(part), this);
}

void OdTcDimStyleTableRecordImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttributes(storedValues<Variables>(m_variables, kFields));
  writeName(filer);
  for (const OdTcDimStylePartPtr& part : m_parts) filer->writeObject(part);
}

bool OdTcDimStyleTableRecordImpl::readField(const OdString& name, const OdVariant& value) {
  if (!value.isObject()) return readName(name, value) || readVariable(m_variables, name, value);
  for (std::size_t i = 0; i < m_parts.size(); ++i) {
    if (dimStylePartRow(static_cast<DimStylePart>(i)).element != name) continue;
    auto* const part = dynamic_cast<OdTcDimStylePart*>(value.object());
    if (!part || part->part() != static_cast<DimStylePart>(i))
      throw OdError_NotThatKindOfClass(part ? part->elementName() : QStringLiteral("(value)"),
                                       name);
    setPart(part);
    return true;
  }
  return false;
}

OdRxObjectPtr OdTcDimStyleTableRecordImpl::clone() const {
  auto copy = odrxMake<OdTcDimStyleTableRecordImpl>();
  copy->setRecordName(recordName());
  copy->m_variables = m_variables;
  for (std::size_t i = 0; i < m_parts.size(); ++i) copy->m_parts[i] = clonePart(m_parts[i], copy);
  return copy;
}

OdSmartPtr<OdDbSymbolTableRecord>
OdTcDimStyleTableRecordImpl::createRecord(OdDbDatabase* database) const {
  auto style = odrxMake<OdDbDimStyleTableRecord>();
  style->setName(recordName());
  OdDbDimVarValues values;
  for (const dim_style::Variable& variable : kVariables) {
    const OdString name = staticName(variable.field.name);
    if (!variable.give(m_variables, values, {*database, oddbFindHeaderVar(name)}))
      tellValueRefused(name.toUpper(), storedValue(m_variables, variable.field).toString());
  }
  for (const OdTcDimStylePartPtr& part : m_parts)
    if (part && part->property())
      dimStylePartRow(part->part()).give(*part->property(), values, *database);
  style->setValues(values);
  return style;
}

void OdTcDimStyleTableRecordImpl::takeFrom(OdDbObjectId record) {
  const auto style = record.openAs<OdDbDimStyleTableRecord>();
  const OdDbDimVarValues& values = style->values();
  setRecordName(style->getName());
  m_variables = {};
  for (const dim_style::Variable& variable : kVariables)
    if (!variable.onlyIf || values.*variable.onlyIf) variable.take(m_variables, values);
  for (std::size_t i = 0; i < m_parts.size(); ++i)
    m_parts[i] = adoptPart(dimStylePartRow(static_cast<DimStylePart>(i)).take(values), this);
}

OdDbObjectId OdTcDimStyleTableRecordImpl::tableId(const OdDbDatabase* database) const {
  return database->getDimStyleTableId();
}

} // namespace tc
