#include "module/entry/element_rows.h"

#include "catalog/foreign_tool_records_impl.h"
#include "catalog/group_impl.h"
#include "catalog/group_lists_impl.h"
#include "catalog/palette_loader_impl.h"
#include "catalog/palette_soft_ref_impl.h"
#include "catalog/palette_ui_impl.h"
#include "catalog/source_impl.h"
#include "catalog/tool_impl.h"
#include "catalog/tool_list_impl.h"
#include "catalog/tool_order_list_impl.h"
#include "images/image_impl.h"
#include "images/image_list_impl.h"
#include "module/item_order_list_impl.h"
#include "persistence/element_table.h"
#include "properties/create_infos.h"
#include "properties/dim_style_parts.h"
#include "properties/dim_style_table_record_impl.h"
#include "properties/general_properties.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_element_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/properties_impl.h"
#include "properties/property_bag_impl.h"
#include "properties/property_basic_info_impl.h"
#include "properties/property_reference_impl.h"
#include "properties/text_style_table_record_impl.h"
#include "tools/block_tool.h"
#include "tools/command_tool.h"
#include "tools/gradient_colors.h"
#include "tools/hatch_tool.h"
#include "tools/raster_tool.h"
#include "tools/tool_data_impl.h"
#include "tools/unsupported_tools.h"

namespace tc {
namespace {

struct Row {
  QStringView element;
  OdTcElementTable::Creator creator;
};

template <class Impl>
OdTcPersist* make() {
  return new Impl;
}

// `Data` stands twice: it began as a bag, and the later row makes tool data of it. `Palette` and
// `ToolPalette` are what a catalog says of a palette; the palette itself is never made from here.
constexpr Row kRows[] = {
    {u"Properties", make<OdTcPropertiesImpl>},
    {u"Images", make<OdTcImageListImpl>},
    {u"Image", make<OdTcImageImpl>},
    {u"Tools", make<OdTcToolListImpl>},
    {u"Tool", make<OdTcToolImpl>},
    {u"CustomData", make<OdTcToolCustomDataImpl>},
    {u"Flyout", make<OdTcToolFlyoutImpl>},
    {u"StockToolRef", make<OdTcStockToolRefImpl>},
    {u"Color", make<OdTcColorPropertyImpl>},
    {u"Layer", make<OdTcLayerPropertyImpl>},
    {u"Linetype", make<OdTcLineTypePropertyImpl>},
    {u"LinetypeTableRecord", make<OdTcLineTypeTableRecordImpl>},
    {u"LayerTableRecord", make<OdTcLayerTableRecordImpl>},
    {u"LinetypeScale", make<OdTcLineTypeScalePropertyImpl>},
    {u"PlotStyle", make<OdTcPlotStylePropertyImpl>},
    {u"LineWeight", make<OdTcLineWeightPropertyImpl>},
    {u"Transparency", make<OdTcTransparencyPropertyImpl>},
    {u"Textstyle", make<OdTcTextStylePropertyImpl>},
    {u"Dimstyle", make<OdTcDimStylePropertyImpl>},
    {u"Tablestyle", make<OdTcTableStylePropertyImpl>},
    {u"Data", make<OdTcPropertyBagImpl>},
    {u"Data", make<OdTcToolDataImpl>},
    {u"GeneralProperties", make<OdTcPropertyBagImpl>},
    {u"BasicPropInfo", make<OdTcPropertyBasicInfoImpl>},
    {u"Command", make<OdTcToolCommandImpl>},
    {u"Block", make<OdTcToolBlockCommandImpl>},
    {u"Raster", make<OdTcToolRasterCommandImpl>},
    {u"ColorCreateInfo", make<OdTcColorPropertyCreateInfoImpl>},
    {u"LayerCreateInfo", make<OdTcLayerPropertyCreateInfoImpl>},
    {u"LineTypeCreateInfo", make<OdTcLineTypePropertyCreateInfoImpl>},
    {u"LinetypeElements", make<OdTcLineTypeElementsListImpl>},
    {u"LinetypeElement", make<OdTcLineTypeElementImpl>},
    {u"ComplexLinetypeElement", make<OdTcComplexLineTypeElementImpl>},
    {u"TextstyleTableRecordCollection", make<OdTcTextStyleTableRecordCollectionImpl>},
    {u"TextstyleTableRecord", make<OdTcTextStyleTableRecordImpl>},
    {u"Reference", make<OdTcPropertyReferenceImpl>},
    {u"TextStyleCreateInfo", make<OdTcTextStylePropertyCreateInfoImpl>},
    {u"DimStyleCreateInfo", make<OdTcDimStylePropertyCreateInfoImpl>},
    {u"DimstyleTableRecord", make<OdTcDimStyleTableRecordImpl>},
    {u"Dimclrd", make<OdTcDimclrdImpl>},
    {u"Dimclre", make<OdTcDimclreImpl>},
    {u"Dimclrt", make<OdTcDimclrtImpl>},
    {u"dimtfillclr", make<OdTcDimtfillclrImpl>},
    {u"Dimtxsty", make<OdTcDimStyleTextImpl>},
    {u"PaletteUI", make<OdTcPaletteUiImpl>},
    {u"CAcTcUiToolPalette", make<OdTcPaletteUiPropertiesImpl>},
    {u"CatalogView", make<OdTcCatalogViewImpl>},
    {u"ToolSource", make<OdTcToolSourceImpl>},
    {u"ToolOrder", make<OdTcToolOrderListImpl>},
    {u"CatalogItemOrder", make<OdTcCatalogItemOrderListImpl>},
    {u"Palette", make<OdTcPaletteLoaderImpl>},
    {u"Palettes", make<OdTcPaletteLoaderListImpl>},
    {u"Source", make<OdTcSourceImpl>},
    {u"Contents", make<OdTcGroupContentListImpl>},
    {u"ToolPaletteGroup", make<OdTcGroupImpl>},
    {u"ToolPalette", make<OdTcPaletteSoftRefImpl>},
    {u"Groups", make<OdTcGroupListImpl>},
    {u"Hatch", make<OdTcToolHatchCommandImpl>},
    {u"GradientColors", make<OdTcGradientColorsImpl>},
    {u"GradientColor", make<OdTcGradientColorImpl>},
    {u"VisualStyle", make<OdTcToolVisualStyleCommandImpl>},
    {u"Light", make<OdTcToolLightCommandImpl>},
    {u"MLeader", make<OdTcToolMLeaderCommandImpl>},
    {u"Table", make<OdTcToolTableCommandImpl>},
    {u"DimLineType", make<OdTcDimLineTypeImpl>},
    {u"ExtLine1LineType", make<OdTcExtLine1LineTypeImpl>},
    {u"ExtLine2LineType", make<OdTcExtLine2LineTypeImpl>},
};

} // namespace

void enterElementRows(OdTcElementTable& table) {
  table.defer(OdTcImageListImpl::kPlain);
  for (const Row& row : kRows) table.add(row.element.toString(), row.creator);
}

} // namespace tc
