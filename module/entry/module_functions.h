// The functions that the module exports for its host.
#pragma once

#include "module/export.h"

namespace tc {

class OdTcCatalogItem;
class OdTcPaletteManager;

/// The manager of the catalogs, without a new reference; null before the module's start.
TC_API OdTcPaletteManager* odtcToolPaletteManager();
/// True if the palette window is to be seen.
TC_API bool odtcToolPaletteVisible();
/// The item that is selected in the palette window; null without a window or a selection.
TC_API OdTcCatalogItem* odtcGetSelectedItem();
/// Lets the palette window hear of the item's changes, or stops that. Nothing happens without a
/// window or an item.
TC_API void odtcInitReactor(OdTcCatalogItem* item);
TC_API void odtcUninitReactor(OdTcCatalogItem* item);

} // namespace tc
