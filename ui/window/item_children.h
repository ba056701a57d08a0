// What stands below an item of a catalog, as the tree and the list show it.
#pragma once

#include "module/catalog_item.h"

#include <cstdint>
#include <vector>

namespace tc {

/// Borrowed from their containers.
using TcUiItems = std::vector<OdTcCatalogItem*>;

/// Below a catalog its groups and then the palettes that are in no group, each in the catalog's
/// order; below a group what it contains, with the palettes themselves in place of the references
/// to them; below a palette its tools in the palette's order. A reference that leads nowhere is
/// left out, as are palettes that are still to be read, and a tool has nothing below it.
TcUiItems treeChildren(const OdTcCatalogItem& item);
/// The same for the list, which shows the palettes of a catalog before its groups.
TcUiItems listChildren(const OdTcCatalogItem& item);

/// Orders tools: 0 by name, 1 by kind and then by name, without regard to case. False, with nothing
/// changed, for any other mode.
bool sortTools(TcUiItems& tools, std::int32_t mode);

} // namespace tc
