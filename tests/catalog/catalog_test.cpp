#include "catalog/catalog.h"

#include "catalog/catalog_fixture.h"

namespace {

using namespace testhost;

struct CatalogTest : CatalogFixture {
  const OdString file = stored(u"c\\DrfTcCatalog.dtc"_s);

  QByteArray saved() const { return readFile(u"c\\DrfTcCatalog.dtc"_s); }
  static QStringList idsOf(const OdTcEnumPtr<OdTcCatalogItem>& items) {
    QStringList ids;
    while (const OdTcCatalogItem* item = items->next()) ids << item->id();
    return ids;
  }
};

TEST_F(CatalogTest, AnEmptyCatalogComesBackWithItsIdButNotWithItsRootAttributes) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->setName(u"Mine"_s);
  catalog->setOptions(7);
  catalog->readField(u"Revision"_s, OdVariant(u"9.9"_s));
  catalog->readField(u"FileRevision"_s, OdVariant(u"5"_s));
  QDir().mkpath(platform(u"c"_s));
  ASSERT_TRUE(catalog->save(file));
  EXPECT_EQ(catalog->path(), file);
  EXPECT_TRUE(saved().contains("Revision=\"9.9\" option=\"7\" FileRevision=\"5\""))
      << saved().toStdString();

  const OdTcCatalogPtr again = load(file);
  EXPECT_EQ(again->id(), catalog->id());
  EXPECT_EQ(again->name(), u"Mine"_s);
  EXPECT_EQ(again->revision(), u"8.0"_s);
  EXPECT_EQ(again->options(), 0u);
  EXPECT_EQ(again->fileRevision(), OdString());
  EXPECT_EQ(again->groups()->count(), 0);
}

TEST_F(CatalogTest, WithoutAnIdInTheFileKeepsItsFreshOne) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s, "<Catalog><Palettes/></Catalog>");
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  const OdString fresh = catalog->id();
  ASSERT_TRUE(catalog->load(file));
  EXPECT_EQ(catalog->id(), fresh);
  EXPECT_EQ(catalog->groups()->count(), 0) << "without a Groups element there is no error";
}

TEST_F(CatalogTest, UnknownElementsAndAttributesAreGoneAfterASave) {
  writeFile(
      u"c\\DrfTcCatalog.dtc"_s,
      "<?xml version=\"1.0\"?>\n<Catalog><Future a=\"1\"/><ItemID later=\"2\" idValue=\"{X}\"/>"
      "<Source url=\"x\"><Palette><ItemID idValue=\"in\"/></Palette></Source>"
      "<Palettes/></Catalog>");
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_EQ(catalog->id(), u"{X}"_s);
  EXPECT_EQ(catalog->loaders()->count(), 0) << "nothing is made of what a source holds";
  catalog->save();
  for (const char* gone : {"Future", "later", "Source", "?xml"})
    EXPECT_FALSE(saved().contains(gone)) << gone;
}

TEST_F(CatalogTest, LoadsThePalettesOfItsLoadersInOrder) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  EXPECT_EQ(namesOf(catalog->palettesEnum()), QStringList({u"Alpha"_s, u"Beta"_s}));
  EXPECT_EQ(idsOf(catalog->loadersEnum()), QStringList({u"A"_s, u"B"_s}));
  EXPECT_EQ(idsOf(catalog->children()), QStringList({u"A"_s, u"B"_s}));
  EXPECT_EQ(catalog->findPalette(u"B"_s)->catalog(), catalog.get());
  EXPECT_EQ(catalog->findPaletteByName(u"Beta"_s), catalog->findPalette(u"B"_s));
  EXPECT_EQ(catalog->findPaletteByName(u"beta"_s), nullptr);
  EXPECT_EQ(catalog->catalog(), catalog.get());
  EXPECT_TRUE(catalog->isContainer(OdString()));
  EXPECT_EQ(catalog->findPalette(u"A"_s)->getPath(), stored(u"c\\Palettes\\a.dtc"_s));
}

TEST_F(CatalogTest, AMissingFileFailsWithThePathKept) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  EXPECT_FALSE(catalog->load(file));
  EXPECT_EQ(catalog->path(), file);
  EXPECT_FALSE(catalog->isUnread());
}

