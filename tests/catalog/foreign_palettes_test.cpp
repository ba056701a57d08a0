// Palettes as other programs export them: every habit of theirs is a file in tests/data/xtp, and
// beside it stands what comes of an import. With the variable DRAFTON_WRITE_GOLDEN set the latter
// are written first.
#include "catalog/import_fixture.h"

#include "catalog/palette_export.h"
#include "catalog/tool_impl.h"
#include "properties/color_value.h"
#include "properties/property_bag.h"
#include "tools/block_tool.h"
#include "tools/hatch_tool.h"
#include "tpal/import_text.h"

#include <QJsonDocument>

namespace {

using namespace testhost;

struct ForeignPalettes : ImportFixture, testing::WithParamInterface<QString> {
  ForeignPalettes() {
    writeFile(u"routes.xml"_s, "<Entries><Entry><OdRxClassInfo className=\"OdDbCircle\"/>"
                               "<Command name=\"ADDSELECTED\"><StartCommand name=\"CIRCLE\"/>"
                               "</Command></Entry></Entries>");
    theHost().routeMap = stored(u"routes.xml"_s);
    QImage button(16, 16, QImage::Format_ARGB32);
    button.fill(Qt::red);
    theHost().icons.images = {{u"CIRCLE"_s, button}, {u"line"_s, button}, {u"LINE"_s, button}};
    theHost().menu.entries = {{true, u"CIRCLE"_s, u"Circle"_s, {}, u"^C^C_CIRCLE "_s}};
  }
};

TEST_P(ForeignPalettes, ComeInAsTheGoldenFileSays) {
  const OdTcToolPalettePtr palette = import(given(GetParam()));
  ASSERT_TRUE(palette) << text(report.problem);
  QJsonObject row = tpal::jsonOf(report, false);
  row[u"file"_s] = odpath::fromPlatform(row[u"file"_s].toString()); // one file for all systems
  QByteArray result = QJsonDocument(row).toJson();
  QFile file(odpath::toPlatform(palette->getPath()));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  result += file.readAll();
  result = withoutChance(result);
  const QString golden = QStringLiteral("xtp/%1.golden").arg(GetParam());
  if (qEnvironmentVariableIsSet("DRAFTON_WRITE_GOLDEN")) {
    QFile target(QStringLiteral(TEST_DATA_DIR "/") + golden);
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    target.write(result);
  }
  EXPECT_EQ(result.toStdString(), dataFile(golden).toStdString());
}

TEST_P(ForeignPalettes, ReadAgainFromOurOwnFileAreTheSame) {
  const OdTcToolPalettePtr palette = import(given(GetParam()));
  ASSERT_TRUE(palette);
  const auto before = allFiles();
  const OdTcCatalogPtr again = load(catalog().path());
  OdTcToolPalette* const copy = again->findPalette(palette->id());
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->save());
  EXPECT_EQ(allFiles(), before);
}

TEST_P(ForeignPalettes, ExportedAndImportedAgainAreTheSameButForIdsAndTimes) {
  const OdString name = GetParam() + u".xtp"_s;
  const OdTcToolPalettePtr palette = import(given(GetParam()));
  ASSERT_TRUE(palette);
  for (const OdString& folder : {u"out"_s, u"again"_s}) QDir().mkpath(platform(folder));
  const OdTcExportReport out = exportPalette(*palette, stored(u"out\\"_s + name));
  ASSERT_EQ(text(out.problem), "");
  const QByteArray before = readFile(u"out/"_s + name);

  writeFile(u"other\\DrfTcCatalog.dtc"_s, catalogXml({}));
  const OdTcCatalogPtr other = load(stored(u"other\\DrfTcCatalog.dtc"_s));
  const OdTcToolPalettePtr back = other->importPalette(stored(u"out\\"_s + name), {}, report);
  ASSERT_TRUE(back) << text(report.problem);
  EXPECT_NE(back->id(), palette->id());
  for (const OdTcImportedTool& tool : report.tools)
    EXPECT_EQ(tool.fate, OdTcToolFate::kTaken) << text(tool.name) << ": " << text(tool.reason);
  ASSERT_EQ(text(exportPalette(*back, stored(u"again\\"_s + name)).problem), "");
  EXPECT_EQ(withoutChance(readFile(u"again/"_s + name)).toStdString(),
            withoutChance(before).toStdString());
  QMap<OdString, QByteArray> pictures, picturesAgain;
  const auto all = allFiles();
  for (auto file = all.begin(); file != all.end(); ++file)
    if (const OdString inside = file.key().section(u'/', 1); inside != name) {
      if (file.key().startsWith(u"out/"_s)) pictures[inside] = file.value();
      if (file.key().startsWith(u"again/"_s)) picturesAgain[inside] = file.value();
    }
  EXPECT_EQ(picturesAgain, pictures);
  EXPECT_EQ(pictures.size(), out.pictures);
}

