// Configured folders of every kind: blank, locked, read-only, and with something else in the place
// of a file. A locked folder is a test double, since some users may enter any folder.
#include "catalog/configured_folders.h"

#include "catalog/catalog_fixture.h"
#include "frame/file_path.h"

#include <sys/stat.h>

namespace {

using namespace testhost;

/// A folder that may not be entered: its files are not even seen.
struct LockedFolder : FailingServices {
  explicit LockedFolder(const OdString& folder) { deniedFolder = folder; }
  bool fileExists(const OdString& path) override {
    return !path.startsWith(deniedFolder) && FailingServices::fileExists(path);
  }
  bool folderExists(const OdString& path) override {
    return !path.startsWith(deniedFolder + u'\\') && FailingServices::folderExists(path);
  }
};

/// A folder in which nothing can be changed.
struct ReadOnlyFolder : FailingServices {
  explicit ReadOnlyFolder(OdString folder)
    : m_folder(std::move(folder)) {}
  OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access,
                            Oda::FileShareMode share,
                            Oda::FileCreationDisposition creation) override {
    if (path.startsWith(m_folder) && (access & Oda::kFileWrite))
      throw OdFileError(eFileAccess, path, u"Read-only file system"_s);
    return FailingServices::createFile(path, access, share, creation);
  }
  bool createFolder(const OdString& path) override {
    return !path.startsWith(m_folder) && FailingServices::createFolder(path);
  }
  bool removeFile(const OdString& path) override {
    return !path.startsWith(m_folder) && FailingServices::removeFile(path);
  }

 private:
  OdString m_folder;
};

struct ConfiguredFoldersTest : CatalogFixture {
  OdTcPaletteManager* const manager = OdTcPaletteManager::instance();

  void configure(const OdString& folders) {
    theHost().application.settings[u"ToolPaletteDir"_s] = folders;
  }
  OdTcCatalog* catalogIn(const OdString& folder) const {
    const auto catalogs = manager->catalogsEnum();
    OdString path;
    OdTcCatalog* catalog = nullptr;
    while (catalogs->next(path, catalog))
      if (odpath::folderOf(path) == stored(folder)) return catalog;
    return nullptr;
  }
};

TEST_F(ConfiguredFoldersTest, BlanksAloneAreAnEmptySetting) {
  for (const OdString& blanks : {u""_s, u" "_s, u"   "_s, u"\t \t"_s}) {
    theHost().log.clear();
    configure(blanks);
    EXPECT_EQ(configuredCatalogFiles(), QStringList(u"\\DrfTcCatalog.dtc"_s));
    manager->loadCatalogs();
    EXPECT_EQ(theHost().log.filter(u"print"_s),
              QStringList(u"print \nError: cannot find catalog file: \\DrfTcCatalog.dtc"_s))
        << '"' << text(blanks) << '"';
    OdString path;
    OdTcCatalog* catalog = nullptr;
    EXPECT_FALSE(manager->catalogsEnum()->next(path, catalog));
  }
}

TEST_F(ConfiguredFoldersTest, SeparatorsAloneAreNoFolderAtAll) {
  for (const OdString& none : {u";"_s, u";;;"_s, u" ; ;"_s, u"\t;"_s}) {
    configure(none);
    EXPECT_EQ(configuredCatalogFiles(), QStringList()) << '"' << text(none) << '"';
    manager->loadCatalogs();
    EXPECT_FALSE(wasTold({u"Error"_s})) << '"' << text(none) << '"';
  }
}

TEST_F(ConfiguredFoldersTest, BlanksAroundAFolderAreNoneOfIts) {
  writeTwoPalettes(u"two words"_s);
  configure(u"  "_s + stored(u"two words"_s) + u"\t; "_s);
  manager->loadCatalogs();
  EXPECT_TRUE(catalogIn(u"two words"_s));
  EXPECT_FALSE(wasTold({u"Error"_s}));
}

TEST_F(ConfiguredFoldersTest, AFolderThatMayNotBeEnteredIsToldAndTheOthersLoad) {
  writeTwoPalettes(u"locked"_s);
  writeTwoPalettes(u"open"_s);
  configure(stored(u"locked"_s) + u';' + stored(u"open"_s));
  {
    const LockedFolder services(stored(u"locked"_s));
    manager->loadCatalogs();
    manager->reloadCatalogs();
  }
  EXPECT_TRUE(wasTold({u"cannot find catalog file"_s, stored(u"locked\\DrfTcCatalog.dtc"_s)}));
  EXPECT_FALSE(catalogIn(u"locked"_s));
  ASSERT_TRUE(catalogIn(u"open"_s));
  EXPECT_TRUE(catalogIn(u"open"_s)->findPalette(u"B"_s));
  manager->reloadCatalogs();
  EXPECT_TRUE(catalogIn(u"locked"_s)) << "it loads as soon as it may be entered";
}