TEST_F(CatalogTest, AMissingPaletteFileYieldsNoPaletteAndNoMessage) {
  writeTwoPalettes(u"c"_s);
  QFile::remove(platform(u"c\\Palettes\\a.dtc"_s));
  theHost().log.clear();
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_EQ(namesOf(catalog->palettesEnum()), QStringList(u"Beta"_s));
  EXPECT_EQ(catalog->loaders()->count(), 2) << "the loader stays";
  EXPECT_TRUE(theHost().log.isEmpty()) << text(theHost().log.join(u'\n'));
}

TEST_F(CatalogTest, APaletteInTheListButNotLoadedIsBroughtInOnDemand) {
  writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>"));
  QFile::rename(platform(u"c\\Palettes\\a.dtc"_s), platform(u"c\\Palettes\\away"_s));
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_EQ(catalog->findPalette(u"A"_s), nullptr);
  EXPECT_EQ(catalog->loadPalette(u"A"_s), nullptr);
  QFile::rename(platform(u"c\\Palettes\\away"_s), platform(u"c\\Palettes\\a.dtc"_s));
  OdTcToolPalette* const loaded = catalog->loadPalette(u"A"_s);
  ASSERT_TRUE(loaded);
  EXPECT_EQ(loaded->name(), u"Alpha"_s);
  EXPECT_TRUE(loaded->isReferenced());
  EXPECT_EQ(catalog->loadPalette(u"A"_s), loaded);
  EXPECT_EQ(catalog->loadPalette(u"unknown"_s), nullptr);
}

TEST_F(CatalogTest, UnloadsAPaletteOnceAndCanLoadItAgain) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  const OdTcToolPalettePtr held(catalog->findPalette(u"A"_s));
  EXPECT_TRUE(catalog->unloadPalette(u"A"_s));
  EXPECT_EQ(held->numRefs(), 1);
  EXPECT_EQ(held->catalog(), nullptr);
  EXPECT_FALSE(catalog->unloadPalette(u"A"_s));
  EXPECT_TRUE(exists(u"c\\Palettes\\a.dtc"_s));
  EXPECT_TRUE(catalog->loadPalette(u"A"_s));
}

TEST_F(CatalogTest, GivesANewPaletteAFileNamedAfterItAsItStands) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  const OdTcToolPalettePtr added = palette(u"a:b?"_s);
  ItemLog log;
  catalog->addReactor(&log);
  EXPECT_TRUE(catalog->addItem(added));
  EXPECT_EQ(added->getPath(), stored(u"c\\Palettes\\a:b?_"_s + added->id() + u".dtc"_s));
  EXPECT_EQ(log.log, QStringList(u"added a:b?"_s));
  EXPECT_TRUE(catalog->findItem(added->id()));
  EXPECT_FALSE(catalog->addItem(added)) << "it is here already";
  EXPECT_FALSE(catalog->addItem(tool(u"T"_s)));
}

TEST_F(CatalogTest, ASaveMakesLoadersForNewPalettesAndRenamesTheOthers) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  const OdTcToolPalettePtr added = palette(u"New"_s);
  catalog->addItem(added);
  added->save();
  catalog->findPalette(u"A"_s)->setName(u"Renamed"_s);
  catalog->findPalette(u"A"_s)->setDescription(u"Told"_s);
  ASSERT_TRUE(catalog->save());
  const OdTcCatalogItem* const loader = catalog->loaders()->find(u"A"_s);
  EXPECT_EQ(loader->name(), u"Renamed"_s);
  EXPECT_EQ(loader->description(), u"Told"_s);
  EXPECT_EQ(catalog->loaders()->count(), 3);

  const OdTcCatalogPtr again = load(file);
  EXPECT_EQ(namesOf(again->palettesEnum()), QStringList({u"Alpha"_s, u"Beta"_s, u"New"_s}));
  const auto* made = odrxCast<OdTcPaletteLoader>(again->loaders()->find(added->id()));
  EXPECT_EQ(made->getHref(), u"Palettes\\New_"_s + added->id() + u".dtc"_s);
}

TEST_F(CatalogTest, APaletteOfACatalogWithoutAPathGetsItsPlaceAtTheFirstSave) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  EXPECT_FALSE(catalog->save());
  const OdTcToolPalettePtr added = palette(u"New"_s);
  catalog->addItem(added);
  EXPECT_EQ(added->getPath(), OdString());
  QDir().mkpath(platform(u"c"_s));
  ASSERT_TRUE(catalog->save(file));
  EXPECT_EQ(added->getPath(), stored(u"c\\Palettes\\New_"_s + added->id() + u".dtc"_s));
}

