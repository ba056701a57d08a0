// The keywords of one prompt.
#pragma once

#include "frame/string.h"

#include <optional>

namespace drafton {

/// Keywords such as "Close", "Undo" or "2P", abbreviated by their capitals.
class KeywordList {
 public:
  KeywordList() = default;
  /// `words` are separated by blanks.
  explicit KeywordList(QStringView words);

  bool isEmpty() const { return m_words.isEmpty(); }
  const QStringList& words() const { return m_words; }
  /// The keyword that `typed` means, without regard to case and with a leading `_` passed over: the
  /// whole word, or a beginning of it that covers at least its capitals (for "eXit" also the
  /// capitals alone). None if no keyword, or more than one, is meant.
  std::optional<OdString> match(QStringView typed) const;
  /// "Close/Undo"
  OdString shown() const { return m_words.join(u'/'); }

 private:
  QStringList m_words;
};

} // namespace drafton
