// The files that tools bring their contents from.
#pragma once

#include "drawing/database.h"

#include <QImage>

#include <vector>

namespace tc {

/// Reads source files for whoever looks into many tools one after the other: tools of a palette
/// often share a source, which is then read once. Only the last few stay in memory.
class OdTcSourceFiles {
 public:
  /// The drawing of a stored path, borrowed until the next call; null if it cannot be read.
  OdDbDatabase* drawing(const OdString& path);
  /// The picture of a stored path, reduced to what pictures of tools need; null if it cannot be
  /// read.
  QImage picture(const OdString& path);
  /// Why the file that was asked for not long ago cannot be read; empty otherwise.
  OdString problemOf(const OdString& path) const;

 private:
  struct Entry {
    OdString path;
    OdDbDatabasePtr drawing;
    QImage picture;
    OdString problem;
  };
  template <class Read>
  Entry& entry(const OdString& path, Read read);

  std::vector<Entry> m_entries; ///< the last one used is the last
};

} // namespace tc
