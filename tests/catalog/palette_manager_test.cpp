#include "catalog/palette_manager_impl.h"

#include "catalog/catalog_fixture.h"
#include "frame/file_path.h"

namespace {

using namespace testhost;

struct ManagerLog : OdTcPaletteManagerReactor {
  QStringList log;
  void catalogAdded(OdTcCatalog* catalog) override { note(u"added"_s, catalog); }
  void catalogRemoved(OdTcCatalog* catalog) override { note(u"removed"_s, catalog); }
  void catalogsChanged() override { log << u"changed"_s; }

 private:
  void note(const OdString& what, const OdTcCatalog* catalog) {
    log << what + u' ' + odpath::fileNameOf(odpath::folderOf(catalog->path()));
  }
};

struct PaletteManagerTest : CatalogFixture {
  OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  ManagerLog log;

  PaletteManagerTest() { manager->addReactor(&log); }
  ~PaletteManagerTest() override { setVisibleWindowRefresh(nullptr); }

  OdString defaultFolder() const { return stored(u"user\\ToolPalette"_s); }
  OdString defaultFile() const { return defaultFolder() + u"\\DrfTcCatalog.dtc"_s; }
  void configure(const OdString& folders) {
    theHost().application.settings[u"ToolPaletteDir"_s] = folders;
  }
  /// The folders of the loaded catalogs, by their own names.
  QStringList loaded() const {
    QStringList names;
    const auto catalogs = manager->catalogsEnum();
    OdString path;
    OdTcCatalog* catalog = nullptr;
    while (catalogs->next(path, catalog)) names << odpath::fileNameOf(odpath::folderOf(path));
    return names;
  }
  static OdString missing(const OdString& path) {
    return u"print \nError: cannot find catalog file: "_s + path;
  }
};

TEST_F(PaletteManagerTest, AnEmptySettingIsAFolderWithoutACatalog) {
  configure(OdString());
  manager->loadCatalogs();
  EXPECT_TRUE(theHost().log.contains(missing(u"\\DrfTcCatalog.dtc"_s)))
      << text(theHost().log.join(u'\n'));
  EXPECT_TRUE(loaded().isEmpty());
  EXPECT_EQ(manager->activeCatalog(), nullptr);
}

TEST_F(PaletteManagerTest, TheDefaultCatalogComesIntoBeingWithoutAFile) {
  configure(defaultFolder());
  manager->loadCatalogs();
  ASSERT_TRUE(manager->activeCatalog());
  EXPECT_EQ(manager->activeCatalog()->name(), u"Tool Palettes"_s);
  EXPECT_EQ(manager->activeCatalog()->path(), defaultFile());
  EXPECT_TRUE(manager->activeCatalog()->isDefault());
  EXPECT_FALSE(manager->activeCatalog()->id().isEmpty());
  EXPECT_FALSE(wasTold({u"Error"_s}));
  EXPECT_FALSE(QFileInfo::exists(odpath::toPlatform(defaultFile()))) << "nothing is saved unasked";
}

TEST_F(PaletteManagerTest, TheNameOfANewCatalogIsTranslated) {
  theHost().translations[u"Tool Palettes"_s] = u"Werkzeugpaletten"_s;
  manager->openCatalog(stored(u"new\\DrfTcCatalog.dtc"_s));
  OdString path;
  OdTcCatalog* catalog = nullptr;
  ASSERT_TRUE(manager->catalogsEnum()->next(path, catalog));
  EXPECT_EQ(catalog->name(), u"Werkzeugpaletten"_s);
}

TEST_F(PaletteManagerTest, KeepsCatalogsInOrderOfTheirPathsAndTheDefaultActive) {
  writeTwoPalettes(u"b"_s);
  writeTwoPalettes(u"a"_s);
  configure(stored(u"b"_s) + u';' + defaultFolder() + u';' + stored(u"a"_s));
  manager->loadCatalogs();
  EXPECT_EQ(loaded(), QStringList({u"a"_s, u"b"_s, u"ToolPalette"_s}));
  EXPECT_EQ(log.log, QStringList({u"added b"_s, u"added ToolPalette"_s, u"added a"_s}));
  ASSERT_TRUE(manager->activeCatalog());
  EXPECT_EQ(manager->activeCatalog()->path(), defaultFile());
  EXPECT_EQ(manager->defaultCatalog(), manager->activeCatalog());
}

TEST_F(PaletteManagerTest, AMissingFolderIsToldAndPassedOver) {
  writeTwoPalettes(u"a"_s);
  configure(stored(u"gone"_s) + u';' + stored(u"a"_s));
  manager->loadCatalogs();
  EXPECT_EQ(loaded(), QStringList(u"a"_s));
  EXPECT_TRUE(theHost().log.contains(missing(stored(u"gone\\DrfTcCatalog.dtc"_s))));
}

TEST_F(PaletteManagerTest, AFileWhereAFolderIsExpectedIsPassedOver) {
  writeFile(u"file"_s, "text");
  QDir().mkpath(platform(u"dir/DrfTcCatalog.dtc"_s));
  configure(stored(u"file"_s) + u';' + stored(u"dir"_s));
  manager->loadCatalogs();
  EXPECT_TRUE(loaded().isEmpty());
  EXPECT_TRUE(theHost().log.contains(missing(stored(u"file\\DrfTcCatalog.dtc"_s))));
  EXPECT_TRUE(theHost().log.contains(missing(stored(u"dir\\DrfTcCatalog.dtc"_s))));
}

TEST_F(PaletteManagerTest, OneFolderInManyWaysOfWritingIsOneCatalog) {
  writeTwoPalettes(u"a"_s);
  const OdString folder = stored(u"a"_s);
  OdString slashes = folder;
  slashes.replace(u'\\', u'/');
  configure(folder + u";; "_s + folder + u" ;"_s + folder + u"\\;"_s + slashes + u"/;"_s +
            stored(u"a\\Palettes\\..\\"_s) + u"; ;"_s);
  manager->loadCatalogs();
  EXPECT_EQ(loaded(), QStringList(u"a"_s));
  EXPECT_EQ(log.log, QStringList(u"added a"_s));
  EXPECT_FALSE(wasTold({u"Error"_s}));
}

TEST_F(PaletteManagerTest, LoadsAThousandFolders) {
  QStringList folders;
  for (int i = 0; i < 1000; ++i) {
    const OdString name = u"f%1"_s.arg(i);
    if (i % 10 == 0) writeFile(name + u"\\DrfTcCatalog.dtc"_s, catalogXml({}));
    folders << stored(name);
  }
  configure(folders.join(u';'));
  manager->loadCatalogs();
  EXPECT_EQ(loaded().size(), 100);
}

TEST_F(PaletteManagerTest, AddsACatalogWithAFreshId) {
  const OdString path = writeTwoPalettes(u"a"_s);
  EXPECT_TRUE(manager->addCatalog(path));
  OdString key;
  OdTcCatalog* catalog = nullptr;
  ASSERT_TRUE(manager->catalogsEnum()->next(key, catalog));
  EXPECT_EQ(key, path);
  EXPECT_NE(catalog->id(), u"{CATALOG}"_s);
  EXPECT_EQ(manager->activeCatalog(), nullptr) << "it is not the default one";
}

TEST_F(PaletteManagerTest, ASecondOpeningReleasesTheFirst) {
  const OdString path = writeTwoPalettes(u"user\\ToolPalette"_s);
  manager->openCatalog(path);
  const OdTcCatalogPtr first(manager->activeCatalog());
  manager->openCatalog(path);
  EXPECT_EQ(first->numRefs(), 1);
  ASSERT_TRUE(manager->activeCatalog());
  EXPECT_NE(manager->activeCatalog(), first.get());
  EXPECT_EQ(loaded().size(), 1);
}

TEST_F(PaletteManagerTest, RemovingWhatIsNotLoadedTellsNobody) {
  EXPECT_FALSE(manager->removeCatalog(stored(u"a\\DrfTcCatalog.dtc"_s)));
  EXPECT_TRUE(log.log.isEmpty());
}

TEST_F(PaletteManagerTest, RemovingTheActiveCatalogLeavesNoneActive) {
  const OdString path = writeTwoPalettes(u"user\\ToolPalette"_s);
  manager->openCatalog(path);
  EXPECT_TRUE(manager->removeCatalog(path));
  EXPECT_EQ(log.log, QStringList({u"added ToolPalette"_s, u"removed ToolPalette"_s}));
  EXPECT_EQ(manager->activeCatalog(), nullptr);
}

TEST_F(PaletteManagerTest, AReactorLeavesOnceForEachRemoval) {
  manager->addReactor(nullptr);
  manager->addReactor(&log);
  manager->removeReactor(&log);
  manager->openCatalog(writeTwoPalettes(u"a"_s));
  EXPECT_EQ(log.log.size(), 1);
  manager->removeReactor(&log);
  manager->removeReactor(&log);
  manager->removeCatalog(stored(u"a\\DrfTcCatalog.dtc"_s));
  EXPECT_EQ(log.log.size(), 1);
}

TEST_F(PaletteManagerTest, ReloadingDropsWhatIsNotConfiguredAndAddsWhatIs) {
  writeTwoPalettes(u"a"_s);
  writeTwoPalettes(u"b"_s);
  configure(stored(u"a"_s));
  manager->loadCatalogs();
  log.log.clear();
  configure(stored(u"b"_s));
  manager->reloadCatalogs();
  EXPECT_EQ(loaded(), QStringList(u"b"_s));
  EXPECT_EQ(log.log, QStringList({u"removed a"_s, u"added b"_s, u"changed"_s}));
}

TEST_F(PaletteManagerTest, ReloadingWithoutAChangeTellsNobody) {
  writeTwoPalettes(u"a"_s);
  writeTwoPalettes(u"user\\ToolPalette"_s);
  configure(stored(u"a"_s) + u';' + defaultFolder());
  manager->loadCatalogs();
  const OdTcCatalogPtr active(manager->activeCatalog());
  log.log.clear();
  manager->reloadCatalogs();
  EXPECT_TRUE(log.log.isEmpty());
  EXPECT_EQ(manager->activeCatalog(), active.get());
}

TEST_F(PaletteManagerTest, ReloadingTellsOfMissingFilesButNotOfTheDefaultOne) {
  configure(stored(u"gone"_s) + u';' + defaultFolder());
  manager->reloadCatalogs();
  EXPECT_EQ(log.log, QStringList(u"changed"_s));
  EXPECT_TRUE(theHost().log.contains(missing(stored(u"gone\\DrfTcCatalog.dtc"_s))));
  EXPECT_FALSE(theHost().log.contains(missing(defaultFile())));
  EXPECT_TRUE(loaded().isEmpty());
}

TEST_F(PaletteManagerTest, ReloadingLeavesTheDefaultCatalogOutEvenIfItsFileIsThere) {
  writeTwoPalettes(u"user\\ToolPalette"_s);
  writeTwoPalettes(u"a"_s);
  configure(defaultFolder() + u';' + stored(u"a"_s));
  manager->reloadCatalogs();
  EXPECT_EQ(loaded(), QStringList(u"a"_s));
  EXPECT_EQ(manager->activeCatalog(), nullptr);
}

TEST_F(PaletteManagerTest, RemovingTheLastCatalogByReloadingClearsTheActiveOne) {
  configure(defaultFolder());
  manager->loadCatalogs();
  ASSERT_TRUE(manager->activeCatalog());
  writeTwoPalettes(u"a"_s);
  configure(stored(u"nowhere"_s));
  manager->reloadCatalogs();
  EXPECT_EQ(manager->activeCatalog(), nullptr);
  EXPECT_TRUE(loaded().isEmpty());
}

TEST_F(PaletteManagerTest, AChangeOfTheSettingReloadsAndThenRefreshesTheWindow) {
  writeTwoPalettes(u"a"_s);
  QStringList seen;
  setVisibleWindowRefresh([&] { seen << loaded(); });
  theHost().application.change(u"ToolPaletteDir"_s, stored(u"a"_s));
  EXPECT_EQ(seen, QStringList(u"a"_s)) << "the catalogs are there when the window looks";
}

TEST_F(PaletteManagerTest, TheWatcherGoesWithTheManager) {
  ASSERT_EQ(theHost().application.reactors.size(), 1u);
  const auto watcher = theHost().application.reactors.front().second;
  {
    const OdTcPaletteManagerPtr second = OdTcPaletteManager::createObject();
    EXPECT_EQ(theHost().application.reactors.size(), 2u);
  }
  EXPECT_EQ(theHost().application.reactors.size(), 1u);
  OdTcPaletteManager::setInstance(nullptr);
  EXPECT_TRUE(theHost().application.reactors.empty());
  watcher->onPropertyChanged(u"ToolPaletteDir"_s);
  OdTcPaletteManager::setInstance(OdTcPaletteManager::createObject());
}

TEST_F(PaletteManagerTest, WorksWithoutAHost) {
  theHost().switchOff(testhost::kMainModule);
  ::host::setModuleDirectory(nullptr);
  const OdTcPaletteManagerPtr lonely = OdTcPaletteManager::createObject();
  lonely->loadCatalogs();
  lonely->openConfiguration();
  EXPECT_EQ(lonely->activeCatalog(), nullptr);
}

TEST_F(PaletteManagerTest, SavesEveryCatalogWhateverHappensToOne) {
  for (const OdString& name : {u"a"_s, u"b"_s, u"c"_s})
    manager->openCatalog(writeTwoPalettes(name));
  writeFile(u"bad\\DrfTcCatalog.dtc"_s, "<Catalog><cut");
  manager->openCatalog(stored(u"bad\\DrfTcCatalog.dtc"_s));
  {
    FailingServices services;
    services.deniedFolder = stored(u"b"_s);
    manager->saveAll();
    EXPECT_EQ(services.written,
              QStringList({stored(u"a\\DrfTcCatalog.dtc"_s), stored(u"bad\\DrfTcCatalog.dtc"_s),
                           stored(u"c\\DrfTcCatalog.dtc"_s)}));
  }
  EXPECT_TRUE(
      wasTold({u"Cannot save the catalog"_s, odpath::toPlatform(stored(u"b\\DrfTcCatalog.dtc"_s)),
               u"Permission denied"_s}));
  EXPECT_TRUE(wasTold({stored(u"bad\\DrfTcCatalog.dtc"_s), u"is kept"_s}));
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Unread\\DrfTcCatalog.dtc"_s),
            QByteArray("<Catalog><cut"));
}

