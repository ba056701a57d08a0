// Pictures in a library of another program, which nobody here can open.
#pragma once

#include "catalog/import_report.h"
#include "catalog/tool.h"
#include "images/image_list.h"
#include "tools/source_files.h"

namespace tc {

/// True if the picture lies in the library in which the other program keeps those of its own tools.
bool isInForeignLibrary(const OdTcImage& image);

/// Makes the sizes that every tool has and that the list lacks, from the largest picture that it
/// has a file of.
void addMissingSizes(OdTcImageList& images);

/// Puts pictures of our own in the place of those in the library: of what the tool brings in, the
/// button of its command, or its other pictures in another size. Says in the row what came of it;
/// where nothing does, the pictures stay, and are missing.
void replaceLibraryPictures(OdTcTool& tool, OdTcSourceFiles& sources, OdTcImportedTool& row);

} // namespace tc
