// Writes the root object of a catalog or palette file.
#pragma once

#include "frame/system_services.h"
#include "persistence/filer.h"

#include <functional>

namespace tc {

/// Lets `open` (openCatalog or openPalette) make the document of `root`, then opens the file in
/// that way and prints the document into it. False if the filer fails; a file failure raises
/// OdFileError. The file is written in place: a failure while it is written leaves it cut, but one
/// before that leaves it whole.
bool writeFile(const OdString& path, Oda::FileCreationDisposition creation, OdTcFiler& filer,
               OdTcPersist* root, bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool));

/// Lets `write` write a file beside the path, and puts it in the path's place in one step, so that
/// a failure leaves what is there as it is. A file that may not be written is not replaced either.
/// Of a link, the file that it leads to is replaced. False if `write` is false; failures of files
/// raise OdFileError.
bool writeBeside(const OdString& path, const std::function<bool(const OdString& fresh)>& write);

/// Empties a file that is there, and makes one that is not.
Oda::FileCreationDisposition creationFor(const OdString& path);

} // namespace tc