TEST_F(PaletteManagerTest, AReactorThatAnotherOneTookOffTheListIsNotTold) {
  struct Remover : OdTcPaletteManagerReactor {
    OdTcPaletteManager* manager = nullptr;
    OdTcPaletteManagerReactor* victim = nullptr;
    void catalogAdded(OdTcCatalog*) override { manager->removeReactor(victim); }
  } remover;
  ManagerLog victim;
  remover.manager = manager;
  remover.victim = &victim;
  manager->addReactor(&remover);
  manager->addReactor(&victim);
  manager->openCatalog(writeTwoPalettes(u"a"_s));
  EXPECT_TRUE(victim.log.isEmpty());
  manager->removeReactor(&remover);
}

TEST_F(PaletteManagerTest, ACatalogThatAReactorRemovesAtOnceIsGone) {
  struct Remover : OdTcPaletteManagerReactor {
    OdTcPaletteManager* manager = nullptr;
    void catalogAdded(OdTcCatalog* catalog) override { manager->removeCatalog(catalog->path()); }
  } remover;
  remover.manager = manager;
  manager->addReactor(&remover);
  manager->openCatalog(writeTwoPalettes(u"user\\ToolPalette"_s));
  EXPECT_EQ(manager->activeCatalog(), nullptr);
  EXPECT_FALSE(manager->addCatalog(writeTwoPalettes(u"a"_s)));
  EXPECT_TRUE(loaded().isEmpty());
  manager->removeReactor(&remover);
}

