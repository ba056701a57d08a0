#include "drawing/dxf/text_source.h"

#include <charconv>
#include <cstring>

namespace {

constexpr std::string_view kBlanks = " \t";
// No program writes longer values; what is longer is none, and would fill the memory.
constexpr std::size_t kLongestValue = 16 * 1024 * 1024;
constexpr std::size_t kLongestCode = 1024;

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Enough of a line to recognise it in a message.
OdString quoted(std::string_view line) {
  constexpr std::size_t kShown = 40;
  OdString shown =
      OdString::fromUtf8(line.data(), static_cast<qsizetype>(std::min(line.size(), kShown)));
  for (QChar& c : shown)
    if (!c.isPrint()) c = QLatin1Char('?');
  return line.size() > kShown ? shown + QStringLiteral("...") : shown;
}

/// The number of a line that has nothing else than up to four digits behind blanks; -1 for others.
int plainCode(std::string_view line) {
  const char* at = line.data();
  const char* const end = at + line.size();
  while (at != end && *at == ' ') ++at;
  if (at == end || end - at > 4) return -1;
  int code = 0;
  for (; at != end; ++at) {
    const auto digit = static_cast<unsigned>(*at - '0');
    if (digit > 9) return -1;
    code = code * 10 + static_cast<int>(digit);
  }
  return code;
}

} // namespace

OdDbDxfTextSource::OdDbDxfTextSource(OdDbDxfBytes bytes)
  : m_bytes(std::move(bytes)) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (std::string_view(m_bytes.at, m_bytes.left()).starts_with(kByteOrderMark))
    m_bytes.at += kByteOrderMark.size();
}

bool OdDbDxfTextSource::nextLine(std::string_view& line, std::size_t longest) {
  std::size_t searched = 0;
  for (;;) {
    const auto* stop = static_cast<const char*>(
        std::memchr(m_bytes.at + searched, '\n', m_bytes.left() - searched));
    const char* next = stop ? stop + 1 : nullptr;
    if (!stop) {
      searched = m_bytes.left();
      if (searched > longest) {
        m_tooLong = true;
        line = {m_bytes.at, searched};
        return true;
      }
      if (m_bytes.more()) continue;
      if (m_bytes.left() == 0 || !m_bytes.problem().isEmpty()) return false;
      next = stop = m_bytes.end;
    }
    if (stop != m_bytes.at && stop[-1] == '\r') --stop;
    line = {m_bytes.at, static_cast<std::size_t>(stop - m_bytes.at)};
    m_tooLong = line.size() > longest;
    m_bytes.at = next;
    ++m_nextLine;
    return true;
  }
}

OdDbDxfSource::Result OdDbDxfTextSource::damaged(const OdString& problem) {
  m_problem = m_bytes.problem().isEmpty() ? problem : m_bytes.problem();
  return kDamaged;
}

OdDbDxfSource::Result OdDbDxfTextSource::next(OdDbDxfTag& tag) {
  for (;;) {
    m_line = m_nextLine;
    std::string_view line;
    if (!nextLine(line, kLongestCode))
      return m_bytes.problem().isEmpty() ? kEnd : damaged(m_bytes.problem());
    tag.code = plainCode(line);
    if (tag.code < 0) {
      const std::string_view code = trimmed(line);
      // Some programs leave empty lines or an end-of-file character behind the last tag.
      if ((code.empty() || code == "\x1A") && m_bytes.left() == 0 && !m_bytes.more()) return kEnd;
      const auto [at, error] = std::from_chars(code.data(), code.data() + code.size(), tag.code);
      if (m_tooLong || error != std::errc() || at != code.data() + code.size())
        return damaged(
            QStringLiteral("\"%1\" stands where a group code is expected").arg(quoted(code)));
    }
    if (!nextLine(tag.text, kLongestValue))
      return damaged(QStringLiteral("the file ends behind a group code"));
    if (m_tooLong)
      return damaged(
          QStringLiteral("a value is longer than %1 bytes").arg(qulonglong{kLongestValue}));
    // Comments.
    if (tag.code == 999) continue;
    if (tag.code == 0) tag.text = trimmed(tag.text);
    return kTag;
  }
}

void OdDbDxfTextSource::restart(std::string_view text, qint64 line) {
  m_bytes = OdDbDxfBytes(text);
  m_line = m_nextLine = line;
  m_problem.clear();
}

void OdDbDxfTextSource::goOn(const char* place, qint64 line) {
  m_bytes.at = place;
  m_line = line;
  // A tag has two lines.
  m_nextLine = line + 2;
}

bool OdDbDxfTextSource::goBack(const OdDbDxfTag& tag) {
  const char* const begin = m_bytes.begin();
  // The line of the value begins behind the end of the code's, which may not be in the window.
  const auto lineBegin = [&](const char* at) {
    while (at != begin && at[-1] != '\n') --at;
    return at;
  };
  const char* const value = lineBegin(tag.text.data());
  if (value == begin) return false;
  m_bytes.at = lineBegin(value - 1);
  m_nextLine = m_line;
  return true;
}

std::optional<OdDbDxfPiece> OdDbDxfTextSource::cut() {
  auto piece = OdDbDxfPiece::cut(m_bytes, m_nextLine);
  if (piece) m_nextLine += piece->lines;
  return piece;
}
