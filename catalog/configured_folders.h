// Which catalog files the host is configured to load.
#pragma once

#include "frame/string.h"

namespace tc {

/// The one form of a catalog's path under which the manager keeps it: `\` between folders, "." and
/// ".." and doubled separators taken out.
OdString catalogKey(const OdString& path);
/// The key of the catalog file in a folder.
OdString catalogKeyOfFolder(const OdString& folder);

/// The keys of the catalog files in the folders of the setting `ToolPaletteDir`, in order. Blanks
/// around a folder are not part of it, and a folder that stands there twice counts once. An empty
/// setting is one folder without a name.
QStringList configuredCatalogFiles();

} // namespace tc
