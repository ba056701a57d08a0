#include "drawing/dxf/text.h"

#include "drawing/dxf/johab.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace {

struct CodePage {
  const char* name;
  const char* encoding;
};
// The platform knows many more, and some of them would spoil every text: in UTF-16 or EBCDIC not
// even the letters of group codes are where they are here.
constexpr CodePage kCodePages[] = {
    {"ANSI_1252", "windows-1252"},
    {"ANSI_1250", "windows-1250"},
    {"ANSI_1251", "windows-1251"},
    {"ANSI_1253", "windows-1253"},
    {"ANSI_1254", "windows-1254"},
    {"ANSI_1255", "windows-1255"},
    {"ANSI_1256", "windows-1256"},
    {"ANSI_1257", "windows-1257"},
    {"ANSI_1258", "windows-1258"},
    {"ANSI_874", "windows-874"},
    {"ANSI_932", "windows-932"},
    {"ANSI_936", "GBK"},
    {"ANSI_949", "windows-949"},
    {"ANSI_950", "Big5"},
    {"ANSI_1361", oddxf::kJohab},
    {"ASCII", "ISO-8859-1"},
    {"ISO8859-1", "ISO-8859-1"},
    {"ISO8859-2", "ISO-8859-2"},
    {"ISO8859-3", "ISO-8859-3"},
    {"ISO8859-4", "ISO-8859-4"},
    {"ISO8859-5", "ISO-8859-5"},
    {"ISO8859-6", "ISO-8859-6"},
    {"ISO8859-7", "ISO-8859-7"},
    {"ISO8859-8", "ISO-8859-8"},
    {"ISO8859-9", "ISO-8859-9"},
    {"DOS437", "IBM437"},
    {"DOS708", "ISO-8859-6"},
    {"DOS720", "IBM720"},
    {"DOS737", "IBM737"},
    {"DOS775", "IBM775"},
    {"DOS850", "IBM850"},
    {"DOS852", "IBM852"},
    {"DOS855", "IBM855"},
    {"DOS857", "IBM857"},
    {"DOS860", "IBM860"},
    {"DOS861", "IBM861"},
    {"DOS862", "IBM862"},
    {"DOS863", "IBM863"},
    {"DOS864", "IBM864"},
    {"DOS865", "IBM865"},
    {"DOS866", "IBM866"},
    {"DOS869", "IBM869"},
    {"DOS932", "IBM932"},
    {"MACINTOSH", "macintosh"},
    {"MAC-ROMAN", "macintosh"},
    {"BIG5", "Big5"},
    {"GB2312", "GBK"},
    {"JOHAB", oddxf::kJohab},
    {"KSC5601", "windows-949"},
    {"UTF-8", "UTF-8"},
};

} // namespace

QByteArray oddxf::encodingOf(std::string_view codePage) {
  const QByteArray upper =
      QByteArray(codePage.data(), static_cast<qsizetype>(codePage.size())).trimmed().toUpper();
  for (const CodePage& row : kCodePages)
    if (upper == row.name) return row.encoding;
  return {};
}

namespace {

/// The character of \M+nXXXX: its code in one of five code pages.
OdString multiByte(int page, ushort code) {
  static constexpr const char* kPages[] = {"ANSI_932", "ANSI_950", "ANSI_949", "ANSI_1361",
                                           "ANSI_936"};
  if (page < 1 || page > static_cast<int>(std::size(kPages))) return {};
  const char bytes[] = {static_cast<char>(code >> 8), static_cast<char>(code)};
  const QByteArray encoding = oddxf::encodingOf(kPages[page - 1]);
  if (encoding == oddxf::kJohab) {
    bool bad = false;
    const OdString text = oddxf::fromJohab(QByteArrayView(bytes, 2), bad);
    return bad ? OdString() : text;
  }
  QStringDecoder decoder(encoding.constData());
  const OdString text = decoder.decode(QByteArrayView(bytes, 2));
  return decoder.hasError() ? OdString() : text;
}

/// What the escape at the beginning of `text` stands for, and its length; nothing if there is none.
std::pair<OdString, qsizetype> escape(QStringView text) {
  constexpr qsizetype kDigits = 4;
  bool ok = false;
  if (text.startsWith(u"\\U+") && text.size() >= 3 + kDigits) {
    const ushort unit = text.mid(3, kDigits).toUShort(&ok, 16);
    if (ok) return {OdString(QChar(unit)), 3 + kDigits};
  }
  if (text.startsWith(u"\\M+") && text.size() >= 4 + kDigits) {
    const ushort code = text.mid(4, kDigits).toUShort(&ok, 16);
    if (ok) return {multiByte(text[3].digitValue(), code), 4 + kDigits};
  }
  return {};
}

} // namespace

OdString oddxf::withoutEscapes(const OdString& text) {
  OdString result;
  qsizetype at = 0;
  for (;;) {
    const qsizetype mark = text.indexOf(u'\\', at);
    if (mark < 0) return result += QStringView(text).mid(at);
    result += QStringView(text).mid(at, mark - at);
    const auto [meaning, length] = escape(QStringView(text).mid(mark));
    if (meaning.isEmpty()) result += u'\\';
    result += meaning;
    at = mark + (meaning.isEmpty() ? 1 : length);
  }
}

