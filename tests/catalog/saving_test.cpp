// How files are opened, and what a save that fails leaves behind.
#include "catalog/catalog_fixture.h"
#include "catalog/palette_loader_impl.h"
#include "frame/file_path.h"
#include "module/properties.h"

namespace {

using namespace testhost;

/// Notes how files are opened: "a.dtc 40000000 40 5" is write access, shared with all, emptied.
struct RecordingServices : FailingServices {
  QStringList opened;
  OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access,
                            Oda::FileShareMode share,
                            Oda::FileCreationDisposition creation) override {
    opened << u"%1 %2 %3 %4"_s.arg(odpath::fileNameOf(path))
                  .arg(std::uint32_t{access}, 0, 16)
                  .arg(std::uint32_t{share}, 0, 16)
                  .arg(std::uint32_t{creation});
    return FailingServices::createFile(path, access, share, creation);
  }
};

struct SavingTest : CatalogFixture {
  const OdString file = stored(u"c\\DrfTcCatalog.dtc"_s);

  QStringList kept() const {
    return QDir(platform(u"user/ToolPalette/Unread"_s)).entryList(QDir::Files, QDir::Name);
  }
  QStringList replaced() const {
    return QDir(platform(u"user/ToolPalette/Replaced"_s)).entryList(QDir::Files, QDir::Name);
  }
};

TEST_F(SavingTest, FilesAreOpenedForReadingAsTheyAre) {
  writeTwoPalettes(u"c"_s);
  RecordingServices services;
  load(file);
  EXPECT_EQ(services.opened, QStringList({u"DrfTcCatalog.dtc 80000000 40 3"_s,
                                          u"a.dtc 80000000 40 3"_s, u"b.dtc 80000000 40 3"_s}));
}

TEST_F(SavingTest, FilesThatAreThereAreEmptiedAndOthersAreMade) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  RecordingServices services;
  ASSERT_TRUE(catalog->save());
  ASSERT_TRUE(catalog->save(stored(u"c\\new.dtc"_s)));
  ASSERT_TRUE(palette->save());
  ASSERT_TRUE(palette->saveCopy(stored(u"c\\copy.xtp"_s)));
  ASSERT_TRUE(palette->saveCopy(stored(u"c\\copy.xtp"_s)));
  ASSERT_TRUE(palette->saveAs(stored(u"c\\other.dtc"_s)));
  EXPECT_EQ(services.opened,
            QStringList({u"DrfTcCatalog.dtc 40000000 40 5"_s, u"new.dtc 40000000 40 2"_s,
                         u"a.dtc 40000000 40 5"_s, u"copy.xtp 40000000 40 2"_s,
                         u"copy.xtp 40000000 40 2"_s, u"other.dtc 40000000 40 2"_s}));
}

TEST_F(SavingTest, APaletteThatCannotBeSavedSaysSoAndRemembersWhy) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  const OdString path = palette->getPath();
  EXPECT_EQ(palette->getDatabase()->saveProblem(), OdString());
  {
    FailingServices services;
    services.bytesLeft = 10;
    EXPECT_FALSE(palette->save());
  }
  EXPECT_TRUE(wasTold(
      {u"Cannot save the palette"_s, odpath::toPlatform(path), u"No space left on device"_s}));
  EXPECT_TRUE(palette->getDatabase()->saveProblem().contains(odpath::toPlatform(path)));
  EXPECT_TRUE(palette->getDatabase()->saveProblem().contains(u"No space left on device"_s));
  EXPECT_EQ(palette->getPath(), path);
  EXPECT_TRUE(palette->save());
  EXPECT_EQ(palette->getDatabase()->saveProblem(), OdString());
}

TEST_F(SavingTest, APaletteThatIsSavedAtOnceIsThereAsItWasOrWhole) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  palette->setName(u"Renamed"_s);
  const QByteArray before = readFile(u"c\\Palettes\\a.dtc"_s);
  {
    FailingServices services;
    services.bytesLeft = 10;
    EXPECT_FALSE(palette->getDatabase()->saveAtOnce());
  }
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), before);
  EXPECT_FALSE(exists(u"c\\Palettes\\a.dtc.new"_s));
  EXPECT_EQ(palette->getDatabase()->saveProblem(),
            odpath::toPlatform(palette->getPath()) + u": No space left on device"_s);
  EXPECT_TRUE(palette->getDatabase()->saveAtOnce());
  EXPECT_TRUE(readFile(u"c\\Palettes\\a.dtc"_s).contains("Renamed"));
  EXPECT_EQ(palette->getDatabase()->attachedCount(), 0);
}

