// Saves that fail, and files that cannot be read.
#include "catalog/catalog.h"

#include "catalog/catalog_fixture.h"
#include "catalog/write_file.h"
#include "module/persist_impl.h"

namespace {

using namespace testhost;

struct CatalogFilesTest : CatalogFixture {
  const OdString file = stored(u"c\\DrfTcCatalog.dtc"_s);

  QByteArray saved() const { return readFile(u"c\\DrfTcCatalog.dtc"_s); }
  /// What unreadable files are kept as.
  QStringList kept() const {
    return QDir(platform(u"user/ToolPalette/Unread"_s)).entryList(QDir::Files);
  }
};

TEST_F(CatalogFilesTest, AFailedOpeningRaisesThePathAndTheReasonAndLeavesAllAsItWas) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  catalog->findPalette(u"A"_s)->setName(u"Renamed"_s);
  const OdTcToolPalettePtr added = palette(u"New"_s);
  catalog->addItem(added);
  const OdVariant loaderTime =
      catalog->loaders()->find(u"A"_s)->propertyValue(u"modifiedUniversalDateTime"_s);
  const OdString target = stored(u"gone\\DrfTcCatalog.dtc"_s);
  try {
    catalog->save(target);
    FAIL() << "the folder does not exist";
  } catch (const OdFileError& error) {
    EXPECT_EQ(error.path(), target);
    EXPECT_FALSE(error.reason().isEmpty());
  }
  EXPECT_EQ(catalog->path(), file);
  EXPECT_EQ(catalog->loaders()->count(), 2);
  EXPECT_EQ(catalog->loaders()->find(u"A"_s)->name(), u"A"_s);
  EXPECT_EQ(catalog->loaders()->find(u"A"_s)->propertyValue(u"modifiedUniversalDateTime"_s),
            loaderTime);
  EXPECT_TRUE(catalog->findPalette(added->id()));
  EXPECT_TRUE(catalog->save()) << "and can be saved where it was";
}

TEST_F(CatalogFilesTest, AFullDiskLeavesTheObjectsAsTheyWere) {
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  catalog->addItem(palette(u"New"_s));
  for (const std::uint64_t bytes : {0u, 1u, 100u, 400u}) {
    FailingServices services;
    services.bytesLeft = bytes;
    try {
      catalog->save();
      FAIL() << bytes;
    } catch (const OdFileError& error) {
      EXPECT_EQ(error.path(), file);
      EXPECT_EQ(error.reason(), u"No space left on device"_s);
    }
    EXPECT_EQ(catalog->loaders()->count(), 2) << bytes;
    EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 3);
  }
  EXPECT_TRUE(catalog->save());
  EXPECT_EQ(catalog->loaders()->count(), 3);
}

TEST_F(CatalogFilesTest, AFailedFirstSaveTakesBackThePlaceThatItGaveToPalettes) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  const OdTcToolPalettePtr added = palette(u"New"_s);
  catalog->addItem(added);
  FailingServices services;
  services.deniedFolder = stored(u"c"_s);
  EXPECT_THROW(catalog->save(file), OdFileError);
  EXPECT_EQ(catalog->path(), OdString());
  EXPECT_EQ(added->getPath(), OdString());
  EXPECT_EQ(catalog->loaders()->count(), 0);
}

struct UnreadableCatalogTest : CatalogFilesTest, testing::WithParamInterface<QByteArray> {};

TEST_P(UnreadableCatalogTest, IsToldByNameMarkedAndKeptBeforeItIsSavedOver) {
  const QByteArray bytes = GetParam();
  writeFile(u"c\\DrfTcCatalog.dtc"_s, bytes);
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  EXPECT_FALSE(catalog->load(file));
  EXPECT_TRUE(wasTold({file})) << text(theHost().log.join(u'\n'));
  EXPECT_TRUE(catalog->isUnread());
  EXPECT_FALSE(catalog->readProblem().isEmpty());
  EXPECT_EQ(catalog->loaders()->count(), 0);
  EXPECT_EQ(catalog->groups()->count(), 0);
  EXPECT_EQ(saved(), bytes);

  EXPECT_TRUE(catalog->save());
  ASSERT_EQ(kept().size(), 1);
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Unread\\"_s + kept().first()), bytes);
  EXPECT_TRUE(wasTold({u"is kept"_s, file}));
  EXPECT_FALSE(catalog->isUnread());
  EXPECT_TRUE(catalog->save());
  EXPECT_EQ(kept().size(), 1) << "from now on the file is ours";
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnreadableCatalogTest,
    testing::Values("", "no xml", "<Catalog><cut", "<Palette/>", QByteArray("\xFF\xFE<\0", 4),
                    "<Catalog><Groups><ToolPaletteGroup/></Groups><cut",
                    "<Catalog><Palettes><Groups/></Palettes><Properties/></Palettes></Catalog>"));

TEST_F(CatalogFilesTest, AnUnreadFileIsNotOverwrittenIfItCannotBeKept) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s, "<cut");
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->load(file);
  FailingServices services;
  services.deniedFolder = stored(u"user"_s);
  EXPECT_THROW(catalog->save(), OdFileError);
  EXPECT_EQ(saved(), QByteArray("<cut"));
  EXPECT_TRUE(catalog->isUnread());
}

TEST_F(CatalogFilesTest, AnUnreadCatalogSavedElsewhereKeepsNothing) {
  writeFile(u"c\\DrfTcCatalog.dtc"_s, "<cut");
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->load(file);
  QDir().mkpath(platform(u"d"_s));
  EXPECT_TRUE(catalog->save(stored(u"d\\DrfTcCatalog.dtc"_s)));
  EXPECT_TRUE(kept().isEmpty());
  EXPECT_EQ(saved(), QByteArray("<cut"));
}