TEST_F(CatalogTest, RemovingAPaletteTakesItsFileItsReferencesAndItsLoader) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(
      u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>" + groupXml("H", "<ToolPalette ID=\"A\"/>"))));
  const OdTcToolPalettePtr removed(catalog->findPalette(u"A"_s));
  removed->suspendAutoSave();
  const OdTcToolPtr onIt = tool(u"T"_s);
  removed->addItem(onIt);
  catalog->setOrderList({u"B"_s, u"A"_s, u"A"_s});
  ItemLog catalogLog;
  ItemLog paletteLog;
  catalog->addReactor(&catalogLog);
  removed->addReactor(&paletteLog);
  EXPECT_TRUE(catalog->removeItem(u"A"_s));

  EXPECT_EQ(catalogLog.log, QStringList(u"removed Alpha"_s));
  EXPECT_EQ(paletteLog.log, QStringList(u"removed Alpha"_s));
  EXPECT_TRUE(removed->isDeleted());
  EXPECT_TRUE(onIt->isDeleted());
  EXPECT_FALSE(exists(u"c\\Palettes\\a.dtc"_s));
  EXPECT_EQ(catalog->findInGroups(removed), nullptr);
  EXPECT_EQ(catalog->loaders()->count(), 1);
  EXPECT_EQ(catalog->orderList(), OdArray<OdString>({u"B"_s, u"A"_s}));
  EXPECT_FALSE(catalog->findItem(u"A"_s));
  EXPECT_EQ(removed->catalog(), nullptr);
  EXPECT_FALSE(catalog->removeItem(u"A"_s));
  ASSERT_TRUE(catalog->save());
  EXPECT_FALSE(saved().contains("idValue=\"A\""));
}

TEST_F(CatalogTest, RemovesAGroupOfTheTopLevelOnly) {
  const OdTcCatalogPtr catalog =
      load(writeTwoPalettes(u"c"_s, groupXml("G", groupXml("H", "<ToolPalette ID=\"A\"/>"))));
  catalog->setOrderList({u"G"_s});
  ItemLog log;
  catalog->addReactor(&log);
  EXPECT_FALSE(catalog->removeItem(u"H"_s));
  EXPECT_TRUE(catalog->removeItem(u"G"_s));
  EXPECT_EQ(log.log, QStringList(u"removed G"_s));
  EXPECT_TRUE(catalog->orderList().isEmpty());
  EXPECT_FALSE(catalog->findPalette(u"A"_s)->isReferenced());
}

TEST_F(CatalogTest, NeverDeletesAFileOutsideItsFolder) {
  writeFile(u"elsewhere.dtc"_s, paletteXml("A", "Out"));
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml(loaderXml("A", "Palettes/../../elsewhere.dtc")));
  const OdTcCatalogPtr catalog = load(file);
  ASSERT_TRUE(catalog->findPalette(u"A"_s)) << "shared palettes lie anywhere, and are loaded";
  EXPECT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_TRUE(exists(u"elsewhere.dtc"_s));
  EXPECT_TRUE(wasTold({stored(u"elsewhere.dtc"_s), u"not deleted"_s}));
  EXPECT_EQ(catalog->loaders()->count(), 0);
}

TEST_F(CatalogTest, NeverDeletesItsOwnFile) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml(loaderXml("A", "DrfTcCatalog.dtc")));
  const OdTcCatalogPtr catalog = load(file);
  OdTcToolPalette* const self = catalog->palettesEnum()->next();
  ASSERT_TRUE(self);
  EXPECT_TRUE(catalog->removeItem(self->id()));
  EXPECT_TRUE(exists(u"c\\DrfTcCatalog.dtc"_s));
}

TEST_F(CatalogTest, NeverDeletesAFileThatIsAlsoThatOfAnotherPalette) {
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteXml("A", "Alpha"));
  writeFile(u"c\\DrfTcCatalog.dtc"_s,
            catalogXml(loaderXml("A", "Palettes\\a.dtc") + loaderXml("B", "Palettes\\a.dtc")));
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_TRUE(exists(u"c\\Palettes\\a.dtc"_s));
  EXPECT_TRUE(catalog->removeItem(u"A"_s)) << "the second palette has the id of the file, too";
  EXPECT_FALSE(exists(u"c\\Palettes\\a.dtc"_s));
}

