#include "module/catalog_item.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcCatalogItem, OdTcPersist, "OdTcCatalogItem");

} // namespace tc
