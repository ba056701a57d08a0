#include "drafton/desktop/access_keys.h"

#include <QAction>
#include <QMenu>

#include <optional>
#include <vector>

namespace drafton {
namespace {

/// The place of the "&" that stands before an access key; two of them show one.
std::optional<qsizetype> markOf(const OdString& text) {
  for (qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size();
       at = text.indexOf(u'&', at + 2))
    if (text[at + 1] != u'&') return at;
  return std::nullopt;
}

class Keys {
 public:
  explicit Keys(const QStringList& texts)
    : m_texts(texts)
    , m_places(static_cast<std::size_t>(texts.size())) {
    // Those that have a key come first; nobody takes it from them.
    for (qsizetype i = 0; i < texts.size(); ++i)
      if (const auto mark = markOf(texts[i]); mark && !m_owners.contains(upper(i, *mark + 1)))
        take(i, *mark + 1);
    m_settled = m_owners;
    for (qsizetype i = 0; i < texts.size(); ++i) {
      if (m_places[static_cast<std::size_t>(i)]) continue;
      QList<QChar> tried;
      find(i, tried);
    }
  }

  QStringList texts() const {
    QStringList marked;
    for (qsizetype i = 0; i < m_texts.size(); ++i) {
      OdString text = m_texts[i];
      std::optional<qsizetype> place = m_places[static_cast<std::size_t>(i)];
      if (const auto mark = markOf(text)) {
        text.remove(*mark, 1);
        if (place && *place > *mark) --*place;
      }
      marked << (place ? text.insert(*place, u'&') : text);
    }
    return marked;
  }

 private:
  QChar upper(qsizetype text, qsizetype place) const { return m_texts[text][place].toUpper(); }
  void take(qsizetype text, qsizetype place) {
    m_places[static_cast<std::size_t>(text)] = place;
    m_owners[upper(text, place)] = text;
  }

  /// Beginnings of words, then whatever else can be typed.
  std::vector<qsizetype> candidates(const OdString& text) const {
    std::vector<qsizetype> first, rest;
    const qsizetype end = text.indexOf(u'\t') < 0 ? text.size() : text.indexOf(u'\t');
    for (qsizetype i = 0; i < end; ++i) {
      if (!text[i].isLetterOrNumber()) continue;
      const bool begins = i == 0 || text[i - 1].isSpace() || text[i - 1] == u'&';
      (begins ? first : rest).push_back(i);
    }
    first.insert(first.end(), rest.begin(), rest.end());
    return first;
  }

  /// Takes a free key, or one whose owner finds another one.
  bool find(qsizetype text, QList<QChar>& tried) {
    const std::vector<qsizetype> places = candidates(m_texts[text]);
    for (const qsizetype place : places)
      if (!m_owners.contains(upper(text, place))) return take(text, place), true;
    for (const qsizetype place : places) {
      const QChar key = upper(text, place);
      if (m_settled.contains(key) || tried.contains(key)) continue;
      tried << key;
      if (find(m_owners[key], tried)) return take(text, place), true;
    }
    return false;
  }

  const QStringList& m_texts;
  std::vector<std::optional<qsizetype>> m_places;
  QMap<QChar, qsizetype> m_owners, m_settled;
};

} // namespace

QStringList withAccessKeys(const QStringList& texts) { return Keys(texts).texts(); }

void giveAccessKeys(QMenu& menu) {
  QList<QAction*> entries;
  QStringList texts;
  for (QAction* const action : menu.actions()) {
    if (action->isSeparator()) continue;
    entries << action;
    texts << action->text();
  }
  texts = withAccessKeys(texts);
  for (qsizetype i = 0; i < entries.size(); ++i) entries[i]->setText(texts[i]);
}

} // namespace drafton
