#include "drawing/dxf/binary_source.h"

#include "drawing/dxf/text.h"

#include <QtEndian>

#include <algorithm>
#include <charconv>
#include <cstring>

namespace {

enum class Kind : std::uint8_t { kText, kReal, kByte, kShort, kLong, kLongLong, kBytes };

struct Range {
  int first, last;
  Kind kind;
};
// In rising order. What is in none of them is text.
constexpr Range kRanges[] = {
    {10, 59, Kind::kReal},      {60, 79, Kind::kShort},      {90, 99, Kind::kLong},
    {110, 149, Kind::kReal},    {160, 169, Kind::kLongLong}, {170, 179, Kind::kShort},
    {210, 239, Kind::kReal},    {270, 289, Kind::kShort},    {290, 299, Kind::kByte},
    {310, 319, Kind::kBytes},   {370, 389, Kind::kShort},    {400, 409, Kind::kShort},
    {420, 429, Kind::kLong},    {440, 459, Kind::kLong},     {460, 469, Kind::kReal},
    {1004, 1004, Kind::kBytes}, {1010, 1059, Kind::kReal},   {1060, 1070, Kind::kShort},
    {1071, 1071, Kind::kLong},
};

Kind kindOf(int code) {
  for (const Range& range : kRanges)
    if (code <= range.last) return code >= range.first ? range.kind : Kind::kText;
  return Kind::kText;
}

std::string escaped(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\r' || c == '\n') line += '^';
    line += c == '\r' ? 'M' : (c == '\n' ? 'J' : c);
  }
  return line;
}

constexpr int kHighestCode = 1071;
constexpr std::size_t kLongestValue = 16 * 1024 * 1024;

} // namespace

OdDbDxfBinarySource::OdDbDxfBinarySource(OdDbDxfBytes bytes)
  : m_bytes(std::move(bytes)) {
  m_bytes.at += kMark.size();
  // The first tag is a section's, with code 0: its name begins behind one byte or two.
  m_shortCodes = have(2) && m_bytes.at[1] != 0;
}

bool OdDbDxfBinarySource::have(std::size_t count) {
  while (m_bytes.left() < count)
    if (!m_bytes.more()) return false;
  return true;
}

template <class T>
bool OdDbDxfBinarySource::take(T& value) {
  if (!have(sizeof value)) return false;
  value = qFromLittleEndian<T>(m_bytes.at);
  m_bytes.at += sizeof value;
  return true;
}

bool OdDbDxfBinarySource::takeCode(int& code) {
  if (m_shortCodes) {
    std::uint8_t byte = 0;
    if (!take(byte)) return false;
    code = byte;
    // Codes of extended data do not fit.
    if (byte != 255) return true;
  }
  std::int16_t two = 0;
  if (!take(two)) return false;
  code = two;
  return true;
}

bool OdDbDxfBinarySource::takeText(std::string_view& text) {
  std::size_t searched = 0;
  for (;;) {
    const auto* const stop =
        static_cast<const char*>(std::memchr(m_bytes.at + searched, 0, m_bytes.left() - searched));
    if (stop) {
      text = {m_bytes.at, static_cast<std::size_t>(stop - m_bytes.at)};
      m_bytes.at = stop + 1;
      // What would end a line.
      if (text.find_first_of("\r\n") != std::string_view::npos) text = m_text = escaped(text);
      return true;
    }
    searched = m_bytes.left();
    if (searched > kLongestValue) {
      m_problem = QStringLiteral("a value is longer than %1 bytes").arg(qulonglong{kLongestValue});
      return false;
    }
    if (!m_bytes.more()) return false;
  }
}

bool OdDbDxfBinarySource::takeBytes(std::string_view& text) {
  std::uint8_t count = 0;
  if (!take(count) || !have(count)) return false;
  constexpr char kDigits[] = "0123456789ABCDEF";
  m_text.clear();
  for (std::uint8_t i = 0; i < count; ++i) {
    const auto byte = static_cast<std::uint8_t>(*m_bytes.at++);
    m_text += kDigits[byte >> 4];
    m_text += kDigits[byte & 15];
  }
  text = m_text;
  return true;
}

bool OdDbDxfBinarySource::takeValue(OdDbDxfTag& tag) {
  const auto whole = [&](auto value) {
    if (!take(value)) return false;
    char digits[24];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, std::int64_t{value});
    m_text.assign(digits, end);
    tag.text = m_text;
    return true;
  };
  switch (kindOf(tag.code)) {
  case Kind::kText:
    return takeText(tag.text);
  case Kind::kBytes:
    return takeBytes(tag.text);
  case Kind::kByte:
    return whole(std::int8_t{});
  case Kind::kShort:
    return whole(std::int16_t{});
  case Kind::kLong:
    return whole(std::int32_t{});
  case Kind::kLongLong:
    return whole(std::int64_t{});
  case Kind::kReal:
    break;
  }
  double real = 0;
  if (!take(real)) return false;
  char digits[oddxf::kRealDigits];
  m_text = oddxf::realText(digits, real);
  tag.text = m_text;
  return true;
}

OdDbDxfSource::Result OdDbDxfBinarySource::next(OdDbDxfTag& tag) {
  do {
    ++m_count;
    if (!have(1)) return kEnd;
    if (!takeCode(tag.code)) {
      m_problem = QStringLiteral("the file ends within a group code");
      return kDamaged;
    }
    if (tag.code < -5 || tag.code > kHighestCode) {
      m_problem = QStringLiteral("%1 stands where a group code is expected").arg(tag.code);
      return kDamaged;
    }
    if (!takeValue(tag)) {
      if (m_problem.isEmpty()) m_problem = QStringLiteral("the file ends behind a group code");
      return kDamaged;
    }
  } while (tag.code == 999);
  return kTag;
}
