#include "catalog/palette_manager.h"

namespace tc {
namespace {

OdTcPaletteManagerPtr& theManager() {
  static OdTcPaletteManagerPtr manager;
  return manager;
}

} // namespace

OdTcPaletteManager* OdTcPaletteManager::instance() { return theManager(); }
void OdTcPaletteManager::setInstance(const OdTcPaletteManagerPtr& manager) {
  theManager() = manager;
}

} // namespace tc
