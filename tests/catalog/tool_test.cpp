#include "catalog/tool_impl.h"

#include "catalog/catalog_fixture.h"
#include "catalog/foreign_tool_records_impl.h"
#include "images/image_list.h"
#include "module/properties.h"
#include "properties/property_bag.h"
#include "support/recording_agent.h"

namespace {

using namespace testhost;

struct ToolTest : CatalogFixture {
  static const OdTcToolImpl& impl(const OdTcToolPtr& tool) {
    return static_cast<const OdTcToolImpl&>(*tool);
  }
  /// What the file of a palette with just this tool says.
  QByteArray savedWith(const OdTcToolPtr& tool) const {
    const OdTcToolPalettePtr holder = palette(u"P"_s);
    holder->addItem(tool);
    EXPECT_TRUE(holder->saveAs(stored(u"saved.dtc"_s)));
    return readFile(u"saved.dtc"_s);
  }
};

TEST_F(ToolTest, IsMadeWithoutATypeAndWithDataOfItsOwn) {
  const OdTcToolPtr made = OdTcTool::createObject();
  EXPECT_EQ(made->getToolType(), 0u);
  EXPECT_FALSE(made->isRegular());
  EXPECT_FALSE(made->isRunningMark());
  EXPECT_EQ(made->getActionAgent(), nullptr);
  ASSERT_TRUE(made->getData());
  EXPECT_EQ(made->getData()->owner(), made.get());
  EXPECT_TRUE(made->getGeneralProperties());
  EXPECT_EQ(made->properties()->owner(), made.get());
  EXPECT_EQ(made->revision(), u"8.0"_s);
}

TEST_F(ToolTest, SettingTheTypeMarksNothing) {
  const OdTcToolPtr made = OdTcTool::createObject();
  made->setToolType(1);
  EXPECT_TRUE(made->isRegular());
  EXPECT_FALSE(made->isModified());
}

TEST_F(ToolTest, WithoutATypeInTheFileIsNoRegularTool) {
  EXPECT_EQ(loadedTool("<ItemID idValue=\"T\"/>")->getToolType(), 0u);
  EXPECT_EQ(loadedTool("<ToolType>4294967295</ToolType>")->getToolType(), 4294967295u);
  EXPECT_NE(loadedTool("<ToolType>4294967297</ToolType>")->getToolType(), 1u);
  EXPECT_EQ(loadedTool("<ToolType>none</ToolType>")->getToolType(), 0u);
}

TEST_F(ToolTest, ForgetsAStockReferenceAsSoonAsItIsRead) {
  const OdTcToolPtr read = loadedTool("<StockToolRef idValue=\"{S}\"/>");
  const QByteArray saved = savedWith(read);
  EXPECT_FALSE(saved.contains("StockToolRef"));
  EXPECT_FALSE(saved.contains("{S}"));
  const OdTcToolPtr made = OdTcTool::createObject();
  EXPECT_THROW(made->readField(u"StockToolRef"_s, OdVariant(OdTcGroup::createObject())),
               OdError_NotThatKindOfClass);
}

TEST_F(ToolTest, KeepsCustomDataInMemoryAndLosesItOnSaving) {
  const OdTcToolPtr read =
      loadedTool("<CustomData><className>AcDbLine</className><idButton>B</idButton></CustomData>");
  ASSERT_TRUE(impl(read).customData());
  EXPECT_EQ(impl(read).customData()->className(), u"AcDbLine"_s);
  EXPECT_EQ(impl(read).customData()->idButton(), u"B"_s);
  EXPECT_FALSE(savedWith(read).contains("AcDbLine"));
}

TEST_F(ToolTest, KeepsAFlyoutThatStandsAlone) {
  const OdTcToolPtr read = loadedTool("<Flyout enable=\"TRUE\"><ShapePackage idValue=\"P\"/>"
                                      "<CurrentShape idValue=\"S\"/></Flyout>");
  ASSERT_TRUE(impl(read).flyout());
  EXPECT_EQ(impl(read).flyout()->shapePackage(), u"P"_s);
  EXPECT_EQ(impl(read).flyout()->currentShape(), u"S"_s);
  const QByteArray saved = savedWith(read);
  EXPECT_TRUE(saved.contains("<Flyout enable=\"true\">"));
  EXPECT_TRUE(saved.contains("<ShapePackage idValue=\"P\" />"));
  EXPECT_TRUE(saved.contains("<CurrentShape idValue=\"S\" />"));
}

TEST_F(ToolTest, AFlyoutWithOneIdLeavesTheNextOneShifted) {
  OdTcToolFlyoutImpl first, second, third;
  first.readField(u"idValue"_s, OdVariant(u"1"_s));
  second.readField(u"idValue"_s, OdVariant(u"2"_s));
  second.readField(u"idValue"_s, OdVariant(u"3"_s));
  third.readField(u"idValue"_s, OdVariant(u"4"_s));
  EXPECT_EQ(first.shapePackage(), u"1"_s);
  EXPECT_EQ(second.currentShape(), u"2"_s);
  EXPECT_EQ(second.shapePackage(), u"3"_s);
  EXPECT_EQ(third.currentShape(), u"4"_s);
  EXPECT_EQ(third.shapePackage(), OdString());
}

TEST_F(ToolTest, ReadsTheFlagOfAFlyoutAsABoolean) {
  for (const OdString& yes : {u"TRUE"_s, u"true"_s, u"True"_s, u"1"_s}) {
    OdTcToolFlyoutImpl flyout;
    flyout.readField(u"enable"_s, OdVariant(yes));
    EXPECT_TRUE(flyout.isFlyoutEnabled()) << text(yes);
  }
  for (const OdString& no : {u"yes"_s, u"-1"_s, u"0"_s, u""_s}) {
    OdTcToolFlyoutImpl flyout;
    flyout.readField(u"enable"_s, OdVariant(u"1"_s));
    flyout.readField(u"enable"_s, OdVariant(no));
    EXPECT_FALSE(flyout.isFlyoutEnabled()) << text(no);
  }
}

TEST_F(ToolTest, OfTwoAgentsTheSecondIsKept) {
  const OdTcToolPtr read = loadedTool(
      "<ToolType>4</ToolType><Data><Command Macro=\"_LINE\"/><Light/><Unknown a=\"1\"/></Data>");
  ASSERT_TRUE(read->getActionAgent());
  EXPECT_EQ(read->getActionAgent()->elementName(), u"Light"_s) << "the type plays no part in it";
}

TEST_F(ToolTest, ClonesItsTypeItsForeignRecordsAndItsData) {
  const OdTcToolPtr read = loadedTool(
      "<ItemID idValue=\"T\"/><Properties><ItemName>N</ItemName></Properties><ToolType>3</ToolType>"
      "<Flyout enable=\"1\"><ShapePackage idValue=\"P\"/><CurrentShape idValue=\"S\"/></Flyout>"
      "<Data><Command Macro=\"_LINE\"/></Data>");
  const OdTcToolPtr copy(read->clone(true));
  EXPECT_NE(copy->id(), u"T"_s);
  EXPECT_EQ(copy->name(), u"N"_s);
  EXPECT_EQ(copy->getToolType(), 3u);
  ASSERT_TRUE(impl(copy).flyout());
  EXPECT_NE(impl(copy).flyout(), impl(read).flyout());
  EXPECT_EQ(impl(copy).flyout()->currentShape(), u"S"_s);
  ASSERT_TRUE(copy->getActionAgent());
  EXPECT_NE(copy->getActionAgent(), read->getActionAgent());
  EXPECT_EQ(copy->getActionAgent()->commandString(), u"_LINE"_s);
  EXPECT_EQ(copy->getData()->owner(), copy.get());
}

TEST_F(ToolTest, ClonesOfTheSmallRecordsCopyTheirTexts) {
  OdTcToolCustomDataImpl custom;
  custom.readField(u"className"_s, OdVariant(u"C"_s));
  custom.readField(u"idButton"_s, OdVariant(u"B"_s));
  const OdTcToolCustomDataPtr copy(custom.clone());
  EXPECT_EQ(copy->className(), u"C"_s);
  EXPECT_EQ(copy->idButton(), u"B"_s);
  EXPECT_FALSE(custom.readField(u"other"_s, OdVariant(u"x"_s)));
  OdTcStockToolRefImpl stock;
  stock.readField(u"idValue"_s, OdVariant(u"I"_s));
  EXPECT_EQ(OdTcStockToolRefPtr(stock.clone())->stockId(), u"I"_s);
}

struct AskedAgent : RecordingAgent {
  using RecordingAgent::RecordingAgent;
  mutable QStringList asked;
  bool refreshImages(IHostDocument*) override {
    asked << u"refresh"_s;
    return true;
  }
  bool onPropertyChanged(OdTcProperty* property) override {
    asked << property->elementName();
    return true;
  }
};

TEST_F(ToolTest, GivesTheImagesThatItWasGiven) {
  const OdTcToolPtr item = tool(u"T"_s);
  EXPECT_EQ(item->images(), nullptr);
  EXPECT_EQ(item->itemImages(), nullptr);
  const OdTcToolPtr fresh = OdTcTool::createObject();
  const OdTcImageListPtr images = OdTcImageList::createObject();
  const OdTcImagePtr image = OdTcImage::createObject();
  image->setSizeKind(3);
  images->add(image);
  fresh->setImages(images);
  EXPECT_TRUE(fresh->isModified());
  EXPECT_EQ(fresh->images(), images.get());
  EXPECT_EQ(fresh->itemImages(), images.get());
  EXPECT_EQ(fresh->properties()->images(), images.get());
  EXPECT_EQ(fresh->itemImages()->findBySize(3), image.get());
  EXPECT_EQ(images->owner(), fresh->properties());
  const OdTcCatalogItemPtr copy = fresh->clone(true);
  ASSERT_TRUE(copy->images());
  EXPECT_NE(copy->images(), images.get());
  EXPECT_EQ(copy->images()->count(), 1);
  fresh->setImages(nullptr);
  EXPECT_EQ(fresh->images(), nullptr);
  EXPECT_EQ(fresh->itemImages(), nullptr);
  EXPECT_EQ(copy->images()->count(), 1);
}

TEST_F(ToolTest, HandsObjectsToItsAgentIfItHasOne) {
  const OdTcToolPtr made = OdTcTool::createObject();
  OdTcProperty* const property = made->getGeneralProperties()->enumProperties()->next();
  EXPECT_FALSE(made->applyToAgent(property));
  EXPECT_FALSE(made->updateAgent());
  const auto agent = odrxMake<AskedAgent>(u"X"_s);
  made->setActionAgent(agent);
  EXPECT_EQ(agent->owner(), made->getData());
  EXPECT_FALSE(made->applyToAgent(nullptr));
  EXPECT_TRUE(made->applyToAgent(property));
  EXPECT_TRUE(made->updateAgent());
  EXPECT_EQ(agent->asked, QStringList({property->elementName(), u"refresh"_s}));
  EXPECT_THROW(made->applyToAgent(made), OdError_NotThatKindOfClass);
}

struct MultitoolTest : ToolTest {
  static constexpr const char* kCustom =
      "<CustomData><className>OdDbLine</className><idButton>1</idButton></CustomData>";
  static constexpr const char* kFlyout =
      "<Flyout enable=\"1\"><ShapePackage idValue=\"P\"/><CurrentShape idValue=\"S\"/></Flyout>";

