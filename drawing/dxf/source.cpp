#include "drawing/dxf/source.h"

#include <charconv>
#include <cstring>

namespace {

constexpr std::string_view kBlanks = " \t";

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

} // namespace

OdDbDxfTextSource::OdDbDxfTextSource(std::string_view bytes)
  : m_at(bytes.data())
  , m_end(bytes.data() + bytes.size()) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) m_at += kByteOrderMark.size();
}

bool OdDbDxfTextSource::nextLine(std::string_view& line) {
  if (m_at == m_end) return false;
  const auto left = static_cast<std::size_t>(m_end - m_at);
  const auto* stop = static_cast<const char*>(std::memchr(m_at, '\n', left));
  const char* const next = stop ? stop + 1 : m_end;
  if (!stop) stop = m_end;
  if (stop != m_at && stop[-1] == '\r') --stop;
  line = {m_at, static_cast<std::size_t>(stop - m_at)};
  m_at = next;
  ++m_nextLine;
  return true;
}

OdDbDxfSource::Result OdDbDxfTextSource::next(OdDbDxfTag& tag) {
  for (;;) {
    m_line = m_nextLine;
    std::string_view code;
    if (!nextLine(code)) return kEnd;
    code = trimmed(code);
    // Some programs leave empty lines or an end-of-file character behind the last tag.
    if ((code.empty() || code == "\x1A") && m_at == m_end) return kEnd;
    const auto [at, error] = std::from_chars(code.data(), code.data() + code.size(), tag.code);
    if (error != std::errc() || at != code.data() + code.size()) {
      m_problem = QStringLiteral("\"%1\" stands where a group code is expected").arg(quoted(code));
      return kDamaged;
    }
    if (!nextLine(tag.text)) {
      m_problem = QStringLiteral("the file ends behind a group code");
      return kDamaged;
    }
    // Comments.
    if (tag.code == 999) continue;
    if (tag.code == 0) tag.text = trimmed(tag.text);
    return kTag;
  }
}

OdDbDxfSource::Result OdDbDxfShortSource::next(OdDbDxfTag& tag) {
  if (m_text.empty()) return kEnd;
  const auto stop = std::min(m_text.find('|'), m_text.size());
  const std::string_view one = m_text.substr(0, stop);
  m_text.remove_prefix(std::min(stop + 1, m_text.size()));
  const auto blank = std::min(one.find(' '), one.size());
  std::from_chars(one.data(), one.data() + blank, tag.code);
  tag.text = one.substr(std::min(blank + 1, one.size()));
  ++m_count;
  return kTag;
}
