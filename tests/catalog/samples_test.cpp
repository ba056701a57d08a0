// Every catalog and palette that ships, and every fixture that can be read: loaded and saved, they
// are the same bytes from the first save on.
#include "catalog/catalog_fixture.h"
#include "support/data_file.h"

#include <QDirIterator>

namespace {

using namespace testhost;

struct SamplesTest : CatalogFixture {
  /// Copies a folder with all that is in it.
  void copyFolder(const QString& from, const OdString& to) const {
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      writeFile(to + u'/' + QDir(from).relativeFilePath(file.fileName()), file.readAll());
    }
  }
  /// The bytes of the catalog and of its palettes, by path, after one more load and save.
  QMap<OdString, QByteArray> savedOnce(const OdString& folder) const {
    const OdTcCatalogPtr catalog = load(stored(folder + u"\\DrfTcCatalog.dtc"_s));
    EXPECT_TRUE(catalog->save());
    const auto palettes = catalog->palettesEnum();
    while (OdTcToolPalette* const palette = palettes->next()) EXPECT_TRUE(palette->save());
    return filesOf(folder);
  }
  QMap<OdString, QByteArray> filesOf(const OdString& folder) const {
    QMap<OdString, QByteArray> bytes;
    QDirIterator files(platform(folder), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      bytes[file.fileName()] = file.readAll();
    }
    return bytes;
  }
};

TEST_F(SamplesTest, AreWhatThisProgramItselfSaves) {
  copyFolder(QStringLiteral(SOURCE_DIR "/samples/catalog"), u"samples"_s);
  const auto shipped = filesOf(u"samples"_s);
  ASSERT_GE(shipped.size(), 4) << "a catalog and its palettes";
  const auto first = savedOnce(u"samples"_s);
  EXPECT_EQ(first.keys(), shipped.keys());
  for (auto file = first.begin(); file != first.end(); ++file)
    EXPECT_EQ(file.value().toStdString(), shipped[file.key()].toStdString()) << text(file.key());
  EXPECT_EQ(savedOnce(u"samples"_s), first);
  EXPECT_EQ(theHost().log.filter(u"print"_s), QStringList()) << "there is nothing to complain of";
}

TEST_F(SamplesTest, EveryFolderOfFixturesSettlesWithTheFirstSave) {
  const QDir fixtures(QStringLiteral(TEST_DATA_DIR "/catalogs"));
  const QStringList folders = fixtures.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  ASSERT_FALSE(folders.isEmpty());
  for (const QString& folder : folders) {
    copyFolder(fixtures.filePath(folder), folder);
    const auto first = savedOnce(folder);
    EXPECT_EQ(savedOnce(folder), first) << text(folder);
  }
}

TEST_F(SamplesTest, HostileFilesNeverHarmTheirNeighboursAndSettleWithTheFirstSave) {
  const QDir fixtures(QStringLiteral(TEST_DATA_DIR "/hostile"));
  const QStringList files = fixtures.entryList(QDir::Files);
  ASSERT_GE(files.size(), 20);
  writeTwoPalettes(u"c"_s);
  const OdString path = stored(u"c\\Palettes\\a.dtc"_s);
  int readable = 0;
  for (const QString& name : files) {
    const QByteArray bytes = dataFile(u"hostile/"_s + name);
    writeFile(u"c\\Palettes\\a.dtc"_s, bytes);
    theHost().log.clear();
    const OdTcCatalogPtr catalog = load(stored(u"c\\DrfTcCatalog.dtc"_s));
    OdTcToolPalette* const other = catalog->findPalette(u"B"_s);
    ASSERT_TRUE(other) << text(name);
    EXPECT_EQ(other->name(), u"Beta"_s);
    OdTcToolPalette* hostile = nullptr;
    const auto palettes = catalog->palettesEnum();
    while (OdTcToolPalette* const each = palettes->next())
      if (each != other) hostile = each;
    ASSERT_TRUE(hostile) << text(name);
    EXPECT_EQ(wasTold({path}), !hostile->getDatabase()->readProblem().isEmpty()) << text(name);
    EXPECT_TRUE(catalog->save());
    EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), bytes) << text(name) << " is left alone";

    if (hostile->getDatabase()->isUnread()) continue;
    ++readable;
    hostile->setName(u"N"_s);
    ASSERT_TRUE(hostile->save());
    const QByteArray first = readFile(u"c\\Palettes\\a.dtc"_s);
    const OdTcToolPalettePtr again = OdTcToolPalette::createObject();
    ASSERT_TRUE(again->load(path)) << text(name);
    ASSERT_TRUE(again->save());
    EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), first) << text(name);
  }
  EXPECT_GE(readable, 3);
}

} // namespace
