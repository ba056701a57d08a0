// Walks through groups in groups.
#pragma once

#include "catalog/group.h"
#include "persistence/document_check.h"

#include <QSet>

#include <vector>

namespace tc {

/// The first item of the list and of the groups in it, depth first, a group before its contents,
/// for which `isWanted(item, itsList)` holds; null if there is none. Depth costs no stack.
template <class Predicate>
OdTcCatalogItem* findDepthFirst(OdTcList* list, Predicate isWanted) {
  struct Place {
    OdTcList* list;
    int next;
  };
  std::vector<Place> path;
  if (list) path.push_back({list, 0});
  while (!path.empty()) {
    OdTcList* const current = path.back().list;
    if (path.back().next >= current->count()) {
      path.pop_back();
      continue;
    }
    OdTcCatalogItem* const item = current->at(path.back().next++);
    if (isWanted(item, current)) return item;
    if (const auto* group = odrxCast<OdTcGroup>(item)) path.push_back({group->contents(), 0});
  }
  return nullptr;
}

/// Groups nested deeper than this would make a file that is refused when it is read again. In a
/// file, `Catalog` and `Groups` stand above the groups, each group is two levels, its own and that
/// of its `Contents`, and the innermost one needs room for its properties, images and the like.
inline constexpr int kMaxGroupDepth = [] {
  constexpr int kLevelsAbove = 2, kLevelsOfAGroup = 2, kLevelsBelow = 14;
  return (kMaxElementDepth - kLevelsAbove - kLevelsBelow) / kLevelsOfAGroup;
}();
/// How many groups stand above the group, itself included.
int groupDepth(const OdTcGroup* group);
/// How many levels of groups the group makes, itself included.
int groupHeight(const OdTcGroup* group);

/// The ids to which soft references in the list and in the groups in it refer.
QSet<OdString> referencedIds(OdTcList* list);

/// The ids to which `item` refers: that of a soft reference, or all those in a group.
QSet<OdString> idsReferencedBy(const OdTcCatalogItem* item);

/// Sets the referenced flags of the palettes of `catalog` (may be null) with these ids.
void markReferenced(OdTcCatalog* catalog, const QSet<OdString>& ids);
/// Brings the referenced flags of palettes in line after `removed`, a soft reference or a group,
/// has left the groups of `catalog` (may be null).
void updateReferenced(OdTcCatalog* catalog, const OdTcCatalogItem* removed);

} // namespace tc
