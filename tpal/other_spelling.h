// Files that are called otherwise in upper and lower case.
#pragma once

#include "frame/string.h"

#include <QHash>

#include <optional>

namespace tpal {

/// Finds the files that paths would lead to if upper and lower case were the same. Catalogs travel
/// from systems where they are to such where they are not. Each folder is read once.
class OtherSpelling {
 public:
  /// Words to be put behind "there is no file ...": empty if there is none that is spelled
  /// otherwise either. Paths of other systems are not looked for.
  OdString hint(const OdString& path);

 private:
  /// A path as it stands on the disk; nothing if it does not.
  std::optional<OdString> onDisk(const OdString& platformPath);

  using Names = QHash<OdString, OdString>; ///< by their small letters
  QHash<OdString, Names> m_folders;
};

} // namespace tpal