TEST_F(SavingTest, AFailedSaveKeepsTheAttachedObjects) {
  const OdTcToolPalettePtr read = loadedPalette("<Tools><Tool/></Tools>");
  const int before = read->getDatabase()->attachedCount();
  EXPECT_FALSE(read->saveAs(stored(u"gone\\p.dtc"_s)));
  EXPECT_EQ(read->getDatabase()->attachedCount(), before);
}

TEST_F(SavingTest, TheMarkOfAnUnreadPaletteStaysWithItsFile) {
  writeFile(u"p.dtc"_s, "<Palette><cut");
  const OdTcToolPalettePtr read = OdTcToolPalette::createObject();
  EXPECT_FALSE(read->load(stored(u"p.dtc"_s)));
  EXPECT_TRUE(read->saveAs(stored(u"other.dtc"_s)));
  EXPECT_FALSE(read->getDatabase()->isUnread()) << "this file is ours";
  EXPECT_TRUE(kept().isEmpty());
  EXPECT_TRUE(read->saveAs(stored(u"p.dtc"_s)));
  EXPECT_EQ(kept(), QStringList(u"p.dtc"_s));
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Unread\\p.dtc"_s), QByteArray("<Palette><cut"));
}

TEST_F(SavingTest, TheMarkOfAnUnreadCatalogStaysWithItsFile) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s, "<Catalog><cut");
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  EXPECT_FALSE(catalog->load(file));
  EXPECT_TRUE(catalog->save(stored(u"c\\other.dtc"_s)));
  EXPECT_FALSE(catalog->isUnread());
  EXPECT_TRUE(catalog->save(file));
  EXPECT_EQ(kept(), QStringList(u"DrfTcCatalog.dtc"_s));
}

TEST_F(SavingTest, OneCopyOfAnUnreadFileIsEnoughHoweverOftenTheSaveFails) {
  writeFile(u"p.dtc"_s, "<Palette><cut");
  writeFile(u"c\\DrfTcCatalog.dtc"_s, "<Catalog><cut");
  const OdTcToolPalettePtr read = OdTcToolPalette::createObject();
  read->load(stored(u"p.dtc"_s));
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->load(file);
  {
    FailingServices services;
    services.bytesLeft = 0;
    for (int i = 0; i < 3; ++i) {
      EXPECT_FALSE(read->save());
      EXPECT_THROW(catalog->save(), OdFileError);
    }
  }
  EXPECT_TRUE(read->getDatabase()->isUnread());
  EXPECT_TRUE(catalog->isUnread());
  EXPECT_TRUE(read->save());
  EXPECT_TRUE(catalog->save());
  EXPECT_EQ(kept(), QStringList({u"DrfTcCatalog.dtc"_s, u"p.dtc"_s}));
}

TEST_F(SavingTest, WhatAnotherProgramWroteIntoAPaletteIsKeptBeforeItIsSavedOver) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  writeFile(u"c\\Palettes\\a.dtc"_s, "another's");
  EXPECT_TRUE(palette->save());
  EXPECT_TRUE(readFile(u"c\\Palettes\\a.dtc"_s).contains("Alpha"));
  const QStringList copies = replaced();
  ASSERT_EQ(copies.size(), 1);
  EXPECT_TRUE(copies[0].startsWith(u"a 2"_s) && copies[0].endsWith(u".dtc"_s)) << text(copies[0]);
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Replaced\\"_s + copies[0]), QByteArray("another's"));
  EXPECT_TRUE(wasTold({u"another program has written"_s, copies[0]}));
  EXPECT_TRUE(palette->save());
  EXPECT_TRUE(palette->getDatabase()->saveAtOnce());
  EXPECT_EQ(replaced(), copies) << "what was written here is nobody else's";
  writeFile(u"c\\Palettes\\a.dtc"_s, "once more");
  EXPECT_TRUE(palette->getDatabase()->saveAtOnce());
  EXPECT_EQ(replaced().size(), 2);
}

TEST_F(SavingTest, WhatAnotherProgramWroteIntoACatalogIsKeptBeforeItIsSavedOver) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  EXPECT_TRUE(catalog->save());
  EXPECT_TRUE(replaced().isEmpty());
  writeFile(u"c\\DrfTcCatalog.dtc"_s, "another's");
  EXPECT_TRUE(catalog->save());
  ASSERT_EQ(replaced().size(), 1);
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Replaced\\"_s + replaced()[0]), QByteArray("another's"));
  EXPECT_TRUE(catalog->save());
  EXPECT_EQ(replaced().size(), 1);
}