  MultitoolTest() {
    writeFile(u"routes.xml"_s,
              "<Entries><Other/><Entry><OdRxClassInfo className=\"OdDbCircle\"/>"
              "<Command name=\"ADDSELECTED\"><StartCommand name=\"CIRCLE\"/></Command></Entry>"
              "<Entry><Command name=\"EDIT\"><StartCommand name=\"NO\"/></Command>"
              "<Command name=\"ADDSELECTED\"><StartCommand name=\"line\"/></Command>"
              "<OdRxClassInfo className=\"OdDbLine\"/></Entry></Entries>");
    theHost().routeMap = stored(u"routes.xml"_s);
    theHost().menu.entries = {{false, u"LINE"_s, u"Heading"_s, {}, {}},
                              {true, u"LINE"_s, u"Draw line"_s, u"L&ine"_s, u"^C^C_LINE"_s}};
  }
  static QByteArray both() { return QByteArray(kCustom) + kFlyout; }
  bool isConverted(const OdTcToolPtr& tool) const {
    return !impl(tool).customData() && !impl(tool).flyout();
  }
};

TEST_F(MultitoolTest, BecomesARegularToolThatRunsTheCommand) {
  const OdTcToolPtr read = loadedTool(both());
  EXPECT_TRUE(isConverted(read));
  EXPECT_TRUE(read->isRegular());
  EXPECT_EQ(read->name(), u"Draw line"_s);
  ASSERT_TRUE(read->getActionAgent());
  EXPECT_EQ(read->getActionAgent()->commandString(), u"^C^C_LINE"_s);
  EXPECT_TRUE(
      theHost().log.contains(u"print \nMultitool \"Draw line\" has been converted to regular."_s));
  OdTcImageList* const images = read->images();
  ASSERT_TRUE(images);
  EXPECT_EQ(images->count(), 3);
  for (const int size : {1, 3, 4}) {
    ASSERT_TRUE(images->findBySize(size)) << size;
    EXPECT_EQ(images->findBySize(size)->src(), u"%ProgramBtnRes%"_s);
    EXPECT_EQ(images->findBySize(size)->resource(), u"LINE"_s);
  }
}

TEST_F(MultitoolTest, KnowsTheClassByEitherOfItsNames) {
  QByteArray foreign = both();
  ASSERT_TRUE(foreign.contains("OdDbLine"));
  foreign.replace("OdDbLine", "AcDbLine");
  EXPECT_TRUE(isConverted(loadedTool(foreign)));
}

TEST_F(MultitoolTest, ConvertsAtTheSecondOfItsRecordsWhateverTheirOrder) {
  EXPECT_TRUE(isConverted(loadedTool(QByteArray(kFlyout) + kCustom)));
}

TEST_F(MultitoolTest, ATypeReadLaterOverridesTheConversion) {
  EXPECT_EQ(loadedTool(both() + "<ToolType>3</ToolType>")->getToolType(), 3u);
  EXPECT_EQ(loadedTool("<ToolType>3</ToolType>" + both())->getToolType(), 1u);
}

TEST_F(MultitoolTest, KeepsAnAgentThatItHas) {
  const OdTcToolPtr read = loadedTool("<Data><Command Macro=\"_MINE\"/></Data>" + both());
  EXPECT_EQ(read->getActionAgent()->commandString(), u"_MINE"_s);
}

TEST_F(MultitoolTest, KeepsItsCommandThroughDataThatSaysNothingOfOne) {
  const OdTcToolPtr read = loadedTool(both() + "<Data><Unknown a=\"1\"/></Data>");
  ASSERT_TRUE(read->getActionAgent());
  EXPECT_EQ(read->getActionAgent()->commandString(), u"^C^C_LINE"_s);
  EXPECT_EQ(read->getActionAgent()->owner(), read->getData());
  EXPECT_EQ(read->getData()->owner(), read.get());
  const QByteArray saved = savedWith(read);
  EXPECT_EQ(saved.count("^C^C_LINE"), 1) << saved.toStdString();
}

TEST_F(MultitoolTest, GivesItsCommandUpForDataWithAnAgent) {
  const OdTcToolPtr read = loadedTool(both() + "<Data><Command Macro=\"_MINE\"/></Data>");
  EXPECT_EQ(read->getActionAgent()->commandString(), u"_MINE"_s);
  EXPECT_EQ(loadedTool("<Data><Command Macro=\"_MINE\"/></Data><Data><Unknown a=\"1\"/></Data>")
                ->getActionAgent(),
            nullptr)
      << "only a conversion has an agent to keep";
}

TEST_F(MultitoolTest, ItsPicturesBelongToItAndStandInItsFile) {
  const OdTcToolPtr read = loadedTool(both());
  ASSERT_TRUE(read->images());
  EXPECT_EQ(read->images()->owner(), read->properties());
  const QByteArray saved = savedWith(read);
  EXPECT_EQ(saved.count("src=\"%ProgramBtnRes%\""), 3) << saved.toStdString();
  EXPECT_EQ(saved.count("resource=\"LINE\""), 3);
}

TEST_F(MultitoolTest, TakesItsNameFromTheTipOrTheTranslatedCommand) {
  theHost().menu.entries[1].label.clear();
  EXPECT_EQ(loadedTool(both())->name(), u"Line"_s);
  theHost().menu.entries[1].shortText = u"&"_s;
  theHost().translations[u"LINE"_s] = u"Linie"_s;
  EXPECT_EQ(loadedTool(both())->name(), u"Linie"_s);
}

TEST_F(MultitoolTest, StaysAsItIsWithoutAMapAClassOrACommand) {
  const auto expectUntouched = [&](const char* what) {
    theHost().messages.printed.clear();
    const OdTcToolPtr read = loadedTool("<ToolType>3</ToolType>" + both());
    EXPECT_FALSE(isConverted(read)) << what;
    EXPECT_EQ(read->getToolType(), 3u) << what;
    EXPECT_EQ(read->name(), OdString()) << what;
    EXPECT_TRUE(theHost().messages.printed.isEmpty()) << what;
  };
  theHost().menu.entries.pop_back();
  expectUntouched("no command");
  writeFile(u"routes.xml"_s,
            "<Entries><Entry><OdRxClassInfo className=\"OdDbArc\"/></Entry></Entries>");
  expectUntouched("no class");
  for (const char* broken : {"", "text",
                             "<Entries><Entry><OdRxClassInfo className=\"OdDbLine\"/>"
                             "<Command name=\"ADDSELECTED\"><StartCommand name=\"LINE\"/>"}) {
    writeFile(u"routes.xml"_s, broken);
    expectUntouched("broken map");
  }
  theHost().routeMap = stored(u"gone.xml"_s);
  expectUntouched("no file");
  theHost().routeMap.clear();
  expectUntouched("no map");
}

TEST_F(MultitoolTest, ShowsTheNoticeUntilItIsSwitchedOff) {
  loadedTool(both());
  ASSERT_EQ(theHost().messages.boxes.size(), 1u);
  const auto& box = theHost().messages.boxes.front();
  EXPECT_EQ(box.identifier, u"ToolPaletteManager\\MTMsg"_s);
  EXPECT_EQ(box.caption, u"Tool Palette Import"_s);
  EXPECT_TRUE(box.text.startsWith(u"The tool palette you're loading contains multitools"_s));
  theHost().messages.tick = true;
  loadedTool(both());
  EXPECT_EQ(theHost().messages.boxes.size(), 2u) << "it was not switched off the first time";
  loadedTool(both());
  EXPECT_EQ(theHost().messages.boxes.size(), 2u);
  const TestProfile* const store = theHost().application.store->at(u"cmddata/ToolPaletteManager"_s);
  ASSERT_TRUE(store);
  EXPECT_EQ(store->values.value(u"MultitoolConvertMessage"_s).toInt32(), 1);
}

} // namespace
