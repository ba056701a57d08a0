// The drawings that tools bring their contents from.
#pragma once

#include "drawing/database.h"

#include <vector>

namespace tc {

/// Reads source drawings for whoever looks into many tools one after the other: tools of a palette
/// often share a source, which is then read once. Only the last few stay in memory.
class OdTcSourceDrawings {
 public:
  /// The drawing of a stored path, borrowed until the next call; null if it cannot be read.
  OdDbDatabase* open(const OdString& path);
  /// Why the drawing that was asked for not long ago cannot be read; empty otherwise.
  OdString problemOf(const OdString& path) const;

 private:
  struct Entry {
    OdString path;
    OdDbDatabasePtr drawing;
    OdString problem;
  };
  std::vector<Entry> m_entries; ///< the last one used is the last
};

} // namespace tc