TEST_F(SavingTest, AChangeThatLeavesTheSizeIsToldByItsTime) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  QFile palette(platform(u"c\\Palettes\\a.dtc"_s));
  ASSERT_TRUE(palette.open(QIODevice::ReadWrite));
  ASSERT_TRUE(palette.setFileTime(QDateTime::currentDateTime().addSecs(60),
                                  QFileDevice::FileModificationTime));
  palette.close();
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->save());
  EXPECT_EQ(replaced().size(), 1);
}

TEST_F(SavingTest, ACopyElsewhereLeavesThePaletteItsOwnFile) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  EXPECT_TRUE(palette->saveCopy(stored(u"c\\copy.dtc"_s)));
  EXPECT_TRUE(palette->save());
  EXPECT_TRUE(replaced().isEmpty());
  writeFile(u"c\\Palettes\\a.dtc"_s, "another's");
  EXPECT_TRUE(palette->saveCopy(stored(u"c\\copy2.dtc"_s)));
  EXPECT_TRUE(replaced().isEmpty()) << "nothing was written over";
  EXPECT_TRUE(palette->save());
  EXPECT_EQ(replaced().size(), 1);
}

TEST_F(SavingTest, WhatCannotBeKeptIsNotWrittenOver) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  writeFile(u"user\\ToolPalette\\Replaced"_s, "a file where the folder is to be");
  writeFile(u"c\\Palettes\\a.dtc"_s, "another's");
  EXPECT_FALSE(catalog->findPalette(u"A"_s)->save());
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), QByteArray("another's"));
  EXPECT_TRUE(wasTold({u"Cannot save the palette"_s, u"Replaced"_s}));
}

TEST_F(SavingTest, AFailedSaveGivesALoaderItsFirstFieldsBack) {
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteXml("A", "One"));
  writeFile(u"c\\Palettes\\b.dtc"_s, paletteXml("A", "Two"));
  writeFile(u"c\\DrfTcCatalog.dtc"_s,
            "<Catalog><ItemID idValue=\"C\"/><Palettes><Palette><ItemID idValue=\"A\"/>"
            "<Properties><ItemName resource=\"res\" src=\"lib\"/><Description>D</Description>"
            "</Properties><Url href=\"Palettes\\a.dtc\"/></Palette>" +
                loaderXml("A", "Palettes\\b.dtc") + "</Palettes></Catalog>");
  const OdTcCatalogPtr catalog = load(file);
  ASSERT_EQ(namesOf(catalog->palettesEnum()), QStringList({u"One"_s, u"Two"_s}));
  const OdTcCatalogItem* const loader = catalog->loaders()->at(0);
  const OdVariant time = loader->propertyValue(u"modifiedUniversalDateTime"_s);
  {
    FailingServices services;
    services.bytesLeft = 0;
    EXPECT_THROW(catalog->save(), OdFileError);
  }
  EXPECT_EQ(loader->propertyValue(u"ItemName"_s).toString(), OdString());
  EXPECT_EQ(loader->name(), u"res"_s) << "the resource goes on standing for the name";
  EXPECT_EQ(loader->description(), u"D"_s);
  EXPECT_EQ(loader->propertyValue(u"modifiedUniversalDateTime"_s), time);
}

TEST_F(SavingTest, APaletteWhoseLoaderIsHereGoesWhereTheLoaderSays) {
  writeTwoPalettes(u"c"_s);
  QFile::remove(platform(u"c\\Palettes\\a.dtc"_s));
  const OdTcCatalogPtr catalog = load(file);
  ASSERT_EQ(catalog->findPalette(u"A"_s), nullptr);
  const OdTcToolPalettePtr added = palette(u"Again"_s);
  added->setId(u"A"_s);
  catalog->addPalette(added);
  EXPECT_EQ(added->getPath(), stored(u"c\\Palettes\\a.dtc"_s));
  ASSERT_TRUE(catalog->save());
  EXPECT_EQ(catalog->loaders()->count(), 2) << "the loader serves the new palette";
  EXPECT_EQ(catalog->loaders()->at(0)->name(), u"Again"_s);
}

TEST_F(SavingTest, TheFileOfANewPaletteNeverLiesOutsideTheCatalogsFolder) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  for (const OdString& name : {u"../../out"_s, u"..\\..\\out"_s, u"a/b"_s, u".."_s}) {
    const OdTcToolPalettePtr added = palette(name);
    added->setId(u"..\\..\\x"_s);
    catalog->addItem(added);
    EXPECT_EQ(odpath::folderOf(added->getPath()), stored(u"c\\Palettes"_s)) << text(name);
    EXPECT_TRUE(added->save()) << text(added->getPath());
    EXPECT_EQ(added->name(), name) << "the name is as it was";
    catalog->unloadPalette(added->id());
  }
  EXPECT_EQ(QDir(platform(u"c"_s)).entryList(QDir::Files), QStringList(u"DrfTcCatalog.dtc"_s));
  EXPECT_FALSE(QDir(platform(u"."_s)).entryList(QDir::Files).join(u' ').contains(u"out"_s));
}

