// Typed text on its way to the command line, key by key.
#pragma once

#include "frame/string.h"

#include <deque>
#include <optional>

namespace drafton {

/// One key stroke.
struct Key {
  enum class Kind {
    kChar,
    kBlank,
    kEnter,
    kCancel,
    kPause, ///< the next answer comes from the user
  };
  Kind kind = Kind::kChar;
  QChar character;
  bool isUsers = false; ///< given by the user, not by a module
};

/// Text waiting to be taken up, in the order in which it was sent.
class KeyQueue {
 public:
  /// How the text is read. In both `^C` cancels, `^M` and a line break are Enter and a tabulator is
  /// a blank. A macro knows `;` as Enter and `\` as a pause as well; typed text holds them as they
  /// are, since paths and lists of folders are typed.
  enum class Meaning { kMacro, kTyped };
  /// Who gave the text. Macros of menus are the user's.
  enum class Giver { kUser, kProgram };

  void append(const OdString& text, Meaning meaning, Giver giver = Giver::kUser);
  bool isEmpty() const { return m_parts.empty(); }
  void clear() { m_parts.clear(); }
  /// True if the next key is a cancel.
  bool startsWithCancel() const;
  /// The next key; none if the queue is empty.
  std::optional<Key> take();
  /// Puts all that waits in `other` behind what waits here.
  void takeAll(KeyQueue& other);

 private:
  struct Part {
    OdString text;
    qsizetype position;
    Meaning meaning;
    Giver giver;
  };
  std::deque<Part> m_parts;
};

} // namespace drafton
