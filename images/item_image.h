// The pictures that a user chooses for an item.
#pragma once

#include "frame/string.h"

namespace tc {

class OdTcCatalogItem;

/// Gives a tool, palette, group or catalog the picture of a file (a stored path) in the three sizes
/// that every item has, and marks it modified. The files of its former pictures go, but for those
/// that another item shows. False, with nothing changed, if the file cannot be read.
bool setImage(OdTcCatalogItem& item, const OdString& path);

} // namespace tc