TEST_F(SavingTest, TheFileOfANewPaletteWithALongNameIsNamedAfterItsBeginning) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  // Of two and of four bytes each, so that both would be cut in their middle somewhere.
  const QStringList names = {u"x"_s + OdString(300, u'\u00fc'),
                             u"x"_s + u"\U0001F600"_s.repeated(100), OdString(10000, u'y')};
  for (const OdString& name : names) {
    const OdTcToolPalettePtr added = palette(name);
    catalog->addItem(added);
    const OdString own = odpath::fileNameOf(added->getPath());
    EXPECT_LE(own.toUtf8().size(), 255 - 4) << "a save puts .new behind it";
    EXPECT_TRUE(own.endsWith(u'_' + added->id() + u".dtc"_s)) << text(own);
    EXPECT_FALSE(own.contains(QChar::ReplacementCharacter)) << text(own);
    EXPECT_TRUE(added->save()) << text(own);
  }
  ASSERT_TRUE(catalog->save());
  const OdTcCatalogPtr again = load(file);
  for (const OdString& name : names) EXPECT_TRUE(again->findPaletteByName(name)) << text(name);
}

TEST_F(SavingTest, WithoutABaseARelativeLocationStaysRelative) {
  EXPECT_EQ(resolvedHref(u"p.dtc"_s, OdString()), u"p.dtc"_s);
  EXPECT_EQ(resolvedHref(u"x/p.dtc"_s, OdString()), u"x\\p.dtc"_s);
  EXPECT_EQ(resolvedHref(u"p.dtc"_s, u"C:\\x"_s), u"C:\\x\\p.dtc"_s);
}

struct WrongClassTest : SavingTest, testing::WithParamInterface<const char*> {};

TEST_P(WrongClassTest, EndsTheLoadOfItsFile) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s, QByteArray("<Catalog>") + GetParam() + "</Catalog>");
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  EXPECT_FALSE(catalog->load(file));
  EXPECT_TRUE(catalog->isUnread());
  EXPECT_TRUE(wasTold({file, u"Od"_s})) << text(theHost().log.join(u'\n'));
  EXPECT_EQ(catalog->groups()->count(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Elements, WrongClassTest,
    testing::Values("<Groups><ToolPaletteGroup><ItemID idValue=\"G\"/></ToolPaletteGroup>"
                    "<Tool a=\"1\"/></Groups>",
                    "<Groups><ToolPalette ID=\"A\"/></Groups>",
                    "<Groups><ToolPaletteGroup><Contents><Tool a=\"1\"/></Contents>"
                    "</ToolPaletteGroup></Groups>",
                    "<Groups><ToolPaletteGroup><Contents><Palette a=\"1\"/></Contents>"
                    "</ToolPaletteGroup></Groups>",
                    "<Palettes><ToolPaletteGroup a=\"1\"/></Palettes>",
                    "<Palettes><Data a=\"1\"/></Palettes>"));

TEST_F(SavingTest, AnElementOfNoClassIsDropped) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s,
            "<Catalog><Palettes><Other a=\"1\"/></Palettes><Groups><Other>text</Other>"
            "<ToolPaletteGroup><ItemID idValue=\"G\"/><Contents><Other a=\"1\"/><ToolPalette "
            "ID=\"A\"/></Contents></ToolPaletteGroup></Groups></Catalog>");
  const OdTcCatalogPtr catalog = load(file);
  ASSERT_EQ(catalog->groups()->count(), 1);
  EXPECT_EQ(OdTcGroupPtr(catalog->groups()->at(0))->contents()->count(), 1);
  EXPECT_EQ(catalog->loaders()->count(), 0);
}

TEST_F(SavingTest, AnAlienAmongTheToolsEndsTheLoadOfThePalette) {
  writeFile(u"p.dtc"_s, "<Palette><Tools><Tool a=\"1\"/><Data a=\"1\"/></Tools></Palette>");
  const OdTcToolPalettePtr read = OdTcToolPalette::createObject();
  EXPECT_FALSE(read->load(stored(u"p.dtc"_s)));
  EXPECT_TRUE(read->getDatabase()->isUnread());
}

} // namespace
