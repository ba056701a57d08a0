// The file behind an object that could not be read.
#pragma once

#include "frame/string.h"

namespace tc {

/// Remembers which file could not be read (whole), and why. The mark belongs to the file: it stays
/// while the object is saved to other places, and goes when the object is saved over the file.
class UnreadFile {
 public:
  /// Says how the reading of a file went; an empty reason says that all is well.
  void note(const OdString& path, const OdString& reason);
  bool isAt(const OdString& path) const;
  /// Why the file at the path could not be read; empty if it could, or is another one.
  OdString problemAt(const OdString& path) const { return isAt(path) ? m_reason : OdString(); }

  /// Keeps a copy of the file if it is the one that is about to be written over. One copy is
  /// enough, however often the writing fails. Raises OdFileError if the copy fails.
  void keepBefore(const OdString& target);
  /// Says that a file was written: if it is this one, all is well with it now.
  void noteWritten(const OdString& target);

 private:
  OdString m_path;
  OdString m_reason;
  bool m_isKept = false;
};

} // namespace tc
