#include "module/entry/module_functions.h"

#include "catalog/palette_manager.h"
#include "module/catalog_item.h"
#include "ui/palette_set.h"

namespace tc {

OdTcPaletteManager* odtcToolPaletteManager() { return OdTcPaletteManager::instance(); }

bool odtcToolPaletteVisible() { return isPaletteSetShown(); }

OdTcCatalogItem* odtcGetSelectedItem() {
  const ITcUiSelection* const selection = paletteSetPart<ITcUiSelection>();
  return selection ? selection->selectedItem() : nullptr;
}

void odtcInitReactor(OdTcCatalogItem* item) {
  ITcUiSelection* const selection = paletteSetPart<ITcUiSelection>();
  if (selection && item) item->addReactor(selection->itemReactor());
}

void odtcUninitReactor(OdTcCatalogItem* item) {
  ITcUiSelection* const selection = paletteSetPart<ITcUiSelection>();
  if (selection && item) item->removeReactor(selection->itemReactor());
}

} // namespace tc
