// The drawings that tools bring their contents from.
#pragma once

#include "drawing/database.h"

#include <vector>

namespace tc {

/// Reads source drawings for whoever looks into many tools one after the other: tools of a palette
/// often share a source, which is then read once. Only the last few stay in memory.
class OdTcSourceDrawings {
 public:
  /// The drawing of a stored path, borrowed until the next call; null if it cannot be read, and
  /// problem() then says why. A file that failed is not tried again.
  OdDbDatabase* open(const OdString& path);
  /// Why the last call gave nothing; empty if it did not.
  const OdString& problem() const { return m_problem; }

 private:
  struct Entry {
    OdString path;
    OdDbDatabasePtr drawing;
    OdString problem;
  };
  std::vector<Entry> m_entries; ///< the last one used is the last
  OdString m_problem;
};

} // namespace tc
