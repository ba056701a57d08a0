// Writes the root object of a catalog or palette file.
#pragma once

#include "frame/system_services.h"
#include "persistence/filer.h"

namespace tc {

/// Opens the file in that way, lets `open` (openCatalog or openPalette) write `root`, and prints
/// the document into it. False if the filer fails; a file failure raises OdFileError. The file is
/// written in place: a failure on the way leaves it cut.
bool writeFile(const OdString& path, Oda::FileCreationDisposition creation, OdTcFiler& filer,
               OdTcPersist* root, bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool));

/// Empties a file that is there, and makes one that is not.
Oda::FileCreationDisposition creationFor(const OdString& path);

} // namespace tc
