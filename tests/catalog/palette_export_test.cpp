#include "catalog/palette_export.h"

#include "catalog/import_fixture.h"
#include "tools/action_agent.h"

#include <QXmlStreamReader>

namespace {

using namespace testhost;

struct PaletteExportTest : ImportFixture {
  PaletteExportTest() {
    writeFile(u"in\\p\\Images\\a.png"_s, png());
    palette = import(exported(
        toolXml("A",
                "<GeneralProperties><Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/>"
                "</BasicPropInfo><CreateInfo><AcCmColor mRGB=\"-1023410175\"/></CreateInfo></Color>"
                "</GeneralProperties><Command Macro=\"_A&#10;  b\"/>",
                "1", imageXml(".\\Images\\a.png")) +
            toolXml("B", "<Block><BlockName>D</BlockName><SourceFile>C:\\b.dwg</SourceFile>"
                         "<Scale>2</Scale></Block>"),
        "p", "<DependentFilesPath>p</DependentFilesPath>",
        "<Tool idValue=\"{B}\"/><Tool idValue=\"{A}\"/>"));
  }
  OdTcExportReport exportTo(const OdString& file) { return exportPalette(*palette, stored(file)); }
  /// The names of the elements down to the first one called `name`.
  static QStringList pathTo(const QByteArray& bytes, const OdString& name) {
    QXmlStreamReader xml(bytes);
    QStringList path;
    while (!xml.atEnd()) {
      xml.readNext();
      if (xml.isStartElement()) path << xml.name().toString();
      if (xml.isStartElement() && xml.name() == name) return path;
      if (xml.isEndElement()) path.removeLast();
    }
    return {};
  }

  OdTcToolPalettePtr palette;
};

TEST_F(PaletteExportTest, HasTheFormThatOtherProgramsLookFor) {
  const OdTcExportReport done = exportTo(u"out\\q.xtp"_s);
  EXPECT_TRUE(done.problem.isEmpty()) << text(done.problem);
  const QByteArray bytes = readFile(u"out\\q.xtp"_s);
  EXPECT_TRUE(bytes.startsWith("<ToolPaletteExport>"));
  EXPECT_TRUE(bytes.contains("<DependentFilesPath>q</DependentFilesPath>"));
  const QStringList data{u"ToolPaletteExport"_s, u"PaletteSets"_s, u"PaletteSetData"_s,
                         u"PaletteSetContent"_s, u"Palettes"_s,    u"PaletteData"_s};
  EXPECT_EQ(pathTo(bytes, u"Palette"_s), data + QStringList({u"PaletteContent"_s, u"Palette"_s}));
  EXPECT_EQ(pathTo(bytes, u"PaletteUI"_s), data + QStringList(u"PaletteUI"_s));
  EXPECT_EQ(pathTo(bytes, u"PaletteSetUI"_s), data.mid(0, 3) + QStringList(u"PaletteSetUI"_s));
  EXPECT_TRUE(bytes.contains("<CreateInfo>"));
  EXPECT_FALSE(bytes.contains("ColorCreateInfo"));
  EXPECT_TRUE(bytes.contains("src=\".\\Images\\a.png\""));
  EXPECT_TRUE(bytes.contains("<Tool idValue="));
  EXPECT_EQ(readFile(u"out\\q\\Images\\a.png"_s), png());
}

TEST_F(PaletteExportTest, PicturesAreFoundHoweverTheirSeparatorsAreWritten) {
  const auto tools = palette->enumTools();
  OdTcImageListPtr images;
  while (OdTcTool* const tool = tools->next())
    if (tool->name() == u"A"_s) images = tool->images();
  ASSERT_TRUE(images);
  const auto all = images->enumImages();
  while (OdTcImage* const image = all->next())
    image->setResource(image->src().replace(u'\\', u'/'), {});
  EXPECT_EQ(text(exportTo(u"out\\q.xtp"_s).problem), "");
  EXPECT_FALSE(readFile(u"out\\q.xtp"_s).contains("src=\"/"));
  ASSERT_TRUE(import(stored(u"out\\q.xtp"_s)));
  EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kFound);
}