TEST_F(CatalogTest, AFileThatCannotBeDeletedIsToldAndThePaletteGoesAllTheSame) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  FailingServices services;
  services.deniedFolder = stored(u"c"_s);
  EXPECT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_TRUE(wasTold({u"Cannot delete"_s, stored(u"c\\Palettes\\a.dtc"_s)}));
  EXPECT_EQ(catalog->findPalette(u"A"_s), nullptr);
}

TEST_F(CatalogTest, MovesAPaletteOutOfItsGroupsToTheTopLevel) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(
      u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>" + groupXml("H", "<ToolPalette ID=\"A\"/>"))));
  ItemLog log;
  catalog->groups()->at(0)->addReactor(&log);
  EXPECT_TRUE(catalog->moveToGroup(u"A"_s));
  EXPECT_EQ(catalog->findInGroups(catalog->findPalette(u"A"_s)), nullptr);
  EXPECT_FALSE(catalog->findPalette(u"A"_s)->isReferenced());
  EXPECT_EQ(log.log, QStringList(u"removed Alpha"_s));
  EXPECT_FALSE(catalog->moveToGroup(u"unknown"_s));
}

TEST_F(CatalogTest, MovesANestedGroupWithItsContentsToTheTopLevel) {
  const OdTcCatalogPtr catalog =
      load(writeTwoPalettes(u"c"_s, groupXml("G", groupXml("H", "<ToolPalette ID=\"A\"/>"))));
  EXPECT_TRUE(catalog->moveToGroup(u"H"_s));
  EXPECT_EQ(idsOf(catalog->groupsEnum()), QStringList({u"G"_s, u"H"_s}));
  EXPECT_EQ(catalog->groups()->at(1)->owner(), catalog.get());
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->isReferenced());
  EXPECT_TRUE(catalog->moveToGroup(u"H"_s)) << "it is there already";
  EXPECT_EQ(catalog->groups()->count(), 2);
}

TEST_F(CatalogTest, KeepsDuplicateIdsThroughLoadAndSave) {
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteXml("A", "One"));
  writeFile(u"c\\Palettes\\b.dtc"_s, paletteXml("A", "Two"));
  writeFile(u"c\\DrfTcCatalog.dtc"_s,
            catalogXml(loaderXml("A", "Palettes\\a.dtc") + loaderXml("A", "Palettes\\b.dtc"),
                       groupXml("A", "") + groupXml("A", "")));
  OdTcCatalogPtr catalog = load(file);
  EXPECT_EQ(namesOf(catalog->palettesEnum()), QStringList({u"One"_s, u"Two"_s}));
  EXPECT_EQ(catalog->findPalette(u"A"_s)->name(), u"One"_s);
  catalog->save();
  catalog = load(file);
  EXPECT_EQ(namesOf(catalog->palettesEnum()), QStringList({u"One"_s, u"Two"_s}));
  EXPECT_EQ(catalog->loaders()->count(), 2);
  EXPECT_EQ(catalog->groups()->count(), 2);
}

TEST_F(CatalogTest, APaletteFileWithoutAnIdTakesThatOfItsLoaderSoThatNoLoadersPileUp) {
  writeFile(u"c\\Palettes\\a.dtc"_s,
            "<Palette><Properties><ItemName>P</ItemName></Properties></Palette>");
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml(loaderXml("A", "Palettes\\a.dtc"),
                                                 groupXml("G", "<ToolPalette ID=\"A\"/>")));
  for (int i = 0; i < 3; ++i) {
    const OdTcCatalogPtr catalog = load(file);
    EXPECT_TRUE(catalog->findPalette(u"A"_s));
    EXPECT_EQ(catalog->loaders()->count(), 1);
    catalog->save();
  }
  EXPECT_TRUE(saved().contains("<ToolPalette ID=\"A\" />"));
}

