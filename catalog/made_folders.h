// Folders that are made for something that may not come about.
#pragma once

#include "frame/string.h"

namespace tc {

/// Notes which folders on the way to one are not there yet, and removes them at its end if they are
/// empty, unless they are to be kept.
class MadeFolders {
 public:
  explicit MadeFolders(const OdString& folder);
  ~MadeFolders();
  MadeFolders(const MadeFolders&) = delete;
  MadeFolders& operator=(const MadeFolders&) = delete;

  void keep() { m_missing.clear(); }

 private:
  QStringList m_missing; ///< the innermost first, as the platform has them
};

} // namespace tc
