// The macros that stand for folders of this machine.
#pragma once

#include "frame/string.h"

#include <optional>
#include <vector>

namespace tc {

struct OdTcPathMacro {
  OdString text;
  /// The folders that it stands for; the first one is what it expands to.
  QStringList values;
};

/// All macros in ascending order of text, with the values of this moment; nothing if the user's
/// folder is unknown. A setting that is not there, or empty, is no value: every path holds it.
std::optional<std::vector<OdTcPathMacro>> pathMacros();

/// While it lives, the macros have the values of the first time that they are asked for: one file
/// is read or written with the same folders from beginning to end, and the host is asked once.
class HeldPathMacros {
 public:
  /// `file` is the stored path of what is read or written, or of anything else in its folder.
  explicit HeldPathMacros(const OdString& file);
  ~HeldPathMacros();
  HeldPathMacros(const HeldPathMacros&) = delete;
  HeldPathMacros& operator=(const HeldPathMacros&) = delete;

 private:
  const bool m_isOutermost;
  OdString m_file;
};

/// The file that is being read or written; empty if none is.
const OdString& fileOfPathMacros();

} // namespace tc