TEST_F(CatalogTest, AnEmptyIdInAPaletteFileIsNoneAtAll) {
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteXml("", "P"));
  writeFile(u"c\\DrfTcCatalog.dtc"_s,
            catalogXml(loaderXml("A", "Palettes\\a.dtc"), groupXml("", "<ToolPalette ID=\"A\"/>")));
  const OdTcCatalogPtr catalog = load(stored(u"c\\DrfTcCatalog.dtc"_s));
  EXPECT_TRUE(catalog->findPalette(u"A"_s));
  EXPECT_FALSE(catalog->groups()->at(0)->id().isEmpty());
  ASSERT_TRUE(catalog->save());
  const QByteArray first = readFile(u"c\\DrfTcCatalog.dtc"_s);
  ASSERT_TRUE(load(stored(u"c\\DrfTcCatalog.dtc"_s))->save());
  EXPECT_EQ(readFile(u"c\\DrfTcCatalog.dtc"_s).toStdString(), first.toStdString());
}

TEST_F(CatalogTest, ALoaderFollowsTheIdOfItsPaletteFile) {
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteXml("OTHER", "P"));
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml(loaderXml("A", "Palettes\\a.dtc")));
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_TRUE(catalog->findPalette(u"OTHER"_s));
  catalog->save();
  EXPECT_EQ(idsOf(load(file)->loadersEnum()), QStringList(u"OTHER"_s));
}

TEST_F(CatalogTest, FindsPalettesThroughAnIndexThatFollowsChangedIds) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  std::vector<OdTcToolPalettePtr> palettes;
  for (int i = 0; i < 200; ++i) {
    palettes.push_back(palette(u"P"_s));
    palettes.back()->setId(u"id%1"_s.arg(i));
    catalog->addItem(palettes.back());
  }
  for (int i = 0; i < 200; ++i)
    ASSERT_EQ(catalog->findPalette(u"id%1"_s.arg(i)), palettes[static_cast<std::size_t>(i)].get());
  palettes[150]->setId(u"new"_s);
  EXPECT_EQ(catalog->findPalette(u"new"_s), palettes[150].get());
  EXPECT_EQ(catalog->findPalette(u"id150"_s), nullptr);
  catalog->removeItem(u"id10"_s);
  EXPECT_EQ(catalog->findPalette(u"id11"_s), palettes[11].get());
}

TEST_F(CatalogTest, ItemsThatOutliveTheirCatalogHaveNoOwner) {
  OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>")));
  const OdTcToolPalettePtr palette(catalog->findPalette(u"A"_s));
  const OdTcCatalogItemPtr group(catalog->groups()->at(0));
  const OdTcCatalogItemPtr loader(catalog->loaders()->at(0));
  catalog = nullptr;
  EXPECT_EQ(palette->catalog(), nullptr);
  EXPECT_EQ(group->catalog(), nullptr);
  EXPECT_EQ(loader->catalog(), nullptr);
}

TEST_F(CatalogTest, LoaderPathsAreResolvedWhereverTheyLead) {
  const OdSmartPtr<OdTcPaletteLoader> loader = OdTcPaletteLoader::createObject();
  writeFile(u"x\\p.dtc"_s, paletteXml("A", "P"));
  for (const OdString& href :
       {u"p.dtc"_s, u".\\p.dtc"_s, u"..\\x\\p.dtc"_s, stored(u"x\\p.dtc"_s)}) {
    loader->setHref(href);
    const OdTcToolPalettePtr loaded = loader->loadPalette(stored(u"x"_s));
    ASSERT_TRUE(loaded) << text(href);
    EXPECT_EQ(loaded->getPath(), stored(u"x\\p.dtc"_s));
  }
  loader->setHref(OdString());
  EXPECT_FALSE(loader->loadPalette(stored(u"x"_s)));
  EXPECT_FALSE(loader->loadPaletteFromCatalog()) << "it stands in no catalog";
}

TEST_F(CatalogTest, ALoaderMayBeginWithAMacro) {
  theHost().application.settings[u"ToolPaletteDir"_s] = stored(u"x"_s);
  writeFile(u"x\\p.dtc"_s, paletteXml("A", "P"));
  const OdSmartPtr<OdTcPaletteLoader> loader = OdTcPaletteLoader::createObject();
  loader->setHref(u"%UserProfileSamplesFolder%\\p.dtc"_s);
  EXPECT_TRUE(loader->loadPalette(OdString()));
  const OdSmartPtr<OdTcPaletteLoader> copy(loader->clone(true));
  EXPECT_EQ(copy->getHref(), loader->getHref());
  EXPECT_NE(copy->id(), loader->id());
}

} // namespace