QStringList fixtures() {
  QStringList titles;
  for (const QString& name :
       QDir(QStringLiteral(TEST_DATA_DIR "/xtp")).entryList({QStringLiteral("*.xtp")}))
    titles << name.chopped(4);
  return titles;
}

INSTANTIATE_TEST_SUITE_P(Files, ForeignPalettes, testing::ValuesIn(fixtures()),
                         [](const auto& file) { return file.param.toStdString(); });

// --- what the golden files alone do not make plain

struct ForeignPalette : ImportFixture {
  OdTcToolPalettePtr in(const QString& title) {
    const OdTcToolPalettePtr palette = import(given(title));
    if (!palette) throw OdError(eInvalidInput, report.problem);
    return palette;
  }
  OdTcTool& toolOf(const OdTcToolPalettePtr& palette, const OdString& name) const {
    for (OdTcTool* const tool : toolsOf(*palette))
      if (tool->name() == name) return *tool;
    throw OdError(eInvalidInput, name);
  }
  template <class Agent>
  const Agent& agentOf(const OdTcToolPalettePtr& palette, const OdString& name) const {
    return dynamic_cast<const Agent&>(*toolOf(palette, name).getActionAgent());
  }
  static std::uint32_t rgbOf(OdTcTool& tool) {
    const OdTcProperty* const color = tool.getGeneralProperties()->findByName(u"General.Color"_s);
    return colorFromVariant(color->getValue())->color();
  }
};

TEST_F(ForeignPalette, KeepsRawQuotesOfAOneLineFileThatEndsInCrLf) {
  EXPECT_TRUE(dataFile(u"xtp/one_line.xtp"_s).endsWith("\r\n"));
  EXPECT_EQ(dataFile(u"xtp/one_line.xtp"_s).count('\n'), 1);
  const auto tools = toolsOf(*in(u"one_line"_s));
  ASSERT_EQ(tools.size(), 2u);
  EXPECT_EQ(tools[0]->name(), u"Quotes \" and '"_s);
  EXPECT_EQ(tools[0]->getActionAgent()->commandString(), u"^C^C_TEXT 0,0 1 0 \"it's\""_s);
  EXPECT_EQ(tools[1]->name(), u"Küche ©"_s);
}

TEST_F(ForeignPalette, TakesLettersThatAreGivenByTheirNumbers) {
  EXPECT_TRUE(dataFile(u"xtp/numbered_letters.xtp"_s).contains("K&#252;che"));
  const auto tools = toolsOf(*in(u"numbered_letters"_s));
  EXPECT_EQ(tools[0]->name(), u"Küche ©"_s);
  EXPECT_EQ(tools[0]->description(), u"größer & kleiner < als"_s);
  EXPECT_EQ(tools[0]->getActionAgent()->commandString(), u"_TEXT ä"_s);
}

TEST_F(ForeignPalette, KeepsLineBreaksAndRunsOfBlanks) {
  const OdTcToolPalettePtr palette = in(u"line_breaks"_s);
  const OdTcCatalogPtr again = load(catalog().path());
  for (OdTcTool* const tool :
       {toolsOf(*palette)[0], toolsOf(*again->findPalette(palette->id()))[0]}) {
    EXPECT_EQ(tool->getActionAgent()->commandString(), u"^C^C_LINE 0,0\n10,0   10,10\r\n\t;"_s);
    EXPECT_EQ(tool->description(), u"First\n  second   third\n"_s);
  }
}

TEST_F(ForeignPalette, AnElementMeansWhatItsParentSays) {
  const auto tools = toolsOf(*in(u"names_by_parent"_s));
  ASSERT_EQ(tools.size(), 2u) << "a tool in a source, or an entry of the order, is no tool";
  EXPECT_EQ(tools[1]->getActionAgent()->sourcePath(), u"C:\\b.dwg"_s);
}

