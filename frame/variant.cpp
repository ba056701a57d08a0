#include "frame/variant.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <limits>
#include <type_traits>

namespace {

/// The ASCII bytes of a number at the start of `text`: blanks are passed over and the copy ends at
/// the first character that no number holds.
QByteArray numberBytes(QStringView text) {
  qsizetype i = 0;
  while (i < text.size() && text[i].isSpace()) ++i;
  QByteArray bytes;
  for (; i < text.size(); ++i) {
    const char16_t c = text[i].unicode();
    if (c > 0x7E || c <= 0x20) break;
    bytes.append(static_cast<char>(c));
  }
  return bytes;
}

/// True if the number, which no real can hold, is below all reals rather than above them.
bool isTiny(const char* first, const char* last) {
  const char* const exponent =
      std::find_if(first, last, [](char c) { return c == 'e' || c == 'E'; });
  const char* const point = std::find(first, exponent, '.');
  const char* const digit =
      std::find_if(first, exponent, [](char c) { return c >= '1' && c <= '9'; });
  // The power of ten of the first digit that counts, as written before the exponent.
  const auto place = digit < point ? point - digit - 1 : point - digit;
  std::int64_t power = 0;
  if (exponent != last) {
    const char* from = exponent + 1;
    const bool isNegative = from != last && *from == '-';
    if (from != last && *from == '+') ++from;
    if (std::from_chars(from, last, power).ec == std::errc::result_out_of_range) return isNegative;
  }
  return power < -place;
}

/// True if a number can begin so: words such as "inf" are none, and there is but one sign.
bool beginsNumber(const char* first, const char* last) {
  if (first != last && *first == '-') ++first;
  return first != last && ((*first >= '0' && *first <= '9') || *first == '.');
}

template <class T>
T parse(QStringView text, T tooLarge, T tooSmall) {
  const QByteArray bytes = numberBytes(text);
  const char* first = bytes.constData();
  const char* const last = first + bytes.size();
  if (first != last && *first == '+' && ++first != last && *first == '-') return T{};
  if (!beginsNumber(first, last)) return T{};
  T value{};
  const auto [end, error] = std::from_chars(first, last, value);
  if (error == std::errc::result_out_of_range) {
    // Of a real that is out of range only its exponent tells whether it is too near to zero.
    if (std::is_floating_point_v<T> && isTiny(first, end)) return T{};
    return *first == '-' ? tooSmall : tooLarge;
  }
  return error == std::errc() ? value : T{};
}

} // namespace

std::int64_t odParseInt(QStringView text) {
  using Limits = std::numeric_limits<std::int64_t>;
  return parse<std::int64_t>(text, Limits::max(), Limits::min());
}

std::uint64_t odParseUInt(QStringView text) {
  const QStringView trimmed = text.trimmed();
  if (trimmed.startsWith(u'-')) return static_cast<std::uint64_t>(odParseInt(trimmed));
  constexpr auto kMax = std::numeric_limits<std::uint64_t>::max();
  return parse<std::uint64_t>(text, kMax, kMax);
}

double odParseReal(QStringView text) {
  constexpr double kHuge = std::numeric_limits<double>::infinity();
  return parse<double>(text, kHuge, -kHuge);
}

OdString OdVariant::toString() const {
  switch (type()) {
  case kString:
  case kWString:
    return std::get<OdString>(m_value);
  case kBool:
  case kUInt8:
  case kInt16:
  case kInt32:
  case kInt64:
    return OdString::number(std::get<std::int64_t>(m_value));
  case kDouble:
    return OdString::number(std::get<double>(m_value), 'g', 17);
  default:
    return {};
  }
}

std::int64_t OdVariant::toInt64() const {
  if (const auto* number = std::get_if<std::int64_t>(&m_value)) return *number;
  if (const auto* real = std::get_if<double>(&m_value)) {
    constexpr double kLimit = 9.2e18;
    return *real >= -kLimit && *real <= kLimit ? static_cast<std::int64_t>(*real) : 0;
  }
  if (const auto* text = std::get_if<OdString>(&m_value)) return odParseInt(*text);
  return 0;
}

double OdVariant::toDouble() const {
  if (const auto* real = std::get_if<double>(&m_value)) return *real;
  if (const auto* number = std::get_if<std::int64_t>(&m_value)) return static_cast<double>(*number);
  if (const auto* text = std::get_if<OdString>(&m_value)) return odParseReal(*text);
  return 0.0;
}

OdRxObject* OdVariant::object() const {
  const auto* object = std::get_if<OdRxObjectPtr>(&m_value);
  return object ? object->get() : nullptr;
}