TEST_F(ConfiguredFoldersTest, ACatalogThatMayNotBeReadIsToldWithTheReasonAndNeverSavedOver) {
  writeTwoPalettes(u"secret"_s);
  writeTwoPalettes(u"open"_s);
  const OdString path = stored(u"secret\\DrfTcCatalog.dtc"_s);
  const QByteArray bytes = readFile(u"secret\\DrfTcCatalog.dtc"_s);
  configure(stored(u"secret"_s) + u';' + stored(u"open"_s));
  FailingServices services;
  services.deniedFolder = stored(u"secret"_s);
  manager->loadCatalogs();
  EXPECT_TRUE(wasTold({path, u"Permission denied"_s})) << text(theHost().log.join(u'\n'));
  ASSERT_TRUE(catalogIn(u"secret"_s));
  EXPECT_TRUE(catalogIn(u"secret"_s)->isUnread());
  EXPECT_TRUE(catalogIn(u"open"_s)->findPalette(u"B"_s));
  manager->saveAll();
  EXPECT_TRUE(wasTold({u"Cannot save the catalog"_s, odpath::toPlatform(path)}));
  EXPECT_EQ(readFile(u"secret\\DrfTcCatalog.dtc"_s), bytes);
}

TEST_F(ConfiguredFoldersTest, AReadOnlyFolderIsReadAndEveryChangeSaysWhyItIsNotKept) {
  writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/>"));
  const OdString path = stored(u"c\\DrfTcCatalog.dtc"_s);
  const QByteArray bytes = readFile(u"c\\DrfTcCatalog.dtc"_s);
  const QByteArray paletteBytes = readFile(u"c\\Palettes\\a.dtc"_s);
  configure(stored(u"c"_s));
  const ReadOnlyFolder services(stored(u"c"_s));
  manager->loadCatalogs();
  EXPECT_EQ(theHost().log.filter(u"print"_s), QStringList()) << "reading needs no more";
  OdTcCatalog* const catalog = catalogIn(u"c"_s);
  ASSERT_TRUE(catalog);
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  ASSERT_TRUE(palette);

  EXPECT_TRUE(palette->addItem(tool(u"T"_s)));
  EXPECT_TRUE(
      wasTold({odpath::toPlatform(stored(u"c\\Palettes\\a.dtc"_s)), u"Read-only file system"_s}));
  EXPECT_EQ(palette->getDatabase()->tools()->count(), 1) << "the change stays in memory";
  EXPECT_FALSE(palette->save());
  manager->saveAll();
  EXPECT_TRUE(wasTold(
      {u"Cannot save the catalog"_s, odpath::toPlatform(path), u"Read-only file system"_s}));
  EXPECT_EQ(readFile(u"c\\DrfTcCatalog.dtc"_s), bytes);
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), paletteBytes);
  EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 2);
  EXPECT_EQ(catalog->groups()->count(), 1);
}

TEST_F(ConfiguredFoldersTest, APipeInThePlaceOfAFileStopsNobody) {
  QDir().mkpath(platform(u"pipe/Palettes"_s));
  ASSERT_EQ(mkfifo(platform(u"pipe/DrfTcCatalog.dtc"_s).toLocal8Bit().constData(), 0600), 0);
  writeTwoPalettes(u"c"_s);
  QFile::remove(platform(u"c\\Palettes\\a.dtc"_s));
  ASSERT_EQ(mkfifo(platform(u"c/Palettes/a.dtc"_s).toLocal8Bit().constData(), 0600), 0);
  configure(stored(u"pipe"_s) + u';' + stored(u"c"_s));
  manager->loadCatalogs();
  EXPECT_TRUE(wasTold({u"cannot find catalog file"_s, stored(u"pipe\\DrfTcCatalog.dtc"_s)}));
  ASSERT_TRUE(catalogIn(u"c"_s));
  EXPECT_EQ(namesOf(catalogIn(u"c"_s)->palettesEnum()), QStringList(u"Beta"_s));
}

TEST_F(ConfiguredFoldersTest, LinksThatLeadRoundInACircleAreMissingFiles) {
  QDir().mkpath(platform(u"a"_s));
  ASSERT_TRUE(QFile::link(platform(u"b"_s), platform(u"loop"_s)));
  ASSERT_TRUE(QFile::link(platform(u"loop"_s), platform(u"b"_s)));
  configure(stored(u"loop"_s));
  manager->loadCatalogs();
  EXPECT_TRUE(wasTold({u"cannot find catalog file"_s, stored(u"loop\\DrfTcCatalog.dtc"_s)}));
}

} // namespace
