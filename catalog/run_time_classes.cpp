// The run-time class surface of this folder's interfaces.
#include "catalog/catalog.h"
#include "catalog/database.h"
#include "catalog/foreign_tool_records.h"
#include "catalog/palette_manager.h"
#include "catalog/palette_ui.h"
#include "catalog/source.h"
#include "catalog/tool.h"
#include "catalog/tool_list.h"
#include "catalog/tool_palette.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcPaletteManager, OdRxObject, "OdTcPaletteManager");

ODRX_DEFINE_MEMBERS(OdTcCatalog, OdTcCatalogItem, "OdTcCatalog");
ODRX_DEFINE_MEMBERS(OdTcGroup, OdTcCatalogItem, "OdTcGroup");
ODRX_DEFINE_MEMBERS(OdTcGroupContentList, OdTcList, "OdTcGroupContentList");
ODRX_DEFINE_MEMBERS(OdTcGroupList, OdTcList, "OdTcGroupList");
ODRX_DEFINE_MEMBERS(OdTcPaletteSoftRef, OdTcCatalogItem, "OdTcPaletteSoftRef");
ODRX_DEFINE_MEMBERS(OdTcPaletteLoader, OdTcCatalogItem, "OdTcPaletteLoader");
ODRX_DEFINE_MEMBERS(OdTcPaletteLoaderList, OdTcList, "OdTcPaletteLoaderList");
ODRX_DEFINE_MEMBERS(OdTcSource, OdTcPersist, "OdTcSource");

ODRX_DEFINE_MEMBERS(OdTcToolPalette, OdTcCatalogItem, "OdTcToolPalette");
ODRX_DEFINE_MEMBERS(OdTcDatabase, OdTcCatalogItem, "OdTcDatabase");
ODRX_DEFINE_MEMBERS(OdTcPaletteUiProperties, OdTcPersist, "OdTcPaletteUiProperties");
ODRX_DEFINE_MEMBERS(OdTcCatalogView, OdTcPersist, "OdTcCatalogView");
ODRX_DEFINE_MEMBERS(OdTcToolOrderList, OdTcPersist, "OdTcToolOrderList");
ODRX_DEFINE_MEMBERS(OdTcToolSource, OdTcPersist, "OdTcToolSource");

ODRX_DEFINE_MEMBERS(OdTcTool, OdTcCatalogItem, "OdTcTool");
ODRX_DEFINE_MEMBERS(OdTcToolList, OdTcList, "OdTcToolList");
ODRX_DEFINE_MEMBERS(OdTcToolCustomData, OdTcPersist, "OdTcToolCustomData");
ODRX_DEFINE_MEMBERS(OdTcToolFlyout, OdTcPersist, "OdTcToolFlyout");
ODRX_DEFINE_MEMBERS(OdTcStockToolRef, OdTcPersist, "OdTcStockToolRef");

} // namespace tc
