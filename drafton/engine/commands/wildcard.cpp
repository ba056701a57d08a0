#include "drafton/engine/commands/wildcard.h"

#include <optional>

namespace drafton {
namespace {

/// What one sign of a pattern accepts, and where the next sign begins.
struct Sign {
  bool accepts = false;
  qsizetype next = 0;
};

Sign literal(QStringView pattern, qsizetype at, QChar c) {
  return {at < pattern.size() && pattern[at].toUpper() == c.toUpper(), at + 1};
}

/// The set that begins at the bracket; none if the bracket is never closed.
std::optional<Sign> set(QStringView pattern, qsizetype at, QChar c) {
  const qsizetype end = pattern.indexOf(u']', at + 1);
  if (end < 0) return std::nullopt;
  QStringView members = pattern.mid(at + 1, end - at - 1);
  const bool isTurned = members.startsWith(u'~');
  if (isTurned) members = members.mid(1);
  bool found = false;
  const QChar wanted = c.toUpper();
  for (qsizetype i = 0; i < members.size(); ++i) {
    const bool isRange = i + 2 < members.size() && members[i + 1] == u'-';
    const QChar last = members[isRange ? i + 2 : i].toUpper();
    found = found || (members[i].toUpper() <= wanted && wanted <= last);
    if (isRange) i += 2;
  }
  return Sign{found != isTurned, end + 1};
}

Sign signAt(QStringView pattern, qsizetype at, QChar c) {
  switch (pattern[at].unicode()) {
  case u'?':
    return {true, at + 1};
  case u'#':
    return {c.isDigit(), at + 1};
  case u'@':
    return {c.isLetter(), at + 1};
  case u'.':
    return {!c.isLetterOrNumber(), at + 1};
  case u'`':
    return literal(pattern, at + 1, c);
  case u'[':
    if (const std::optional<Sign> found = set(pattern, at, c)) return *found;
    break;
  default:
    break;
  }
  return literal(pattern, at, c);
}

/// Walks name and pattern side by side; a mismatch goes back to the last star only, so that many
/// stars cost no more than one.
bool matchesOne(QStringView name, QStringView pattern) {
  qsizetype n = 0;
  qsizetype p = 0;
  qsizetype star = -1;
  qsizetype taken = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == u'*') {
      star = ++p;
      taken = n;
      continue;
    }
    if (p < pattern.size()) {
      if (const Sign sign = signAt(pattern, p, name[n]); sign.accepts) {
        p = sign.next;
        ++n;
        continue;
      }
    }
    if (star < 0) return false;
    p = star;
    n = ++taken;
  }
  while (p < pattern.size() && pattern[p] == u'*') ++p;
  return p == pattern.size();
}

} // namespace

bool matchesWildcard(QStringView name, QStringView patterns) {
  for (QStringView pattern : patterns.split(u',')) {
    const bool isTurned = pattern.size() > 1 && pattern.startsWith(u'~');
    if (isTurned) pattern = pattern.mid(1);
    if (matchesOne(name, pattern) != isTurned) return true;
  }
  return false;
}

} // namespace drafton
