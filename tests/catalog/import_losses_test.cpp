// What is lost on the way in is named: behind elements that hold no value, which end the reading of
// the one around them, and in files that hold more than one palette or list.
#include "catalog/import_fixture.h"

namespace {

using namespace testhost;

struct ImportLosses : ImportFixture {
  static QByteArray withProperties(const QByteArray& properties, const QByteArray& before = {}) {
    return "<Tool><ItemID idValue=\"{A}\"/>" + before + "<Properties>" + properties +
           "</Properties><ToolType>1</ToolType><Data><Command Macro=\"_A\"/></Data></Tool>";
  }
  OdString onlyReason(const QByteArray& tool) {
    EXPECT_TRUE(import(exported(tool + commandXml("Z"))));
    EXPECT_EQ(row(u"Z"_s).reason, OdString()) << "the next tool has lost nothing";
    return report.tools.at(0).reason;
  }
};

TEST_F(ImportLosses, BehindAnEmptyElementOfABlockAreNamedByTheirElements) {
  const OdString reason = onlyReason(toolXml(
      "A", "<Block><BlockType>1</BlockType><BlockName/><SourceFile>C:\\a.dwg</SourceFile><Scale>3"
           "</Scale></Block>"));
  EXPECT_EQ(report.tools[0].fate, OdTcToolFate::kTaken);
  for (const OdString& word : {u"<BlockName>"_s, u"Block"_s, u"SourceFile"_s, u"Scale"_s})
    EXPECT_TRUE(reason.contains(word)) << text(reason);
}

TEST_F(ImportLosses, BehindAnEmptyDescriptionThePicturesAreNamed) {
  const OdString reason = onlyReason(withProperties("<ItemName>A</ItemName><Description/><Images>" +
                                                    imageXml(".\\Images\\a.png") + "</Images>"));
  EXPECT_TRUE(reason.contains(u"Images"_s)) << text(reason);
}

TEST_F(ImportLosses, AToolThatLosesEverythingIsSkippedByItsNameAndWithTheReason) {
  import(exported(withProperties("<ItemName>A</ItemName>", "<Unknown/>") + commandXml("Z")));
  const OdTcImportedTool tool = report.tools.at(0);
  EXPECT_EQ(tool.fate, OdTcToolFate::kSkipped);
  EXPECT_EQ(tool.name, u"A"_s);
  EXPECT_TRUE(tool.reason.contains(u"<Unknown>"_s)) << text(tool.reason);
  EXPECT_EQ(printedTimes(u"Skipped unsupported tool: A"_s), 1);
}

TEST_F(ImportLosses, OfGeneralPropertiesAreNamed) {
  const OdString reason = onlyReason(
      toolXml("A", "<GeneralProperties><Odd/><Layer><BasicPropInfo><PropValue "
                   "unspecified=\"FALSE\" valueType=\"1\" value=\"WALLS\"/></BasicPropInfo></Layer>"
                   "</GeneralProperties><Command Macro=\"_A\"/>"));
  EXPECT_TRUE(reason.contains(u"Layer"_s)) << text(reason);
}

TEST_F(ImportLosses, OfARecordThatIsNotForUsAreNotSpokenOf) {
  EXPECT_EQ(onlyReason(toolXml("A", "<Command Macro=\"_A\"/><DynamicProperties/><Units>1</Units>")),
            OdString());
  EXPECT_EQ(onlyReason(toolXml("A", "<DynamicProperties/><Units>1</Units>")).contains(u"ends"_s),
            false);
}

TEST_F(ImportLosses, ToolsBehindAnEmptyElementOfTheListAreNamedWithoutTheNoticeOfOtherKinds) {
  const OdTcToolPalettePtr palette =
      import(exported(commandXml("A") + "<Unknown/>" + commandXml("B")));
  EXPECT_EQ(toolsOf(*palette).size(), 1u);
  EXPECT_EQ(row(u"B"_s).fate, OdTcToolFate::kSkipped);
  EXPECT_TRUE(row(u"B"_s).isUnread);
  EXPECT_FALSE(row(u"B"_s).reason.isEmpty());
  EXPECT_TRUE(theHost().messages.boxes.empty());
  EXPECT_EQ(printedTimes(u"Skipped"_s), 0);
}

TEST_F(ImportLosses, OfThePaletteItselfAreNotes) {
  writeFile(u"p.xtp"_s, "<Palette><ItemID idValue=\"{P}\"/><Odd/><Tools>" + commandXml("A") +
                            "</Tools></Palette>");
  ASSERT_TRUE(import(stored(u"p.xtp"_s)));
  EXPECT_TRUE(report.notes.join(u'\n').contains(u"Tools"_s)) << text(report.notes.join(u'\n'));
  EXPECT_TRUE(row(u"A"_s).isUnread);
}

TEST_F(ImportLosses, AnEmptyListOfToolsIsAPaletteWithoutTools) {
  writeFile(u"p.xtp"_s, "<Palette><ItemID idValue=\"{P}\"/><Tools/></Palette>");
  const OdTcToolPalettePtr palette = import(stored(u"p.xtp"_s));
  ASSERT_TRUE(palette);
  EXPECT_TRUE(toolsOf(*palette).empty());
  EXPECT_TRUE(report.notes.isEmpty()) << text(report.notes.join(u'\n'));
}

TEST_F(ImportLosses, AnEarlierListOfToolsIsNamed) {
  writeFile(u"p.xtp"_s, "<Palette><ItemID idValue=\"{P}\"/><Tools>" + commandXml("First") +
                            "</Tools><Tools>" + commandXml("Second") + "</Tools></Palette>");
  const OdTcToolPalettePtr palette = import(stored(u"p.xtp"_s));
  ASSERT_EQ(toolsOf(*palette).size(), 1u);
  EXPECT_EQ(toolsOf(*palette)[0]->name(), u"Second"_s);
  EXPECT_TRUE(report.notes.join(u'\n').contains(u"First"_s)) << text(report.notes.join(u'\n'));
}

TEST_F(ImportLosses, ASecondPaletteInTheFileIsNamed) {
  const OdString file = exported(commandXml("A"));
  QByteArray bytes = readFile(u"in\\p.xtp"_s);
  const QByteArray second =
      "<PaletteData><PaletteContent><Palette><Properties><ItemName>Other one</ItemName>"
      "</Properties></Palette></PaletteContent></PaletteData></Palettes>";
  bytes.replace("</Palettes>", second);
  writeFile(u"in\\p.xtp"_s, bytes);
  ASSERT_TRUE(import(file));
  EXPECT_TRUE(report.notes.join(u'\n').contains(u"Other one"_s)) << text(report.notes.join(u'\n'));
}

} // namespace
