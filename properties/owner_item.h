// From a value to the item that it belongs to.
#pragma once

#include "module/catalog_item.h"

namespace tc {

/// The innermost item above `object`, or null.
inline OdTcCatalogItem* ownerItem(const OdTcPersist* object) {
  for (OdTcPersist* above = object->owner(); above && above != object; above = above->owner()) {
    if (auto* const item = dynamic_cast<OdTcCatalogItem*>(above)) return item;
    object = above;
  }
  return nullptr;
}

/// Tells the item that one of its values was edited.
inline void markOwnerItemModified(const OdTcPersist* object) {
  if (OdTcCatalogItem* const item = ownerItem(object)) item->setModified();
}

} // namespace tc
