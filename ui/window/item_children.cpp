#include "ui/window/item_children.h"

#include "catalog/catalog.h"
#include "catalog/palette_ui.h"
#include "catalog/tool.h"
#include "tools/action_agent.h"

#include <QHash>

#include <algorithm>

namespace tc {
namespace {

/// The palette that a reference stands for, or the item itself; null for a reference to nothing, or
/// to what has not come yet.
OdTcCatalogItem* shownFor(OdTcCatalogItem* item) {
  if (!odrxCast<OdTcPaletteSoftRef>(item)) return item;
  const OdTcCatalog* const catalog = item->catalog();
  return catalog ? catalog->loading()->findSoFar(item->id()) : nullptr;
}

template <class T>
void append(TcUiItems& items, const OdTcEnumPtr<T>& source, bool withReferenced = true) {
  while (T* const next = source->next()) {
    OdTcCatalogItem* const item = shownFor(next);
    const auto* const palette = odrxCast<OdTcToolPalette>(item);
    if (item && (withReferenced || !palette || !palette->isReferenced())) items.push_back(item);
  }
}

/// Items that are listed come first, in the order of the list.
void sortByOrderList(TcUiItems& items, const OdArray<OdString>& order) {
  QHash<OdString, qsizetype> places;
  for (const OdString& id : order)
    if (!places.contains(id)) places.insert(id, places.size());
  if (places.isEmpty()) return;
  const auto placeOf = [&](const OdTcCatalogItem* item) {
    return places.value(item->id(), places.size());
  };
  std::stable_sort(items.begin(), items.end(),
                   [&](auto* a, auto* b) { return placeOf(a) < placeOf(b); });
}

OdString kindOf(const OdTcCatalogItem* item) {
  const auto* const tool = odrxCast<OdTcTool>(item);
  const OdTcToolActionAgent* const agent = tool ? tool->getActionAgent() : nullptr;
  return agent ? agent->elementName() : OdString();
}

TcUiItems toolsOf(const OdTcToolPalette& palette) {
  TcUiItems tools;
  append(tools, palette.enumTools());
  if (sortTools(tools, palette.getSortType())) return tools;
  OdArray<OdString> order;
  palette.getToolOrder(order);
  sortByOrderList(tools, order);
  return tools;
}

} // namespace

TcUiItems treeChildren(const OdTcCatalogItem& item) {
  if (const auto* const palette = odrxCast<OdTcToolPalette>(&item)) return toolsOf(*palette);
  TcUiItems items;
  if (const auto* const catalog = odrxCast<OdTcCatalog>(&item)) {
    append(items, catalog->groupsEnum());
    sortByOrderList(items, item.orderList());
    TcUiItems palettes;
    append(palettes, catalog->loading()->palettesSoFar(), false);
    sortByOrderList(palettes, item.orderList());
    items.insert(items.end(), palettes.begin(), palettes.end());
  } else if (odrxCast<OdTcGroup>(&item)) {
    append(items, item.children());
    sortByOrderList(items, item.orderList());
  }
  return items;
}

TcUiItems listChildren(const OdTcCatalogItem& item) {
  TcUiItems items = treeChildren(item);
  if (odrxCast<OdTcCatalog>(&item))
    std::stable_partition(items.begin(), items.end(),
                          [](auto* each) { return odrxCast<OdTcToolPalette>(each) != nullptr; });
  return items;
}

bool sortTools(TcUiItems& tools, std::int32_t mode) {
  if (mode != OdTcPaletteUi::kByName && mode != OdTcPaletteUi::kByType) return false;
  // Each name is made ready once: comparing them as they stand folds their case at every step.
  struct Keyed {
    OdString kind, name;
    OdTcCatalogItem* item;
  };
  std::vector<Keyed> keyed;
  keyed.reserve(tools.size());
  for (OdTcCatalogItem* const tool : tools)
    keyed.push_back({mode == OdTcPaletteUi::kByType ? kindOf(tool) : OdString(),
                     tool->name().toCaseFolded(), tool});
  std::stable_sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) {
    return a.kind != b.kind ? a.kind < b.kind : a.name < b.name;
  });
  std::transform(keyed.begin(), keyed.end(), tools.begin(), [](const Keyed& k) { return k.item; });
  return true;
}

} // namespace tc