std::string_view oddxf::trimmed(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

namespace {

/// Numbers of few digits, which nearly all are: digits and the power of ten below them are both
/// exact, and so is the rounding of their quotient. False for others.
bool readShort(std::string_view text, double& value) {
  static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const char* at = text.data();
  const char* const end = at + text.size();
  const bool negative = at != end && *at == '-';
  if (negative) ++at;
  // Up to 15 digits and a point.
  if (end - at > 16 || at == end) return false;
  std::uint64_t digits = 0;
  const char* point = nullptr;
  for (; at != end; ++at) {
    const auto digit = static_cast<unsigned>(*at - '0');
    if (digit <= 9)
      digits = digits * 10 + digit;
    else if (*at == '.' && !point)
      point = at;
    else
      return false;
  }
  const std::size_t count = text.size() - (negative ? 1 : 0) - (point ? 1 : 0);
  if (count == 0 || count > 15) return false;
  value = static_cast<double>(static_cast<std::int64_t>(digits));
  if (point) value /= kPowers[end - point - 1];
  if (negative) value = -value;
  return true;
}

} // namespace

std::optional<double> oddxf::realOf(std::string_view text) {
  double value = 0;
  if (readShort(text, value)) return value;
  text = trimmed(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto [at, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || at != text.data() + text.size()) return std::nullopt;
  return value;
}

OdString oddxf::oneLine(const OdString& text) {
  if (std::none_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x20; }))
    return text;
  OdString result = text;
  for (qsizetype i = 0; i < result.size(); ++i)
    if (const ushort c = result[i].unicode(); c < 0x20)
      result.replace(i, 1, OdString(QLatin1Char('^')) + QChar(c + 0x40));
  return result;
}

namespace {

constexpr auto kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

/// Writes the digits so that they end at `end`; gives where they begin.
char* digitsBefore(char* end, std::uint32_t value) {
  while (value >= 100) {
    end -= 2;
    std::memcpy(end, &kDigitPairs[2 * (value % 100)], 2);
    value /= 100;
  }
  if (value < 10) {
    *--end = static_cast<char>('0' + value);
    return end;
  }
  end -= 2;
  std::memcpy(end, &kDigitPairs[2 * value], 2);
  return end;
}

/// Writes a number with at most six decimals, which most have; null for others. The quotient of two
/// numbers that are exact is what a reader gets from these digits.
char* putShort(char* to, double value) {
  constexpr double kLargest = 1e9;
  constexpr double kMillion = 1e6;
  const double size = std::abs(value);
  if (!(size < kLargest) || (size == 0 && std::signbit(value))) return nullptr;
  const auto millionths = static_cast<std::uint64_t>(size * kMillion + 0.5);
  if (static_cast<double>(static_cast<std::int64_t>(millionths)) / kMillion != size) return nullptr;
  auto whole = static_cast<std::uint32_t>(millionths / 1'000'000);
  const auto rest = static_cast<std::uint32_t>(millionths % 1'000'000);
  *to = '-';
  to += value < 0 ? 1 : 0;
  // The whole part has up to nine digits.
  if (whole < 10) {
    *to++ = static_cast<char>('0' + whole);
  } else {
    const int digits = whole < 100 ? 2 : whole < 1000 ? 3 : whole < 10'000 ? 4 : 9;
    if (digits < 9) {
      digitsBefore(to + digits, whole);
      to += digits;
    } else {
      char all[12];
      const char* const begin = digitsBefore(std::end(all), whole);
      to = std::copy(begin, static_cast<const char*>(std::end(all)), to);
    }
  }
  *to++ = '.';
  std::memcpy(to, &kDigitPairs[2 * (rest / 10'000)], 2);
  std::memcpy(to + 2, &kDigitPairs[2 * (rest / 100 % 100)], 2);
  std::memcpy(to + 4, &kDigitPairs[2 * (rest % 100)], 2);
  char* end = to + 6;
  // Most have three.
  if (rest % 1000 == 0) end -= 3;
  while (end[-1] == '0' && end > to + 1) --end;
  return end;
}

} // namespace

char* oddxf::putReal(char* to, double value) {
  if (char* const end = putShort(to, value)) return end;
  auto [end, error] = std::to_chars(to, to + kRealDigits - 2, value);
  if (std::none_of(to, end, [](char c) { return c == '.' || c == 'e'; })) {
    *end++ = '.';
    *end++ = '0';
  }
  return end;
}

std::string_view oddxf::realText(char (&buffer)[kRealDigits], double value) {
  return {buffer, static_cast<std::size_t>(putReal(buffer, value) - buffer)};
}

namespace {

/// Writes the line of a group code at `to`, where kCodeLine bytes have to fit; gives the end.
constexpr std::size_t kCodeLine = 16;
char* putCode(char* to, int code) {
  char digits[12];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, code);
  for (auto width = end - digits; width < 3; ++width) *to++ = ' ';
  to = std::copy(digits, end, to);
  *to++ = '\n';
  return to;
}

} // namespace

void oddxf::addCode(QByteArray& lines, int code) {
  char line[kCodeLine];
  lines.append(line, putCode(line, code) - line);
}

void oddxf::addLines(QByteArray& lines, int code, std::string_view value) {
  char line[kCodeLine];
  const auto codeSize = static_cast<std::size_t>(putCode(line, code) - line);
  const qsizetype before = lines.size();
  // One look at the room that is left does for all.
  lines.resize(before + static_cast<qsizetype>(codeSize + value.size() + 1));
  char* const to = lines.data() + before;
  std::copy_n(line, codeSize, to);
  *std::copy(value.begin(), value.end(), to + codeSize) = '\n';
}