TEST_F(ForeignPalette, TheOrderNamesTheToolsByTheirNewIds) {
  const OdTcToolPalettePtr palette = in(u"all_kinds"_s);
  OdArray<OdString> order;
  palette->getToolOrder(order);
  const auto tools = toolsOf(*palette);
  ASSERT_EQ(static_cast<std::size_t>(order.size()), tools.size());
  for (std::size_t i = 0; i < tools.size(); ++i)
    EXPECT_EQ(order[static_cast<int>(i)], tools[i]->id());
}

TEST_F(ForeignPalette, AnOverlayTakesNotThePlaceOfTheToolsOwnPictures) {
  const auto tools = toolsOf(*in(u"overlay"_s));
  EXPECT_EQ(row(u"Tool"_s).pictureFile, u".\\Images\\tool.png"_s);
  ASSERT_TRUE(tools[0]->images()->findBySize(4));
  EXPECT_FALSE(tools[0]->images()->findBySize(4)->getBitmap().isNull());
}

TEST_F(ForeignPalette, AnOverlayEndsTheReadingOfThePropertiesSoThatTheTimeBehindItIsNotRead) {
  const auto tools = toolsOf(*in(u"overlay"_s));
  EXPECT_NE(tools[0]->properties()->created(), u"2026-01-05T08:00:00"_s);
}

TEST_F(ForeignPalette, LosesNothingBehindEmptyElementsOfKnownKinds) {
  const auto tools = toolsOf(*in(u"empty_elements"_s));
  ASSERT_EQ(tools.size(), 4u);
  EXPECT_EQ(tools[0]->getActionAgent()->commandString(), u"_ONE"_s);
  EXPECT_EQ(tools[1]->getActionAgent(), nullptr);
  EXPECT_EQ(tools[2]->getActionAgent()->sourcePath(), u"b.dwg"_s);
  EXPECT_EQ(tools[3]->getActionAgent()->commandString(), u"_TWO"_s);
}

TEST_F(ForeignPalette, AnEmptyElementOfNoKnownKindEndsTheListOfToolsAndTheRestIsNamed) {
  import(exported(commandXml("A") + "<Unknown/>" + commandXml("B") + commandXml("C")));
  EXPECT_EQ(report.tools.size(), 3u);
  for (const OdString& name : {u"B"_s, u"C"_s}) {
    EXPECT_EQ(row(name).fate, OdTcToolFate::kSkipped);
    EXPECT_TRUE(row(name).reason.contains(u"empty element"_s));
  }
}

TEST_F(ForeignPalette, TakesColoursOfEveryMethod) {
  const OdTcToolPalettePtr palette = in(u"color_methods"_s);
  const QMap<OdString, std::uint32_t> wanted = {{u"by layer"_s, 0xC0000000u},
                                                {u"by block"_s, 0xC1000000u},
                                                {u"true"_s, 0xC2FF8000u},
                                                {u"index"_s, 0xC3000005u},
                                                {u"none"_s, 0xC8000000u}};
  for (auto color = wanted.begin(); color != wanted.end(); ++color)
    EXPECT_EQ(rgbOf(toolOf(palette, color.key())), color.value()) << text(color.key());
}

TEST_F(ForeignPalette, OfTwoPicturesOfASizeTheLightOneIsTaken) {
  const OdTcToolPalettePtr palette = in(u"four_images"_s);
  OdTcImageList* const images = toolOf(palette, u"Four"_s).images();
  EXPECT_EQ(images->count(), 3) << "32 and 64 pixels, and 16 made of them";
  for (const int kind : {3, 4}) {
    ASSERT_TRUE(images->findBySize(kind));
    EXPECT_EQ(images->findBySize(kind)->getBitmap().pixel(16, 16), 0xFFC83C32);
  }
  EXPECT_EQ(toolOf(palette, u"Dark alone"_s).images()->findBySize(3)->getBitmap().pixel(16, 16),
            0xFF787878);
  EXPECT_TRUE(report.notes.join(u'\n').contains(u"left out: 2"_s))
      << text(report.notes.join(u'\n'));
}

