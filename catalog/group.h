// The tree of groups and what stands in it.
#pragma once

#include "module/list.h"

#include <cstdint>

namespace tc {

class OdTcToolPalette;

/// What a group contains: groups and soft references. Element `Contents`.
class OdTcGroupContentList : public OdTcList {
  ODRX_DECLARE_MEMBERS(OdTcGroupContentList);
};

/// The top-level groups of a catalog. Element `Groups`.
class OdTcGroupList : public OdTcList {
  ODRX_DECLARE_MEMBERS(OdTcGroupList);
};

/// A group. Element `ToolPaletteGroup`.
class OdTcGroup : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS_EX(OdTcGroup, TC_API);

 public:
  /// The index of the palette shown when the group is active; -1 if none was activated yet.
  virtual std::int32_t activePaletteIndex() const = 0;
  virtual void setActivePaletteIndex(std::int32_t index) = 0;
  virtual OdTcGroupContentList* contents() const = 0;
};
using OdTcGroupPtr = OdSmartPtr<OdTcGroup>;

/// A reference to a palette by its id. Element `ToolPalette` inside `Contents`.
///
/// `id` and `setId` are those of the palette, so that every lookup by id finds the reference by its
/// palette's id.
class OdTcPaletteSoftRef : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS(OdTcPaletteSoftRef);

 public:
  /// The palette of that id in the owning catalog, or null.
  virtual OdTcToolPalette* resolve() const = 0;
};
using OdTcPaletteSoftRefPtr = OdSmartPtr<OdTcPaletteSoftRef>;

/// Removes `id` from the list and from the groups in it, depth first, telling no reactors. True if
/// this level of the list held it.
bool removeFromSubtree(OdTcList* list, const OdString& id);
/// True if a soft reference to the palette `id` stands anywhere in the list or in the groups in it.
bool isReferencedInSubtree(const OdTcList* list, const OdString& id);

} // namespace tc
