#include "module/catalog_item_list.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcCatalogItemList, OdTcPersist, "OdTcCatalogItemList");

OdTcEnumPtr<OdTcCatalogItem> OdTcCatalogItemListImpl::items() const {
  return odrxMake<OdTcEnumImpl<OdTcCatalogItem, std::vector<OdTcCatalogItemPtr>>>(this, m_items);
}

void OdTcCatalogItemListImpl::add(OdTcCatalogItem* item) {
  if (item) m_items.emplace_back(item);
}

} // namespace tc
