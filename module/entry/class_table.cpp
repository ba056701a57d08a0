#include "module/entry/class_table.h"

#include "catalog/catalog_impl.h"
#include "catalog/database.h"
#include "catalog/database_impl.h"
#include "catalog/foreign_tool_records_impl.h"
#include "catalog/group_impl.h"
#include "catalog/group_lists_impl.h"
#include "catalog/palette_loader_impl.h"
#include "catalog/palette_manager_impl.h"
#include "catalog/palette_soft_ref_impl.h"
#include "catalog/palette_ui_impl.h"
#include "catalog/picture_use.h"
#include "catalog/source_impl.h"
#include "catalog/tool_impl.h"
#include "catalog/tool_list_impl.h"
#include "catalog/tool_palette_impl.h"
#include "images/image_home.h"
#include "images/image_impl.h"
#include "images/image_list_impl.h"
#include "module/catalog_item_list.h"
#include "module/entry/element_rows.h"
#include "persistence/element_table.h"
#include "properties/create_infos.h"
#include "properties/general_properties.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_element_impl.h"
#include "properties/properties_impl.h"
#include "properties/property_bag_impl.h"
#include "properties/property_basic_info_impl.h"
#include "properties/property_filter_impl.h"
#include "properties/property_reference.h"
#include "tools/block_tool.h"
#include "tools/command_conveyor_impl.h"
#include "tools/command_tool.h"
#include "tools/hatch_tool.h"
#include "tools/raster_tool.h"
#include "tools/tool_data_impl.h"