TEST_F(PaletteExportTest, LeavesThePaletteItsOwnSources) {
  writeFile(u"c\\Palettes\\near.dwg"_s, "a drawing");
  OdTcToolActionAgent* agent = nullptr;
  const auto tools = palette->enumTools();
  while (OdTcTool* const tool = tools->next())
    if (tool->name() == u"B"_s) agent = tool->getActionAgent();
  ASSERT_TRUE(agent);
  agent->setSourcePath(u"near.dwg"_s);
  EXPECT_EQ(text(exportTo(u"out\\q.xtp"_s).problem), "");
  EXPECT_TRUE(readFile(u"out\\q.xtp"_s).contains("\\c\\Palettes\\near.dwg</SourceFile>"));
  EXPECT_EQ(agent->sourcePath(), u"near.dwg"_s);
}

TEST_F(PaletteExportTest, ComesBackAsItWasButForIdsAndTimes) {
  ASSERT_TRUE(exportTo(u"out\\p.xtp"_s).problem.isEmpty());
  const QByteArray before = withoutChance(readFile(u"out\\p.xtp"_s));
  writeFile(u"other\\DrfTcCatalog.dtc"_s, catalogXml({}));
  const OdTcCatalogPtr other = load(stored(u"other\\DrfTcCatalog.dtc"_s));
  const OdTcToolPalettePtr back = other->importPalette(stored(u"out\\p.xtp"_s), {}, report);
  ASSERT_TRUE(back) << text(report.problem);
  for (const OdTcImportedTool& tool : report.tools) EXPECT_EQ(tool.fate, OdTcToolFate::kTaken);
  ASSERT_TRUE(exportPalette(*back, stored(u"again\\p.xtp"_s)).problem.isEmpty());
  EXPECT_EQ(withoutChance(readFile(u"again\\p.xtp"_s)).toStdString(), before.toStdString());
  EXPECT_EQ(readFile(u"again\\p\\Images\\a.png"_s), png());
}

TEST_F(PaletteExportTest, HatchesGradientsRastersAndXrefsComeBackAsTheyWere) {
  palette = import(exported(
      toolXml("H", "<Hatch><hatchObjectType>0</hatchObjectType><HatchType>1</HatchType>"
                   "<PatternName>ANSI31</PatternName><Angle>0.5</Angle><Scale>2</Scale></Hatch>") +
          toolXml("G", "<Hatch><hatchObjectType>1</hatchObjectType><GradientName>LINEAR"
                       "</GradientName><GradientAngle>0.25</GradientAngle></Hatch>") +
          toolXml("R", "<Raster><SourceFile>C:\\p\\a.png</SourceFile><RasterName>a</RasterName>"
                       "<Scale>3</Scale></Raster>") +
          toolXml("X",
                  "<Block><BlockType>2</BlockType><BlockName>x</BlockName><SourceFile>C:\\x.dwg"
                  "</SourceFile><InsertAs>2</InsertAs><XrefType>2</XrefType></Block>"),
      "kinds"));
  ASSERT_TRUE(palette) << text(report.problem);
  for (const OdString& folder : {u"out"_s, u"again"_s}) QDir().mkpath(platform(folder));
  ASSERT_TRUE(exportTo(u"out\\kinds.xtp"_s).problem.isEmpty());
  const QByteArray first = withoutChance(readFile(u"out\\kinds.xtp"_s));
  for (const char* value : {"ANSI31", "LINEAR", "a.png", "x.dwg", "<XrefType>2<", "<Angle>0.5<"})
    EXPECT_TRUE(first.contains(value)) << value;
  writeFile(u"other\\DrfTcCatalog.dtc"_s, catalogXml({}));
  const OdTcCatalogPtr other = load(stored(u"other\\DrfTcCatalog.dtc"_s));
  const OdTcToolPalettePtr back = other->importPalette(stored(u"out\\kinds.xtp"_s), {}, report);
  ASSERT_TRUE(back) << text(report.problem);
  ASSERT_TRUE(exportPalette(*back, stored(u"again\\kinds.xtp"_s)).problem.isEmpty());
  EXPECT_EQ(withoutChance(readFile(u"again\\kinds.xtp"_s)).toStdString(), first.toStdString());
}

TEST_F(PaletteExportTest, TheFormThatSaveCopyWritesComesBackAsWell) {
  palette->setExporting(true);
  ASSERT_TRUE(palette->saveCopy(stored(u"out.xtp"_s)));
  palette->setExporting(false);
  EXPECT_TRUE(readFile(u"out.xtp"_s).startsWith("<Palette "));
  EXPECT_TRUE(exists(u"out\\Images\\a.png"_s));
  const OdTcToolPalettePtr back = import(stored(u"out.xtp"_s));
  ASSERT_TRUE(back);
  EXPECT_EQ(toolsOf(*back).size(), 2u);
  EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kFound);
}