TEST_F(ForeignPalette, PassesOverTheTreesOfDynamicBlocks) {
  EXPECT_GT(dataFile(u"xtp/dynamic_block.xtp"_s).count('<'), 2000);
  const auto tools = toolsOf(*in(u"dynamic_block"_s));
  ASSERT_EQ(tools.size(), 2u);
  EXPECT_EQ(tools[0]->getActionAgent()->sourcePath(), u"D:\\lib\\dyn.dwg"_s);
  EXPECT_LT(
      readFile(u"c/Palettes/"_s + odpath::fileNameOf(catalog().findPalette(report.id)->getPath()))
          .size(),
      10000);
}

TEST_F(ForeignPalette, ReadsTheFieldsOfEveryKind) {
  const OdTcToolPalettePtr palette = in(u"all_kinds"_s);
  const auto& block = agentOf<OdTcToolBlockCommandImpl>(palette, u"Block"_s);
  EXPECT_EQ(block.getName(), u"Door"_s);
  EXPECT_EQ(block.getScale(), 2.0);
  EXPECT_EQ(block.getRotation(), 1.5);
  const auto& hatch = agentOf<OdTcToolHatchCommandImpl>(palette, u"Hatch"_s);
  EXPECT_EQ(hatch.getPatternName(), u"ANSI31"_s);
  EXPECT_EQ(hatch.getScale(), 2.5);
  const auto& gradient = agentOf<OdTcToolHatchCommandImpl>(palette, u"Gradient"_s);
  EXPECT_EQ(gradient.getGradientName(), u"Spherical"_s);
  EXPECT_EQ(gradient.getGradientColor1().color(), 0xC23060C0u);
  EXPECT_EQ(gradient.getGradientColor2().color(), 0xC3000004u);
  EXPECT_TRUE(gradient.getIsGradientCentered());
}

TEST_F(ForeignPalette, ExternalReferencesKeepTheirType) {
  const OdTcToolPalettePtr palette = in(u"xrefs"_s);
  for (const int type : {1, 2}) {
    const auto& agent = agentOf<OdTcToolBlockCommandImpl>(palette, u"Xref %1"_s.arg(type));
    EXPECT_TRUE(agent.isWholeFile());
    EXPECT_EQ(agent.getInsertAs(), 2);
    EXPECT_EQ(agent.getXrefType(), type);
  }
}

TEST_F(ForeignPalette, ToolsOfAddOnProductsComeInWithoutAnAgentAndAreNamed) {
  const OdTcToolPalettePtr palette = in(u"add_on_products"_s);
  EXPECT_EQ(toolsOf(*palette).size(), 6u);
  for (const OdTcTool* const tool : toolsOf(*palette)) EXPECT_EQ(tool->getActionAgent(), nullptr);
  EXPECT_TRUE(row(u"Wrapped"_s).reason.contains(u"AecDbCommandObject"_s));
  EXPECT_EQ(row(u"Wrapped"_s).command, u"^C^C_LINE 0,0\n1,1 ;"_s);
  EXPECT_TRUE(row(u"Recipe101"_s).reason.contains(u"Recipe101"_s));
}

TEST_F(ForeignPalette, MacrosOfAddOnProductsBecomeCommandsIfThatIsWanted) {
  OdTcImportOptions options;
  options.convertCommands = true;
  const OdTcToolPalettePtr palette = import(given(u"add_on_products"_s), options);
  ASSERT_TRUE(palette);
  EXPECT_EQ(toolOf(palette, u"Wrapped"_s).getActionAgent()->commandString(),
            u"^C^C_LINE 0,0\n1,1 ;"_s);
  EXPECT_EQ(toolOf(palette, u"Bare"_s).getActionAgent()->commandString(), u"^C^C_CIRCLE 0,0 3"_s);
  EXPECT_EQ(row(u"Bare"_s).fate, OdTcToolFate::kConverted);
  EXPECT_EQ(toolOf(palette, u"Recipe101"_s).getActionAgent(), nullptr);
}

TEST_F(ForeignPalette, ExpandsMacrosAtTheBeginningOfAPathAlone) {
  const OdTcToolPalettePtr palette = in(u"paths"_s);
  EXPECT_EQ(toolsOf(*palette)[0]->getActionAgent()->sourcePath(),
            odrxSystemServices()->userProfileFolder() + u"\\a\\b.dwg"_s);
  EXPECT_EQ(toolsOf(*palette)[5]->getActionAgent()->sourcePath(), u"a%UserProfileFolder%\\h.dwg"_s);
}

} // namespace
