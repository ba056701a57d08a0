#include "persistence/xml_text.h"

#include <charconv>
#include <cstdint>

namespace tc {
namespace {

OdString realText(double value) {
  char digits[32];
  const auto end =
      std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::general, 6);
  return OdString::fromLatin1(digits, end.ptr - digits);
}

} // namespace

OdString valueText(const OdVariant& value, OdTcNumberForm form) {
  if (value.isArray() || value.isByRef()) return {};
  switch (value.type()) {
  case OdVariant::kString:
  case OdVariant::kWString:
    return value.toString();
  case OdVariant::kBool:
    return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
  case OdVariant::kUInt8:
  case OdVariant::kInt16:
    return OdString::number(value.toInt32());
  case OdVariant::kInt32:
    return form == OdTcNumberForm::kUnsigned ? OdString::number(value.toUInt32())
                                             : OdString::number(value.toInt32());
  case OdVariant::kInt64:
    return OdString::number(static_cast<std::int32_t>(value.toUInt32()));
  case OdVariant::kDouble:
    return realText(value.toDouble());
  default:
    return {};
  }
}

std::string toUtf8(const OdString& text) {
  const auto size = static_cast<std::size_t>(text.size());
  std::string bytes(size, '\0');
  std::size_t i = 0;
  // Nearly all names and values are plain ASCII.
  for (; i < size; ++i) {
    const char16_t c = text[static_cast<qsizetype>(i)].unicode();
    if (c == 0 || c >= 0x80) break;
    bytes[i] = static_cast<char>(c);
  }
  if (i == size) return bytes;
  OdString whole = text;
  if (whole.contains(QChar(u'\0'))) whole.replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter));
  return whole.toUtf8().toStdString();
}

OdString fromUtf8(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  // Qt takes a byte-order mark for the beginning of a file, but in a text it is a character.
  qsizetype marks = 0;
  for (; bytes.starts_with(kMark); ++marks) bytes.remove_prefix(kMark.size());
  const auto text = OdString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
  return marks == 0 ? text : OdString(marks, QChar(QChar::ByteOrderMark)) + text;
}

std::string withReferencesEscaped(std::string utf8) {
  constexpr std::string_view kReference = "&#x";
  constexpr std::string_view kGuarded = "&#x26;#x";
  std::size_t at = utf8.find(kReference);
  if (at == std::string::npos) return utf8;
  std::string guarded;
  std::size_t copied = 0;
  for (; at != std::string::npos; at = utf8.find(kReference, copied)) {
    guarded.append(utf8, copied, at - copied).append(kGuarded);
    copied = at + kReference.size();
  }
  return guarded.append(utf8, copied, std::string::npos);
}

bool isLostOnParsing(const std::string& utf8) {
  // White space, and the three sequences that the parser passes over like white space.
  std::string_view rest = utf8;
  while (!rest.empty()) {
    const char c = rest.front();
    if (c == ' ' || (c >= '\t' && c <= '\r'))
      rest.remove_prefix(1);
    else if (rest.starts_with("\xEF\xBB\xBF") || rest.starts_with("\xEF\xBF\xBE") ||
             rest.starts_with("\xEF\xBF\xBF"))
      rest.remove_prefix(3);
    else
      return false;
  }
  return !utf8.empty();
}

} // namespace tc