TEST_F(PaletteManagerTest, AnUnreadableCatalogIsToldAndStandsEmptyWhileOthersLoad) {
  writeTwoPalettes(u"a"_s);
  writeFile(u"bad\\DrfTcCatalog.dtc"_s, "no xml at all");
  configure(stored(u"bad"_s) + u';' + stored(u"a"_s));
  manager->loadCatalogs();
  EXPECT_EQ(loaded(), QStringList({u"a"_s, u"bad"_s}));
  EXPECT_TRUE(wasTold({stored(u"bad\\DrfTcCatalog.dtc"_s)}));
  OdString path;
  OdTcCatalog* catalog = nullptr;
  const auto catalogs = manager->catalogsEnum();
  catalogs->next(path, catalog);
  catalogs->next(path, catalog);
  EXPECT_EQ(catalog->name(), u"Tool Palettes"_s);
  EXPECT_TRUE(catalog->isUnread());
  EXPECT_FALSE(catalogs->next(path, catalog));
  catalogs->reset();
  EXPECT_TRUE(catalogs->next(path, catalog));
}

TEST_F(PaletteManagerTest, KnowsTheFoldersOfACatalog) {
  manager->openCatalog(writeTwoPalettes(u"a"_s));
  OdString path;
  OdTcCatalog* catalog = nullptr;
  manager->catalogsEnum()->next(path, catalog);
  EXPECT_EQ(manager->palettesFolder(catalog), stored(u"a\\Palettes"_s));
  EXPECT_EQ(manager->imagesFolder(catalog), stored(u"a\\Palettes\\Images"_s));
}

