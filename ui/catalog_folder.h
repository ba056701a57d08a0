// Opening the catalog of a folder that the user chose.
#pragma once

#include "frame/string.h"

namespace tc {

/// Opens the catalog in a folder, a stored path. False, and the user is told, if the folder does
/// not hold a file of exactly a catalog's name.
bool openCatalogFolder(const OdString& folder);

} // namespace tc
