#include "module/entry/class_table.h"

#include "catalog/catalog.h"
#include "catalog/database.h"
#include "catalog/foreign_tool_records.h"
#include "catalog/palette_manager.h"
#include "catalog/palette_ui.h"
#include "catalog/source.h"
#include "catalog/tool.h"
#include "catalog/tool_list.h"
#include "catalog/tool_palette.h"
#include "frame/error.h"
#include "frame/rx_class.h"
#include "images/image_list.h"
#include "module/catalog_item_list.h"
#include "module/item_order_list.h"
#include "module/properties.h"
#include "persistence/element_table.h"
#include "properties/line_type_element.h"
#include "properties/property_bag.h"
#include "properties/property_basic_info.h"
#include "properties/property_create_info.h"
#include "properties/property_filter.h"
#include "properties/property_reference.h"
#include "properties/symbol_table_record.h"
#include "support/data_file.h"
#include "support/print_text.h"
#include "tools/command_conveyor.h"
#include "tools/tool_data.h"

#include <gtest/gtest.h>

namespace {

using namespace tc;

struct ClassTableTest : testing::Test {
  const QStringList former = odrxClassNames();

  QStringList registered() const { return odrxClassNames().mid(former.size()); }
};

TEST_F(ClassTableTest, RegistersEachClassInOrderWithItsBaseAndFactory) {
  registerModuleClasses();
  QStringList found;
  for (const OdString& name : registered()) {
    const OdRxClass* const c = odrxFindClass(name);
    found << QStringLiteral("%1 %2 %3")
                 .arg(name, c->parent()->name(),
                      c->hasFactory() ? QStringLiteral("yes") : QStringLiteral("no"));
  }
  EXPECT_EQ(found, testhost::dataLines(QStringLiteral("entry/classes.txt")));
  unregisterModuleClasses();
  EXPECT_TRUE(registered().isEmpty());
}

TEST_F(ClassTableTest, EachFactoryMakesAnObjectOfItsClass) {
  registerModuleClasses();
  for (const OdString& name : registered()) {
    OdRxClass* const c = odrxFindClass(name);
    const OdRxObjectPtr made = c->create();
    ASSERT_EQ(bool(made), c->hasFactory()) << name.toStdString();
    if (!made) continue;
    EXPECT_TRUE(made->isKindOf(c)) << name.toStdString();
    EXPECT_EQ(made->numRefs(), 1) << name.toStdString();
  }
  unregisterModuleClasses();
}

TEST_F(ClassTableTest, ASecondRegistrationRaisesAndChangesNothing) {
  registerModuleClasses();
  const QStringList before = odrxClassNames();
  try {
    registerModuleClasses();
    FAIL() << "no error";
  } catch (const OdError& error) {
    EXPECT_EQ(error.code(), 313);
  }
  EXPECT_EQ(odrxClassNames(), before);
  unregisterModuleClasses();
}

TEST_F(ClassTableTest, AnUnregisteredClassRaisesWhenItIsDeleted) {
  try {
    unregisterModuleClasses();
    FAIL() << "no error";
  } catch (const OdError& error) {
    EXPECT_EQ(error.code(), 255);
  }
}

TEST_F(ClassTableTest, CanBeRegisteredAnewAfterItWasDeleted) {
  for (int round = 0; round < 3; ++round) {
    registerModuleClasses();
    unregisterModuleClasses();
  }
  EXPECT_EQ(odrxClassNames(), former);
}

TEST_F(ClassTableTest, AFailureLeavesThePredecessorsRegistered) {
  OdRxClass* const squatter = newOdRxClass(QStringLiteral("OdTcTool"), OdRxObject::desc());
  EXPECT_THROW(registerModuleClasses(), OdError);
  EXPECT_EQ(registered(),
            QStringList({QStringLiteral("OdTcTool"), QStringLiteral("OdTcPersist"),
                         QStringLiteral("OdTcSymbolTableRecord"), QStringLiteral("OdTcCatalogItem"),
                         QStringLiteral("OdTcDatabase")}));
  deleteOdRxClass(squatter);
  OdTcPersist::rxUninit();
  OdTcSymbolTableRecord::rxUninit();
  OdTcCatalogItem::rxUninit();
  OdTcDatabase::rxUninit();
  EXPECT_TRUE(registered().isEmpty());
}

TEST_F(ClassTableTest, ObjectsLiveOnWithoutTheirClass) {
  registerModuleClasses();
  const OdRxObjectPtr tool = odrxFindClass(QStringLiteral("OdTcTool"))->create();
  unregisterModuleClasses();
  EXPECT_EQ(tool->isA(), nullptr);
}

// --- the order of deletion

struct Deletion {
  const char* name;
  void (*uninit)();
};
#define DELETION(Class)                                                                            \
  Deletion { #Class, &Class::rxUninit }

constexpr Deletion kDeletions[] = {
    DELETION(OdTcTool),
    DELETION(OdTcDatabase),
    DELETION(OdTcPersist),
    DELETION(OdTcSymbolTableRecord),
    DELETION(OdTcToolPalette),
    DELETION(OdTcPaletteManager),
    DELETION(OdTcPaletteUiProperties),
    DELETION(OdTcProperty),
    DELETION(OdTcDatabaseProperty),
    DELETION(OdTcPropertyBag),
    DELETION(OdTcImageList),
    DELETION(OdTcImage),
    DELETION(OdTcProperties),
    DELETION(OdTcToolCustomData),
    DELETION(OdTcToolFlyout),
    DELETION(OdTcStockToolRef),
    DELETION(OdTcToolData),
    DELETION(OdTcPropertyBasicInfo),
    DELETION(OdTcToolActionAgent),
    DELETION(OdTcToolCommand),
    DELETION(OdTcToolBlockCommand),
    DELETION(OdTcToolRasterCommand),
    DELETION(OdTcToolHatchCommand),
    DELETION(OdTcPropertyCreateInfo),
    DELETION(OdTcLineTypeElement),
    DELETION(OdTcComplexLineTypeElement),
    DELETION(OdTcPropertyFilter),
    DELETION(OdTcTextStyleTableRecordCollection),
    DELETION(OdTcPropertyReference),
    DELETION(OdTcToolOrderList),
    DELETION(OdTcCatalogItemOrderList),
    DELETION(OdTcToolSource),
    DELETION(OdTcCatalogView),
    DELETION(OdTcCatalogItem),
    DELETION(OdTcCatalog),
    DELETION(OdTcGroup),
    DELETION(OdTcList),
    DELETION(OdTcLineTypeElementsList),
    DELETION(OdTcToolList),
    DELETION(OdTcPaletteLoader),
    DELETION(OdTcPaletteLoaderList),
    DELETION(OdTcSource),
    DELETION(OdTcGroupContentList),
    DELETION(OdTcPaletteSoftRef),
    DELETION(OdTcGroupList),
    DELETION(OdTcCatalogItemList),
    DELETION(OdTcCommandConveyor),
};

TEST_F(ClassTableTest, DeletesInAnOrderOfItsOwn) {
  // A class that is gone already stops the walk at its place, with all before it deleted and all
  // behind it still there.
  for (std::size_t gap = 0; gap < std::size(kDeletions); ++gap) {
    registerModuleClasses();
    kDeletions[gap].uninit();
    EXPECT_THROW(unregisterModuleClasses(), OdError);
    for (std::size_t i = 0; i < std::size(kDeletions); ++i) {
      const bool isThere = odrxFindClass(QLatin1String(kDeletions[i].name)) != nullptr;
      EXPECT_EQ(isThere, i > gap) << kDeletions[i].name << " with the gap at " << gap;
      if (isThere) kDeletions[i].uninit();
    }
  }
  EXPECT_TRUE(registered().isEmpty());
}

// --- elements

struct ElementRowsTest : ClassTableTest {
  ElementRowsTest() { registerModuleClasses(); }
  ~ElementRowsTest() override { unregisterModuleClasses(); }
  const OdTcElementTable& table = OdTcElementTable::instance();
};

TEST_F(ElementRowsTest, EntersEachElementInOrder) {
  EXPECT_EQ(table.names(), testhost::dataLines(QStringLiteral("entry/elements.txt")));
}

TEST_F(ElementRowsTest, EachObjectWritesItselfUnderItsElement) {
  for (const OdString& name : table.names()) {
    const OdTcPersistPtr made = table.create(name);
    ASSERT_TRUE(made) << name.toStdString();
    EXPECT_EQ(made->numRefs(), 1) << name.toStdString();
    EXPECT_EQ(made->elementName(), name);
  }
}

TEST_F(ElementRowsTest, TheLaterRowOfDataStands) {
  EXPECT_EQ(table.create(QStringLiteral("Data"))->isA()->name(), QStringLiteral("OdTcToolData"));
  EXPECT_EQ(table.create(QStringLiteral("GeneralProperties"))->isA()->name(),
            QStringLiteral("OdTcPropertyBag"));
}

TEST_F(ElementRowsTest, PalettesAreLoadersAndReferences) {
  EXPECT_EQ(table.create(QStringLiteral("Palette"))->isA()->name(),
            QStringLiteral("OdTcPaletteLoader"));
  EXPECT_EQ(table.create(QStringLiteral("ToolPalette"))->isA()->name(),
            QStringLiteral("OdTcPaletteSoftRef"));
}

TEST_F(ElementRowsTest, LooksNamesUpWithTheirCase) {
  EXPECT_FALSE(table.contains(QStringLiteral("tool")));
  EXPECT_FALSE(table.contains(QStringLiteral("Dimtfillclr")));
  EXPECT_TRUE(table.contains(QStringLiteral("dimtfillclr")));
  EXPECT_FALSE(table.contains(QStringLiteral("LineType")));
  EXPECT_FALSE(table.create(QStringLiteral("Catalog")));
}

} // namespace