namespace tc {
namespace {

/// One class.
struct ClassRow {
  void (*init)(OdRxModule*);
  void (*uninit)();
  OdRxFactory* factorySlot;
  OdRxFactory factory;
};

/// An abstract class.
#define TC_CLASS(Class)                                                                            \
  ClassRow { &Class::rxInit, &Class::rxUninit, &Class::s_factory, nullptr }
/// A class whose objects are made as Impl.
#define TC_CLASS_OF(Class, Impl)                                                                   \
  ClassRow { &Class::rxInit, &Class::rxUninit, &Class::s_factory, &odrxFactory<Impl> }

// In the order of registration. A class that stands for a family makes the plainest of its members.
const ClassRow kClasses[] = {
    TC_CLASS(OdTcPersist),
    TC_CLASS_OF(OdTcSymbolTableRecord, OdTcLayerTableRecordImpl),
    TC_CLASS(OdTcCatalogItem),
    TC_CLASS_OF(OdTcDatabase, OdTcDatabaseImpl),
    TC_CLASS_OF(OdTcTool, OdTcToolImpl),
    TC_CLASS_OF(OdTcToolPalette, OdTcToolPaletteImpl),
    TC_CLASS_OF(OdTcPaletteManager, OdTcPaletteManagerImpl),
    TC_CLASS_OF(OdTcPaletteUiProperties, OdTcPaletteUiPropertiesImpl),
    TC_CLASS_OF(OdTcProperty, OdTcColorPropertyImpl),
    TC_CLASS_OF(OdTcDatabaseProperty, OdTcColorPropertyImpl),
    TC_CLASS_OF(OdTcPropertyBag, OdTcPropertyBagImpl),
    TC_CLASS_OF(OdTcPropertyFilter, OdTcPropertyFilterImpl),
    TC_CLASS_OF(OdTcImageList, OdTcImageListImpl),
    TC_CLASS_OF(OdTcImage, OdTcImageImpl),
    TC_CLASS_OF(OdTcProperties, OdTcPropertiesImpl),
    TC_CLASS(OdTcToolCustomData),
    TC_CLASS(OdTcToolFlyout),
    TC_CLASS(OdTcStockToolRef),
    TC_CLASS_OF(OdTcToolData, OdTcToolDataImpl),
    TC_CLASS_OF(OdTcPropertyBasicInfo, OdTcPropertyBasicInfoImpl),
    TC_CLASS(OdTcToolActionAgent),
    TC_CLASS_OF(OdTcToolCommand, OdTcToolCommandImpl),
    TC_CLASS_OF(OdTcToolBlockCommand, OdTcToolBlockCommandImpl),
    TC_CLASS_OF(OdTcToolRasterCommand, OdTcToolRasterCommandImpl),
    TC_CLASS_OF(OdTcToolHatchCommand, OdTcToolHatchCommandImpl),
    TC_CLASS_OF(OdTcPropertyCreateInfo, OdTcColorPropertyCreateInfoImpl),
    TC_CLASS_OF(OdTcLineTypeElement, OdTcLineTypeElementImpl),
    TC_CLASS_OF(OdTcComplexLineTypeElement, OdTcComplexLineTypeElementImpl),
    TC_CLASS_OF(OdTcTextStyleTableRecordCollection, OdTcTextStyleTableRecordCollectionImpl),
    TC_CLASS(OdTcPropertyReference),
    TC_CLASS(OdTcToolOrderList),
    TC_CLASS(OdTcCatalogItemOrderList),
    TC_CLASS(OdTcToolSource),
    TC_CLASS(OdTcCatalogView),
    TC_CLASS_OF(OdTcList, OdTcGroupContentListImpl),
    TC_CLASS_OF(OdTcLineTypeElementsList, OdTcLineTypeElementsListImpl),
    TC_CLASS_OF(OdTcToolList, OdTcToolListImpl),
    TC_CLASS_OF(OdTcCatalog, OdTcCatalogImpl),
    TC_CLASS_OF(OdTcGroup, OdTcGroupImpl),
    TC_CLASS_OF(OdTcPaletteLoader, OdTcPaletteLoaderImpl),
    TC_CLASS_OF(OdTcPaletteLoaderList, OdTcPaletteLoaderListImpl),
    TC_CLASS_OF(OdTcSource, OdTcSourceImpl),
    TC_CLASS_OF(OdTcGroupContentList, OdTcGroupContentListImpl),
    TC_CLASS_OF(OdTcPaletteSoftRef, OdTcPaletteSoftRefImpl),
    TC_CLASS_OF(OdTcGroupList, OdTcGroupListImpl),
    TC_CLASS_OF(OdTcCatalogItemList, OdTcCatalogItemListImpl),
    TC_CLASS_OF(OdTcCommandConveyor, OdTcCommandConveyorImpl),
};

// Bases go before their derived classes here and there; the objects of either live on without them.
constexpr void (*kDeletions[])() = {
    &OdTcTool::rxUninit,
    &OdTcDatabase::rxUninit,
    &OdTcPersist::rxUninit,
    &OdTcSymbolTableRecord::rxUninit,
    &OdTcToolPalette::rxUninit,
    &OdTcPaletteManager::rxUninit,
    &OdTcPaletteUiProperties::rxUninit,
    &OdTcProperty::rxUninit,
    &OdTcDatabaseProperty::rxUninit,
    &OdTcPropertyBag::rxUninit,
    &OdTcImageList::rxUninit,
    &OdTcImage::rxUninit,
    &OdTcProperties::rxUninit,
    &OdTcToolCustomData::rxUninit,
    &OdTcToolFlyout::rxUninit,
    &OdTcStockToolRef::rxUninit,
    &OdTcToolData::rxUninit,
    &OdTcPropertyBasicInfo::rxUninit,
    &OdTcToolActionAgent::rxUninit,
    &OdTcToolCommand::rxUninit,
    &OdTcToolBlockCommand::rxUninit,
    &OdTcToolRasterCommand::rxUninit,
    &OdTcToolHatchCommand::rxUninit,
    &OdTcPropertyCreateInfo::rxUninit,
    &OdTcLineTypeElement::rxUninit,
    &OdTcComplexLineTypeElement::rxUninit,
    &OdTcPropertyFilter::rxUninit,
    &OdTcTextStyleTableRecordCollection::rxUninit,
    &OdTcPropertyReference::rxUninit,
    &OdTcToolOrderList::rxUninit,
    &OdTcCatalogItemOrderList::rxUninit,
    &OdTcToolSource::rxUninit,
    &OdTcCatalogView::rxUninit,
    &OdTcCatalogItem::rxUninit,
    &OdTcCatalog::rxUninit,
    &OdTcGroup::rxUninit,
    &OdTcList::rxUninit,
    &OdTcLineTypeElementsList::rxUninit,
    &OdTcToolList::rxUninit,
    &OdTcPaletteLoader::rxUninit,
    &OdTcPaletteLoaderList::rxUninit,
    &OdTcSource::rxUninit,
    &OdTcGroupContentList::rxUninit,
    &OdTcPaletteSoftRef::rxUninit,
    &OdTcGroupList::rxUninit,
    &OdTcCatalogItemList::rxUninit,
    &OdTcCommandConveyor::rxUninit,
};
static_assert(std::size(kDeletions) == std::size(kClasses));

} // namespace

void registerModuleClasses(OdRxModule* application) {
  OdTcElementTable::setBuilder(&enterElementRows);
  setImageHome({[](const OdTcDatabase* database) { return database->getPath(); },
                [](const OdTcDatabase* database) { return database->isExporting(); },
                [](OdTcDatabase* database, const OdString& problem) {
                  database->noteUnsavedPicture(problem);
                },
                &picturesStillShown});
  for (const ClassRow& row : kClasses) {
    *row.factorySlot = row.factory;
    row.init(application);
  }
}

void unregisterModuleClasses() {
  for (const auto uninit : kDeletions) uninit();
}

} // namespace tc
