// A folder of other people, in which files are looked for.
#pragma once

#include "frame/string.h"

#include <QHash>

namespace tc {

/// Finds files by paths that stand in other files: without regard to case, in every folder on the
/// way. What it finds lies in the folder indeed, wherever links lead, and is a file that can be
/// read to its end. The folder's contents are read once.
class ForeignFolder {
 public:
  /// A stored path.
  explicit ForeignFolder(const OdString& folder);

  struct Found {
    OdString path;          ///< the stored path; empty if there is no such file
    bool isRefused = false; ///< something of that name is there, but elsewhere or no file
  };
  /// Takes a path as insidePath gives it.
  Found find(const OdString& inside);

 private:
  OdString nameIn(const OdString& folder, const OdString& wanted);

  OdString m_folder;    ///< as the platform has it
  OdString m_realPlace; ///< where it lies if links are followed
  QHash<OdString, QHash<OdString, OdString>> m_folded;
};

} // namespace tc
