// The keywords of one prompt.
#pragma once

#include "frame/string.h"

#include <optional>

namespace drafton {

/// Keywords such as "Close", "Undo" or "2P", abbreviated by their capitals. They are shown and
/// typed in the user's language; macros and scripts go on in English.
class KeywordList {
 public:
  KeywordList() = default;
  /// `words` are English and separated by blanks.
  explicit KeywordList(QStringView words);

  bool isEmpty() const { return m_words.isEmpty(); }
  const QStringList& words() const { return m_words; }
  /// The English keyword that `typed` means, without regard to case: the whole word, or a beginning
  /// of it that covers at least its capitals (for "eXit" also the capitals alone). A word of the
  /// user's language goes before an English one; behind a leading `_` only English ones count. None
  /// if no keyword, or more than one, is meant.
  std::optional<OdString> match(QStringView typed) const;
  /// "Close/Undo", in the user's language.
  OdString shown() const { return m_shownWords.join(u'/'); }
  /// An English keyword of the list in the user's language; another word stays as it is.
  OdString shownWord(const OdString& word) const;

 private:
  QStringList m_words;
  QStringList m_shownWords;
};

} // namespace drafton
