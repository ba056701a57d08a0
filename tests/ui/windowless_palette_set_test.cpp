#include "ui/windowless_palette_set.h"

#include "catalog/palette_manager.h"
#include "support/module_fixture.h"

#include <QTemporaryDir>

namespace {

using testhost::host;
using namespace tc;

struct WindowlessPaletteSetTest : testhost::ModuleFixture {
  QTemporaryDir folder;
  WindowlessPaletteSet window;

  OdTcCatalogPtr openCatalog(OdString& path) {
    path = folder.filePath(QStringLiteral("DrfTcCatalog.dtc"));
    OdTcPaletteManager::instance()->openCatalog(path);
    OdTcCatalog* catalog = nullptr;
    OdTcPaletteManager::instance()->catalogsEnum()->next(path, catalog);
    return catalog;
  }
};

TEST_F(WindowlessPaletteSetTest, IsShownWhenItIsMadeAndHidesWhenItIsClosed) {
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_FALSE(window.isVisible());
  window.show(1, 0, 1);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(WindowlessPaletteSetTest, AnswersForItsParts) {
  void* part = &part;
  EXPECT_TRUE(window.queryInterface(ITcUiPaletteSet::kId, &part));
  EXPECT_EQ(part, static_cast<ITcUiPaletteSet*>(&window));
  EXPECT_TRUE(window.queryInterface(ITcUiSelection::kId, &part));
  EXPECT_EQ(part, static_cast<ITcUiSelection*>(&window));
  EXPECT_TRUE(window.queryInterface(ITcUiMenuBuilder::kId, &part));
  EXPECT_TRUE(window.queryInterface(ITcUiStateSaver::kId, &part));
  EXPECT_FALSE(window.queryInterface("ITcUiNoSuchThing", &part));
  EXPECT_EQ(part, nullptr);
}

TEST_F(WindowlessPaletteSetTest, KeepsASelectionThatIsStillLoaded) {
  OdString path;
  const OdTcCatalogPtr catalog = openCatalog(path);
  const OdTcGroupPtr group = OdTcGroup::createObject();
  catalog->groups()->add(group);
  window.select(group);
  window.refresh();
  EXPECT_EQ(window.selectedItem(), group.get());
}

TEST_F(WindowlessPaletteSetTest, ForgetsASelectionWhoseCatalogIsGone) {
  OdString path;
  OdTcCatalogPtr catalog = openCatalog(path);
  OdTcGroupPtr group = OdTcGroup::createObject();
  catalog->groups()->add(group);
  window.select(group);
  group = nullptr;
  catalog = nullptr;
  OdTcPaletteManager::instance()->removeCatalog(path);
  window.refresh();
  EXPECT_EQ(window.selectedItem(), nullptr);
}

TEST_F(WindowlessPaletteSetTest, ForgetsASelectionThatIsRemoved) {
  const OdTcGroupPtr group = OdTcGroup::createObject();
  const OdTcGroupPtr other = OdTcGroup::createObject();
  window.select(group);
  window.itemReactor()->itemRemoved(other);
  EXPECT_EQ(window.selectedItem(), group.get());
  window.itemReactor()->itemRemoved(group);
  EXPECT_EQ(window.selectedItem(), nullptr);
}

TEST_F(WindowlessPaletteSetTest, TheFlagIsRecordedForTheNextStart) {
  setPaletteSetShown(true);
  EXPECT_TRUE(isPaletteSetShown());
  testhost::TestProfile& startup = host().application.store->made(QStringLiteral("Startup"));
  EXPECT_TRUE(startup.values.contains(QStringLiteral("ToolPalettes")));
  clearPaletteSetShown();
  EXPECT_FALSE(isPaletteSetShown());
  EXPECT_TRUE(startup.values.contains(QStringLiteral("ToolPalettes")));
  setPaletteSetShown(false);
  EXPECT_FALSE(startup.values.contains(QStringLiteral("ToolPalettes")));
}

} // namespace
