// The files of tools' pictures: what cannot be written is told, what others show stays.
#include "catalog/catalog_fixture.h"
#include "images/image_list.h"
#include "module/properties.h"

namespace {

using namespace testhost;

QByteArray image(const QByteArray& src) {
  return "<Image cx=\"16\" cy=\"16\" src=\"" + src + "\"/>";
}

QByteArray pictured(const QByteArray& id, const QByteArray& images) {
  return "<Tool><ItemID idValue=\"" + id + "\"/><Properties><ItemName>" + id +
         "</ItemName><Images option=\"0\">" + images +
         "</Images></Properties><ToolType>1</ToolType></Tool>";
}

struct PictureFiles : CatalogFixture {
  /// A tool with three pictures that are nowhere else yet.
  void addPictured(OdTcToolPalette& palette, const OdString& name) const {
    const OdTcToolPtr made = tool(name);
    palette.getDatabase()->addTool(made);
    made->setImages(OdTcImageList::createObject());
    ASSERT_TRUE(made->images()->setFrom([](OdTcImage& picture) {
      const OdCmColor grey = OdCmColor::fromRgb(9, 9, 9);
      return picture.makeFromGradient(u"LINEAR"_s, grey, grey);
    }));
  }
  static int timesTold(const OdString& part) {
    int count = 0;
    for (const OdString& line : theHost().log)
      count += line.startsWith(u"print") && line.contains(part);
    return count;
  }
};

TEST_F(PictureFiles, ThatCannotBeWrittenAreToldAndThePaletteIsWhole) {
  const OdTcToolPalettePtr palette = loadedPalette("<Tools/>");
  writeFile(u"Images"_s, "mine");
  addPictured(*palette, u"T"_s);
  EXPECT_TRUE(palette->save());
  const QStringList problems = palette->getDatabase()->unsavedPictures();
  ASSERT_EQ(problems.size(), 3);
  EXPECT_TRUE(problems[0].contains(stored(u"Images"_s) + u" is a file and no folder"_s));
  for (const OdString& problem : problems)
    EXPECT_TRUE(wasTold({u"Cannot save the picture"_s, problem}));
  EXPECT_TRUE(readFile(u"loaded.dtc"_s).contains("<ItemName>T</ItemName>"));
  EXPECT_EQ(readFile(u"Images"_s), QByteArray("mine"));

  QFile::remove(platform(u"Images"_s));
  EXPECT_TRUE(palette->save());
  EXPECT_TRUE(palette->getDatabase()->unsavedPictures().isEmpty());
  EXPECT_EQ(QDir(platform(u"Images"_s)).entryList(QDir::Files).size(), 3) << "nothing was lost";
}

TEST_F(PictureFiles, ThatCannotBeWrittenAreToldInAFewLines) {
  const OdTcToolPalettePtr palette = loadedPalette("<Tools/>");
  for (int i = 0; i < 5; ++i) addPictured(*palette, u"T%1"_s.arg(i));
  FailingServices services;
  services.deniedFolder = stored(u"Images"_s);
  EXPECT_TRUE(palette->save());
  EXPECT_EQ(palette->getDatabase()->unsavedPictures().size(), 15);
  EXPECT_EQ(timesTold(u"Cannot save the picture"_s), 3);
  EXPECT_EQ(timesTold(u"Pictures not saved in all: 15"_s), 1);
}

/// A catalog with two palettes in one folder of pictures. A1 and A2 of the first and B1 of the
/// other share "shared.png", each spells it its own way; "own.png" is A1's alone.
struct SharedPictures : PictureFiles {
  void SetUp() override {
    for (const auto* const name : {u"own.png", u"shared.png", u"group.png"})
      writeFile(u"c\\Palettes\\Images\\"_s + OdString::fromUtf16(name), "a picture");
    writeFile(
        u"c\\Palettes\\a.dtc"_s,
        paletteXml("{A}", "A",
                   "<Tools>" +
                       pictured("{A1}", image("\\Images\\own.png") + image("\\Images\\shared.png") +
                                            image("\\Images\\group.png")) +
                       pictured("{A2}", image("Images/SHARED.png")) + "</Tools>"));
    writeFile(
        u"c\\Palettes\\b.dtc"_s,
        paletteXml("{B}", "B",
                   "<Tools>" + pictured("{B1}", image("\\Images\\.\\shared.png")) + "</Tools>"));
    writeFile(u"c\\DrfTcCatalog.dtc"_s,
              catalogXml(loaderXml("{A}", "Palettes\\a.dtc") + loaderXml("{B}", "Palettes\\b.dtc"),
                         "<ToolPaletteGroup><ItemID idValue=\"{G}\"/><Properties>"
                         "<ItemName>G</ItemName><Images option=\"0\">" +
                             image("\\Palettes\\Images\\group.png") +
                             "</Images></Properties></ToolPaletteGroup>"));
    catalog = load(stored(u"c\\DrfTcCatalog.dtc"_s));
    ASSERT_TRUE(catalog);
  }
  OdTcToolPalette& palette(const char16_t* id) const {
    return *catalog->findPalette(OdString::fromUtf16(id));
  }
  QStringList pictures() const {
    return QDir(platform(u"c/Palettes/Images"_s)).entryList(QDir::Files, QDir::Name);
  }

  OdTcCatalogPtr catalog;
};

TEST_F(SharedPictures, StayUntilTheLastToolThatShowsThemGoes) {
  EXPECT_TRUE(palette(u"{A}").removeItem(u"{A1}"_s));
  EXPECT_EQ(pictures(), (QStringList{u"group.png"_s, u"shared.png"_s}));
  EXPECT_TRUE(palette(u"{A}").removeItem(u"{A2}"_s));
  EXPECT_EQ(pictures(), (QStringList{u"group.png"_s, u"shared.png"_s}));
  EXPECT_TRUE(palette(u"{B}").removeItem(u"{B1}"_s));
  EXPECT_EQ(pictures(), QStringList(u"group.png"_s));
}

TEST_F(SharedPictures, StayWhenOneToolGetsAnother) {
  OdTcCatalogItem* const tool = palette(u"{A}").getDatabase()->tools()->find(u"{A1}"_s);
  tool->images()->removeAll(true);
  EXPECT_EQ(pictures(), (QStringList{u"group.png"_s, u"shared.png"_s}));
}

TEST_F(SharedPictures, GoWithAllTheirToolsAtOnce) {
  palette(u"{B}").removeItem(u"{B1}"_s);
  palette(u"{A}").getDatabase()->tools()->removeWhere([](const OdTcTool&) { return true; });
  EXPECT_EQ(pictures(), QStringList(u"group.png"_s));
}

TEST_F(SharedPictures, StayAsLongAsAPaletteCannotBeRead) {
  writeFile(u"c\\Palettes\\b.dtc"_s, "<Palette><cut");
  catalog = OdTcCatalog::createObject();
  catalog->load(stored(u"c\\DrfTcCatalog.dtc"_s));
  EXPECT_TRUE(palette(u"{A}").removeItem(u"{A1}"_s));
  EXPECT_EQ(pictures().size(), 3);
}

} // namespace
