// The element tables of catalogs, groups, palettes, their display records and tools.
//
// The files of tests/data/catalogs are what a save writes: loading and saving them must give the
// same bytes.
#include "catalog/catalog_fixture.h"
#include "catalog/palette_ui.h"
#include "catalog/source_impl.h"
#include "persistence/filer.h"
#include "support/data_file.h"

namespace {

using namespace testhost;

struct ElementTablesTest : CatalogFixture {
  const OdString catalogFile = u"c\\DrfTcCatalog.dtc"_s;
  const OdString paletteFile = u"c\\Palettes\\full.dtc"_s;
  const QByteArray catalogBytes = dataFile(u"catalogs/full/DrfTcCatalog.dtc"_s);
  const QByteArray paletteBytes = dataFile(u"catalogs/full/Palettes/full.dtc"_s);

  void copyData() const {
    ASSERT_FALSE(catalogBytes.isEmpty() || paletteBytes.isEmpty());
    writeFile(catalogFile, catalogBytes);
    writeFile(paletteFile, paletteBytes);
  }
};

TEST_F(ElementTablesTest, ACatalogIsWrittenAsItWasRead) {
  copyData();
  const OdTcCatalogPtr catalog = load(stored(catalogFile));
  ASSERT_TRUE(catalog->save());
  EXPECT_EQ(readFile(catalogFile).toStdString(), catalogBytes.toStdString());
}

TEST_F(ElementTablesTest, APaletteIsWrittenAsItWasRead) {
  copyData();
  const OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
  ASSERT_TRUE(palette->load(stored(paletteFile)));
  ASSERT_TRUE(palette->save());
  EXPECT_EQ(readFile(paletteFile).toStdString(), paletteBytes.toStdString());
}

TEST_F(ElementTablesTest, AttributesAndElementsInAnotherOrderReadAlike) {
  writeFile(u"p.dtc"_s,
            "<Palette><PaletteUI><PreviewStyle>3</PreviewStyle><SortType>2</SortType>"
            "</PaletteUI><Tools><Tool option=\"3\" Revision=\"7.0\"><ToolType>1</ToolType>"
            "<ItemID idValue=\"T\"/></Tool></Tools><ItemID idValue=\"P\"/></Palette>");
  const OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
  ASSERT_TRUE(palette->load(stored(u"p.dtc"_s)));
  EXPECT_EQ(palette->id(), u"P"_s);
  EXPECT_EQ(palette->getSortType(), 2);
  const OdTcCatalogItem* const tool = palette->getDatabase()->tools()->at(0);
  EXPECT_EQ(tool->id(), u"T"_s);
  EXPECT_EQ(tool->options(), 3u);
  EXPECT_EQ(tool->revision(), u"7.0"_s);
}

TEST_F(ElementTablesTest, FromTheFirstSaveOnTheBytesStayTheSame) {
  writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/><ToolPalette ID=\"none\"/>"));
  writeFile(
      u"c\\Palettes\\a.dtc"_s,
      paletteXml("A", "Alpha",
                 "<PaletteStyle>1</PaletteStyle><Tools><Tool><ToolType>1</ToolType>"
                 "<StockToolRef idValue=\"S\"/><Data><Command Macro=\"a\n  b\"/></Data></Tool>"
                 "</Tools>"));
  QByteArray catalogText, paletteText;
  for (int round = 0; round < 3; ++round) {
    const OdTcCatalogPtr catalog = load(stored(catalogFile));
    ASSERT_TRUE(catalog->save());
    ASSERT_TRUE(catalog->findPalette(u"A"_s)->save());
    const QByteArray catalogNow = readFile(catalogFile);
    const QByteArray paletteNow = readFile(u"c\\Palettes\\a.dtc"_s);
    if (round > 0) {
      EXPECT_EQ(catalogNow.toStdString(), catalogText.toStdString());
      EXPECT_EQ(paletteNow.toStdString(), paletteText.toStdString());
    }
    catalogText = catalogNow;
    paletteText = paletteNow;
  }
}

TEST_F(ElementTablesTest, APaletteHandleWritesTheFieldsOfAnItemAlone) {
  const OdTcToolPalettePtr handle = palette(u"P"_s);
  EXPECT_EQ(handle->elementName(), u"ToolPalette"_s);
  struct Holder : OdTcPersistImpl<OdTcPersist> {
    OdTcToolPalettePtr handle;
    OdString elementName() const override { return u"Holder"_s; }
    void writeFields(OdTcFiler* filer) override { filer->writeObject(handle); }
  };
  const auto holder = odrxMake<Holder>();
  holder->handle = handle;
  const auto stream = odrxMake<OdMemoryStream>();
  const OdTcFilerPtr filer = makeCatalogFiler();
  ASSERT_TRUE(filer->openCatalog(stream, holder, true));
  filer->flush();
  const QByteArray bytes = stream->bytes();
  EXPECT_TRUE(
      bytes.contains("<ToolPalette Revision=\"8.0\" option=\"0\">\n        <ItemID idValue=\"" +
                     handle->id().toUtf8() + "\" />\n        <Properties>"))
      << bytes.toStdString();
  EXPECT_FALSE(bytes.contains("Tools"));
  EXPECT_FALSE(bytes.contains("FileRevision"));
}

TEST_F(ElementTablesTest, SourcesAreReadAndWriteNothing) {
  OdTcToolSourceImpl source;
  EXPECT_TRUE(source.readField(u"ID"_s, OdVariant(u"1"_s)));
  EXPECT_TRUE(source.readField(u"Palette"_s, OdVariant(u"P"_s)));
  EXPECT_FALSE(source.readField(u"Other"_s, OdVariant(u"x"_s)));
  EXPECT_EQ(source.sourceId(), u"1"_s);
  EXPECT_EQ(source.sourcePalette(), u"P"_s);
  EXPECT_EQ(source.elementName(), u"ToolSource"_s);
}

TEST_F(ElementTablesTest, AChildOfTheWrongClassRaises) {
  const OdVariant wrong(OdTcTool::createObject());
  const std::pair<OdTcPersistPtr, OdString> places[] = {
      {OdTcCatalog::createObject(), u"Groups"_s},
      {OdTcCatalog::createObject(), u"Palettes"_s},
      {OdTcCatalog::createObject(), u"CatalogItemOrder"_s},
      {OdTcGroup::createObject(), u"Contents"_s},
      {OdTcGroupList::createObject(), u"ToolPaletteGroup"_s},
      {OdTcPaletteLoaderList::createObject(), u"Palette"_s},
      {OdTcPaletteUiProperties::createObject(), u"CatalogView"_s},
      {OdTcTool::createObject(), u"Data"_s},
  };
  for (const auto& [object, name] : places)
    EXPECT_THROW(object->readField(name, wrong), OdError_NotThatKindOfClass) << text(name);
}

} // namespace
