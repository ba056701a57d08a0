#include "drafton/engine/keyword_list.h"

#include "drafton/engine/translator.h"

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

/// The places in `words` of those that are meant; of one only if it was typed in full.
QList<qsizetype> meantBy(QStringView typed, const QStringList& words) {
  QList<qsizetype> places;
  for (qsizetype i = 0; i < words.size(); ++i) {
    if (typed.compare(words[i], Qt::CaseInsensitive) == 0) return {i};
    if (means(typed, words[i])) places << i;
  }
  return places;
}

/// The word in the user's language. One with a blank in it could not be typed.
OdString localWord(const OdString& word) {
  const OdString local = translated(word);
  return local.contains(u' ') ? word : local;
}

} // namespace

KeywordList::KeywordList(QStringView words)
  : m_words(words.toString().split(u' ', Qt::SkipEmptyParts)) {
  for (const OdString& word : m_words) m_shownWords << localWord(word);
}

std::optional<OdString> KeywordList::match(QStringView typed) const {
  const bool isEnglish = typed.startsWith(u'_');
  if (isEnglish) typed = typed.mid(1);
  if (typed.isEmpty()) return std::nullopt;
  QList<qsizetype> places;
  if (!isEnglish) places = meantBy(typed, m_shownWords);
  if (places.isEmpty()) places = meantBy(typed, m_words);
  return places.size() == 1 ? std::optional(m_words[places.first()]) : std::nullopt;
}

OdString KeywordList::shownWord(const OdString& word) const {
  const qsizetype place = m_words.indexOf(word);
  return place < 0 ? word : m_shownWords[place];
}

} // namespace drafton