TEST_F(PaletteManagerTest, KnowsPicturesAndDrawingsByTheirExtensions) {
  for (const OdString& e : {u"bmp"_s, u"jpeg"_s, u"tiff"_s, u"jpg"_s, u"png"_s, u"PNG"_s})
    EXPECT_TRUE(manager->isImageExtension(e) && !manager->isDrawingExtension(e)) << text(e);
  for (const OdString& e : {u"dwg"_s, u"dxf"_s, u"dwf"_s})
    EXPECT_TRUE(manager->isDrawingExtension(e) && !manager->isImageExtension(e)) << text(e);
  EXPECT_FALSE(manager->isImageExtension(u"dtc"_s));
}

TEST_F(PaletteManagerTest, OpensItsConfigurationOnlyWhenThatIsWanted) {
  theHost().application.store->sections.clear();
  const auto closed = odrxMake<OdTcPaletteManagerImpl>();
  closed->openConfiguration();
  EXPECT_FALSE(theHost().application.store->at(u"cmddata/ToolPaletteManager"_s));
  EXPECT_EQ(closed->configuration(), nullptr);
  struct Opening : OdTcPaletteManagerImpl {
    Opening() { m_openFlag = true; }
  };
  const auto opening = odrxMake<Opening>();
  opening->openConfiguration();
  EXPECT_TRUE(theHost().application.store->at(u"cmddata/ToolPaletteManager"_s));
  EXPECT_TRUE(opening->configuration());
}

TEST_F(PaletteManagerTest, CarriesTheViewSetting) {
  EXPECT_EQ(manager->viewSetting(), 3u);
  manager->setViewSetting(4);
  EXPECT_EQ(manager->viewSetting(), 4u);
}

} // namespace
