// A file that a new one is to take the place of.
#pragma once

#include "drawing/file_stamp.h"

/// Watches over what stands in a place while its replacement is written.
class OdDbReplacedFile {
 public:
  /// Looks at the file of a stored path, which may be missing. Raises OdFileError if it is a
  /// folder, a device or a pipe, of which nothing would be left but the new file, or if another
  /// program has locked it.
  explicit OdDbReplacedFile(const OdString& path);

  /// To be called right before the new file gets its place. Raises OdFileError if another program
  /// has changed, replaced, removed or locked the old one meanwhile.
  void expectUntouched() const;

 private:
  void expectUnlocked() const;

  OdDbFileStamp m_stamp;
};
