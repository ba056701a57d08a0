#include "drafton/engine/keyword_list.h"

namespace drafton {
namespace {

bool isCapital(QChar c) { return c.isUpper() || c.isDigit(); }

OdString capitalsOf(const OdString& word) {
  OdString capitals;
  for (const QChar c : word)
    if (isCapital(c)) capitals += c;
  return capitals;
}

/// The length of the word up to its last capital.
qsizetype shortestOf(const OdString& word) {
  for (qsizetype i = word.size(); i > 0; --i)
    if (isCapital(word[i - 1])) return i;
  return word.size();
}

bool means(QStringView typed, const OdString& word) {
  if (typed.compare(capitalsOf(word), Qt::CaseInsensitive) == 0) return true;
  return typed.size() >= shortestOf(word) && word.startsWith(typed, Qt::CaseInsensitive);
}

} // namespace

KeywordList::KeywordList(QStringView words)
  : m_words(words.toString().split(u' ', Qt::SkipEmptyParts)) {}

std::optional<OdString> KeywordList::match(QStringView typed) const {
  if (typed.startsWith(u'_')) typed = typed.mid(1);
  if (typed.isEmpty()) return std::nullopt;
  std::optional<OdString> found;
  for (const OdString& word : m_words) {
    if (typed.compare(word, Qt::CaseInsensitive) == 0) return word;
    if (!means(typed, word)) continue;
    if (found) return std::nullopt;
    found = word;
  }
  return found;
}

} // namespace drafton
