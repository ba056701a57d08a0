// Reads the root object of a catalog or palette file.
#pragma once

#include "persistence/filer.h"

namespace tc {

/// How the reading of a file went.
struct ReadOutcome {
  bool isRead = false;
  OdString problem; ///< why the file was not read, or not read whole; empty if all is well
};

/// Opens the file and lets `open` (openCatalog or openPalette) read `root` from it. What
/// is wrong with the file is told on the command line with the file's name, and not raised.
ReadOutcome readFile(const OdString& path, OdTcFiler& filer, OdTcPersist* root,
                     bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool));

} // namespace tc
