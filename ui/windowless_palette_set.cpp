#include "ui/windowless_palette_set.h"

#include "catalog/palette_manager.h"

namespace tc {
namespace {

bool isLoaded(const OdTcCatalog* wanted) {
  const OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  if (!manager || !wanted) return false;
  const OdSmartPtr<OdTcPaletteManager::CatalogEnum> catalogs = manager->catalogsEnum();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog))
    if (catalog == wanted) return true;
  return false;
}

} // namespace

bool WindowlessPaletteSet::queryInterface(std::string_view id, void** out) {
  *out = nullptr;
  if (id == ITcUiPaletteSet::kId) *out = static_cast<ITcUiPaletteSet*>(this);
  if (id == ITcUiSelection::kId) *out = static_cast<ITcUiSelection*>(this);
  if (id == ITcUiMenuBuilder::kId) *out = static_cast<ITcUiMenuBuilder*>(&m_menus);
  if (id == ITcUiStateSaver::kId) *out = static_cast<ITcUiStateSaver*>(&m_state);
  return *out != nullptr;
}

void WindowlessPaletteSet::show(int how, int, int) { m_isVisible = how != 0; }

void WindowlessPaletteSet::select(OdTcCatalogItem* item) {
  m_selected = item;
  m_catalog = item ? item->catalog() : nullptr;
}

void WindowlessPaletteSet::refresh() {
  if (m_selected && !isLoaded(m_catalog)) select(nullptr);
}

void WindowlessPaletteSet::itemRemoved(OdTcCatalogItem* item) {
  if (m_selected.get() == item) select(nullptr);
}

} // namespace tc