TEST_F(PaletteExportTest, LeavesThePaletteWhereItIs) {
  const OdString path = palette->getPath();
  const auto before = allFiles();
  ASSERT_TRUE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  EXPECT_EQ(palette->getPath(), path);
  EXPECT_FALSE(palette->getDatabase()->isExporting());
  {
    FailingServices services;
    services.deniedFolder = stored(u"out\\q.xtp"_s);
    const OdTcExportReport failed = exportTo(u"out\\q.xtp"_s);
    EXPECT_TRUE(failed.problem.contains(u"Permission denied"_s));
  }
  EXPECT_EQ(palette->getPath(), path);
  EXPECT_FALSE(palette->getDatabase()->isExporting());
  for (auto file = before.begin(); file != before.end(); ++file)
    EXPECT_EQ(allFiles().value(file.key()), file.value()) << text(file.key());
}

TEST_F(PaletteExportTest, ReplacesThePicturesOfAFormerExport) {
  ASSERT_TRUE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  writeFile(u"out\\q\\Images\\a.png"_s, "old");
  writeFile(u"out\\q\\Images\\other.png"_s, "other");
  ASSERT_TRUE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  EXPECT_EQ(readFile(u"out\\q\\Images\\a.png"_s), png());
  EXPECT_EQ(readFile(u"out\\q\\Images\\other.png"_s), "other");
}

TEST_F(PaletteExportTest, AFailureAnywhereLeavesTheFormerExportAsItWas) {
  ASSERT_TRUE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  writeFile(u"out\\q\\Images\\a.png"_s, "old");
  QFile::remove(platform(u"out\\q\\Images\\a_missing.png"_s));
  const auto before = allFiles();
  const qsizetype whole = readFile(u"out\\q.xtp"_s).size();
  for (qsizetype room = 0; room < whole; room += whole / 7) {
    FailingServices services;
    services.bytesLeft = static_cast<std::uint64_t>(room);
    EXPECT_FALSE(exportTo(u"out\\q.xtp"_s).problem.isEmpty()) << room;
    EXPECT_EQ(allFiles(), before) << room;
  }
  for (const OdString& denied : {u"out\\q\\Images"_s, u"out\\q.xtp"_s, u"out\\q.xtp.new"_s}) {
    FailingServices services;
    services.deniedFolder = stored(denied);
    EXPECT_FALSE(exportTo(u"out\\q.xtp"_s).problem.isEmpty()) << text(denied);
    EXPECT_EQ(allFiles(), before) << text(denied);
  }
  ASSERT_TRUE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  EXPECT_EQ(allFiles().size(), before.size()) << "nothing is left of the exchange";
}

TEST_F(PaletteExportTest, AFirstExportThatFailsLeavesNothing) {
  QDir().mkpath(platform(u"out"_s));
  const auto before = allFiles();
  FailingServices services;
  services.bytesLeft = 100;
  EXPECT_FALSE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  EXPECT_EQ(allFiles(), before);
  EXPECT_FALSE(exists(u"out\\q"_s));
}

TEST_F(PaletteExportTest, NamesToolsWhosePictureIsGone) {
  for (const OdString& name : odrxSystemServices()->filesIn(stored(u"c\\Palettes\\Images"_s)))
    QFile::remove(platform(u"c\\Palettes\\Images\\"_s + name));
  QDir().mkpath(platform(u"out"_s));
  const OdTcCatalogPtr again = load(catalog().path());
  const OdTcExportReport done =
      exportPalette(*again->findPalette(palette->id()), stored(u"out\\q.xtp"_s));
  EXPECT_TRUE(done.problem.isEmpty());
  EXPECT_EQ(done.withoutPicture, QStringList(u"A"_s));
}

TEST_F(PaletteExportTest, KeepsTextsThatLookLikeReferences) {
  toolsOf(*palette)[0]->setName(u"&#x41; <b> ]]>"_s);
  ASSERT_TRUE(exportTo(u"out\\q.xtp"_s).problem.isEmpty());
  const OdTcToolPalettePtr back = import(stored(u"out\\q.xtp"_s));
  ASSERT_TRUE(back);
  EXPECT_EQ(toolsOf(*back)[0]->name(), u"&#x41; <b> ]]>"_s);
}

} // namespace