TEST_F(CatalogFilesTest, AFileCutAtAnyByteNeverCrashesAndIsLeftAlone) {
  const OdTcCatalogPtr whole =
      load(writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>")));
  ASSERT_TRUE(whole->save());
  const QByteArray bytes = saved();
  ASSERT_GT(bytes.size(), 1000);
  for (qsizetype length = 0; length + 2 < bytes.size(); ++length) {
    writeFile(u"cut\\DrfTcCatalog.dtc"_s, bytes.left(length));
    const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
    const bool isRead = catalog->load(stored(u"cut\\DrfTcCatalog.dtc"_s));
    EXPECT_TRUE(!isRead || catalog->isUnread()) << length;
    EXPECT_EQ(readFile(u"cut\\DrfTcCatalog.dtc"_s), bytes.left(length));
    theHost().log.clear();
  }
}

TEST_F(CatalogFilesTest, AnUnreadablePaletteStandsInItsPlaceAndIsNotSavedOver) {
  writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>"));
  writeFile(u"c\\Palettes\\a.dtc"_s, "<Palette><cut");
  theHost().log.clear();
  OdTcCatalogPtr catalog = load(file);
  const qsizetype told = theHost().log.indexOf(theHost().log.filter(u"a.dtc"_s).value(0));
  const qsizetype box =
      theHost().log.indexOf(theHost().log.filter(u"Error while reading"_s).value(0));
  EXPECT_GE(told, 0) << text(theHost().log.join(u'\n'));
  EXPECT_GT(box, told);
  OdTcToolPalette* const unread = catalog->findPalette(u"A"_s);
  ASSERT_TRUE(unread);
  EXPECT_EQ(unread->name(), u"A"_s) << "the loader's name";
  EXPECT_TRUE(unread->getDatabase()->isUnread());
  EXPECT_TRUE(unread->addItem(tool(u"T"_s)));
  EXPECT_TRUE(wasTold({u"left as it is"_s, stored(u"c\\Palettes\\a.dtc"_s)}));
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), QByteArray("<Palette><cut"));
  catalog->save();
  EXPECT_TRUE(saved().contains("<ToolPalette ID=\"A\" />")) << "groups go on naming it";
  EXPECT_EQ(load(file)->loaders()->count(), 2);
  EXPECT_TRUE(unread->save());
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Unread\\a.dtc"_s), QByteArray("<Palette><cut"));
  EXPECT_FALSE(unread->getDatabase()->isUnread());
}

TEST_F(CatalogFilesTest, APaletteThatMayNotBeReadIsToldWithTheReason) {
  writeTwoPalettes(u"c"_s);
  struct NoReading : FailingServices {
    OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access,
                              Oda::FileShareMode share,
                              Oda::FileCreationDisposition creation) override {
      if (path.endsWith(u"a.dtc"_s)) throw OdFileError(eFileAccess, path, u"Permission denied"_s);
      return FailingServices::createFile(path, access, share, creation);
    }
  } services;
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_TRUE(wasTold({stored(u"c\\Palettes\\a.dtc"_s), u"Permission denied"_s}));
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->getDatabase()->isUnread());
}

TEST_F(CatalogFilesTest, AFailureBeforeTheFirstByteLeavesTheOldFileWhole) {
  struct Breaking : OdTcPersistImpl<OdTcPersist> {
    void writeFields(OdTcFiler* filer) override {
      filer->writeElement(u"T"_s, u"t"_s);
      throw OdError(eNotApplicable, u"half a document"_s);
    }
  };
  const auto root = odrxMake<Breaking>();
  CatalogFixture::writeFile(u"c\\old.dtc"_s, "old");
  const auto write = [&](const OdString& name) {
    const OdString path = stored(name);
    tc::writeFile(path, creationFor(path), *makeCatalogFiler(), root, &OdTcFiler::openCatalog);
  };
  EXPECT_THROW(write(u"c\\old.dtc"_s), OdError);
  EXPECT_EQ(readFile(u"c\\old.dtc"_s), QByteArray("old"));
  EXPECT_THROW(write(u"c\\new.dtc"_s), OdError);
  EXPECT_FALSE(exists(u"c\\new.dtc"_s));
}

TEST_F(CatalogFilesTest, AFolderInThePlaceOfAPaletteFileIsToldAndStandsUnread) {
  writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>"));
  QFile::remove(platform(u"c\\Palettes\\a.dtc"_s));
  CatalogFixture::writeFile(u"c\\Palettes\\a.dtc\\inside.txt"_s, "kept");
  const OdTcCatalogPtr catalog = load(file);
  EXPECT_TRUE(wasTold({stored(u"c\\Palettes\\a.dtc"_s), u"it is a folder"_s}));
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  ASSERT_TRUE(palette);
  EXPECT_EQ(palette->name(), u"A"_s);
  EXPECT_TRUE(palette->getDatabase()->isUnread());
  EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 2) << "the other one is unharmed";
  EXPECT_TRUE(palette->addItem(tool(u"T"_s)));
  EXPECT_TRUE(wasTold({u"left as it is"_s}));
  EXPECT_FALSE(palette->save());
  EXPECT_TRUE(catalog->save());
  EXPECT_TRUE(saved().contains("<ToolPalette ID=\"A\" />")) << "groups go on naming it";
  EXPECT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc\\inside.txt"_s), QByteArray("kept"));
}

} // namespace
