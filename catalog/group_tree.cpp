#include "catalog/group_tree.h"

#include "catalog/catalog.h"
#include "catalog/tool_palette.h"

namespace tc {

bool removeFromSubtree(OdTcList* list, const OdString& id) {
  const bool isHere = list->remove(id);
  std::vector<OdTcList*> lists = {list};
  while (!lists.empty()) {
    OdTcList* const current = lists.back();
    lists.pop_back();
    for (int i = 0; i < current->count(); ++i) {
      const auto* group = odrxCast<OdTcGroup>(current->at(i));
      if (!group) continue;
      group->contents()->remove(id);
      lists.push_back(group->contents());
    }
  }
  return isHere;
}

bool isReferencedInSubtree(const OdTcList* list, const OdString& id) {
  return findDepthFirst(const_cast<OdTcList*>(list), [&](OdTcCatalogItem* item, OdTcList*) {
    return item->isKindOf(OdTcPaletteSoftRef::desc()) && item->id() == id;
  });
}

int groupDepth(const OdTcGroup* group) {
  int depth = 0;
  for (const OdTcPersist* above = group; above; above = above->owner())
    if (above->isKindOf(OdTcGroup::desc())) ++depth;
  return depth;
}

int groupHeight(const OdTcGroup* group) {
  int height = 0;
  std::vector<const OdTcGroup*> level = {group};
  while (!level.empty()) {
    ++height;
    std::vector<const OdTcGroup*> next;
    for (const OdTcGroup* above : level)
      for (int i = 0; i < above->contents()->count(); ++i)
        if (const auto* below = odrxCast<OdTcGroup>(above->contents()->at(i)))
          next.push_back(below);
    level.swap(next);
  }
  return height;
}

QSet<OdString> referencedIds(OdTcList* list) {
  QSet<OdString> ids;
  findDepthFirst(list, [&](OdTcCatalogItem* item, OdTcList*) {
    if (item->isKindOf(OdTcPaletteSoftRef::desc())) ids.insert(item->id());
    return false;
  });
  return ids;
}

QSet<OdString> idsReferencedBy(const OdTcCatalogItem* item) {
  if (const auto* group = odrxCast<OdTcGroup>(item)) return referencedIds(group->contents());
  if (item->isKindOf(OdTcPaletteSoftRef::desc())) return {item->id()};
  return {};
}

void markReferenced(OdTcCatalog* catalog, const QSet<OdString>& ids) {
  if (!catalog) return;
  for (const OdString& id : ids)
    if (OdTcToolPalette* const palette = catalog->findPalette(id)) palette->setReferenced(true);
}

void updateReferenced(OdTcCatalog* catalog, const OdTcCatalogItem* removed) {
  if (!catalog) return;
  QSet<OdString> lost = idsReferencedBy(removed);
  if (lost.isEmpty()) return;
  lost -= referencedIds(catalog->groups());
  for (const OdString& id : lost)
    if (OdTcToolPalette* const palette = catalog->findPalette(id)) palette->setReferenced(false);
}

} // namespace tc
