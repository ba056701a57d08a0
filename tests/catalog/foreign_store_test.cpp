#include "catalog/foreign_store.h"

#include "catalog/import_fixture.h"

#include <unistd.h>

namespace {

using namespace testhost;

struct ForeignStore : ImportFixture {
  ForeignStore() { writeFile(u"s\\p.atc"_s, "<Palette><ItemID idValue=\"{P}\"/></Palette>"); }

  /// What a walk from a file of these bytes finds.
  const OdTcForeignPalettes& walk(const QByteArray& bytes) {
    writeFile(u"s\\c.atc"_s, bytes);
    found = {};
    findForeignPalettes(stored(u"s\\c.atc"_s), found);
    return found;
  }
  static QByteArray entry(const QByteArray& href = "p.atc") {
    return "<Palette><Url href=\"" + href + "\"/></Palette>";
  }
  QStringList thePalette() const { return {stored(u"s\\p.atc"_s)}; }

  OdTcForeignPalettes found;
};

TEST_F(ForeignStore, ThatBreaksOffGivesWhatItHeldAndSaysWhere) {
  EXPECT_EQ(walk("<Catalog><Palettes>" + entry() + "<Pal").files, thePalette());
  EXPECT_TRUE(problemsOf(found).contains(u"line 1, column"_s)) << text(problemsOf(found));
}

TEST_F(ForeignStore, WithoutEntriesSaysSo) {
  for (const char* bytes :
       {"<Catalog/>", "<Category></Category>", "<Catalog><Palettes/></Catalog>"}) {
    EXPECT_EQ(walk(bytes).files, QStringList()) << bytes;
    EXPECT_TRUE(problemsOf(found).contains(u"points to no palettes"_s)) << bytes;
  }
}

TEST_F(ForeignStore, IsReadAsPalettesAreWithRawAmpersandsAndUnknownEntities) {
  for (const char* name : {"a & b", "a &nbsp; b", "&#0;"}) {
    EXPECT_EQ(walk("<Catalog><Properties><ItemName>" + QByteArray(name) +
                   "</ItemName></Properties>" + entry() + "</Catalog>")
                  .files,
              thePalette())
        << name;
    EXPECT_EQ(problemsOf(found), OdString()) << name;
  }
}

TEST_F(ForeignStore, IsToldFromAPaletteBehindWhatMayStandBeforeTheFirstTag) {
  for (const char* before : {"", "\xEF\xBB\xBF", "\r\n ", "<?xml version=\"1.0\"?>",
                             "<!-- <Palette> -->", "<!DOCTYPE Catalog>"})
    EXPECT_EQ(walk(before + ("<Catalog>" + entry()) + "</Catalog>").files, thePalette()) << before;
}

TEST_F(ForeignStore, EntriesAreFoundWhateverTheirCase) {
  writeFile(u"s\\Palettes\\one.atc"_s, "<Palette/>");
  EXPECT_EQ(walk("<Catalog>" + entry("PALETTES\\ONE.ATC") + "</Catalog>").files,
            QStringList(stored(u"s\\Palettes\\one.atc"_s)));
  EXPECT_EQ(problemsOf(found), OdString());
}

TEST_F(ForeignStore, EntriesBehindLinksThatLeadOutAreNotFollowed) {
  writeFile(u"other\\o.atc"_s, "<Palette/>");
  ASSERT_EQ(::symlink(QFile::encodeName(platform(u"other\\o.atc"_s)).constData(),
                      QFile::encodeName(platform(u"s\\l.atc"_s)).constData()),
            0);
  EXPECT_EQ(walk("<Catalog>" + entry("l.atc") + "</Catalog>").files, QStringList());
  EXPECT_TRUE(problemsOf(found).contains(u"leads out"_s)) << text(problemsOf(found));
}

TEST_F(ForeignStore, APaletteInTheCatalogItselfIsNamed) {
  walk("<Catalog>" + entry() +
       "<Palette><Properties><ItemName>Inline</ItemName></Properties><Tools>"
       "<Tool/></Tools></Palette></Catalog>");
  EXPECT_EQ(found.files, thePalette());
  EXPECT_TRUE(problemsOf(found).contains(u"\"Inline\""_s)) << text(problemsOf(found));
}

TEST_F(ForeignStore, InAFolderEntriesMayLeadToItsOtherFolders) {
  writeFile(u"f\\sub\\up.atc"_s, "<Catalog>" + entry("..\\Palettes\\one.atc") + "</Catalog>");
  writeFile(u"f\\Palettes\\one.atc"_s, "<Palette/>");
  writeFile(u"f\\x.xtp"_s, "<Palette/>");
  findForeignPalettes(stored(u"f"_s), found);
  EXPECT_EQ(problemsOf(found), OdString());
  EXPECT_EQ(found.files.size(), 2);
  found = {};
  findForeignPalettes(stored(u"f\\sub\\up.atc"_s), found);
  EXPECT_TRUE(problemsOf(found).contains(u"leads out"_s)) << "on its own its home is its folder";
}

TEST_F(ForeignStore, AFolderWithoutPalettesSaysSo) {
  QDir().mkpath(platform(u"empty"_s));
  findForeignPalettes(stored(u"empty"_s), found);
  EXPECT_TRUE(problemsOf(found).contains(u"no palettes in the folder"_s));
}

} // namespace
