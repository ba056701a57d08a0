// Files that other programs write as well.
#pragma once

#include "frame/string.h"

#include <QDateTime>

namespace tc {

/// A file as it was when it was last read or written here. Catalogs lie on folders that many share:
/// what somebody else has written since is not to be lost.
class FileStamp {
 public:
  /// Takes the file as it is now; before it is read, so that a change meanwhile counts as one.
  void note(const OdString& path);
  /// True if the file is another one than was noted, or is gone. False for any other path.
  bool isChanged(const OdString& path) const;
  /// Copies a changed file into the folder `Replaced` of the module's base folder, and says so on
  /// the command line. Raises OdFileError if the copy fails: the file must then not be written
  /// over.
  void keepBefore(const OdString& target) const;

 private:
  struct State {
    qint64 bytes = -1; ///< below 0 without a file
    QDateTime time;
  };
  static State stateOf(const OdString& path);

  OdString m_path;
  State m_state;
};

} // namespace tc
