#include "catalog/tool_palette.h"

#include "catalog/catalog_fixture.h"
#include "catalog/palette_ui.h"
#include "frame/file_path.h"
#include "module/properties.h"
#include "support/recording_agent.h"

namespace {

using namespace testhost;

struct ToolPaletteTest : CatalogFixture {
  OdTcToolPalettePtr palette = CatalogFixture::palette(u"P"_s);
  const OdString file = stored(u"p.dtc"_s);

  QByteArray saved() const { return readFile(u"p.dtc"_s); }
  OdTcPaletteUi* ui() const { return palette->getDatabase()->getUi(); }
  OdArray<OdString> order() const {
    OdArray<OdString> ids;
    palette->getToolOrder(ids);
    return ids;
  }
  OdTcToolPtr added(const OdString& name) const {
    const OdTcToolPtr made = tool(name);
    EXPECT_TRUE(palette->addItem(made));
    return made;
  }
};

TEST_F(ToolPaletteTest, IsMadeWithTheFieldsOfANewPalette) {
  EXPECT_EQ(palette->revision(), u"8.0"_s);
  EXPECT_EQ(palette->getDatabase()->revision(), u"8.0"_s);
  EXPECT_EQ(palette->getDatabase()->fileRevision(), u"8.0"_s);
  EXPECT_EQ(palette->getDatabase()->paletteStyle(), 0);
  EXPECT_EQ(palette->getPath(), OdString());
  EXPECT_EQ(palette->getSortType(), 0);
  EXPECT_EQ(palette->getPreviewSize(), 1);
  EXPECT_EQ(palette->getPreviewStyle(), 0);
  EXPECT_FALSE(palette->isReferenced());
  EXPECT_FALSE(palette->isReadOnlyStyle());
  EXPECT_FALSE(palette->getDatabase()->isExporting());
  EXPECT_EQ(palette->children()->next(), nullptr);
  EXPECT_EQ(palette->catalog(), nullptr);
}

TEST_F(ToolPaletteTest, ShowsOneNameAndOneIdWithItsDatabase) {
  EXPECT_EQ(palette->id(), palette->getDatabase()->id());
  palette->setId(u"X"_s);
  EXPECT_EQ(palette->getDatabase()->id(), u"X"_s);
  palette->getDatabase()->setName(u"Y"_s);
  EXPECT_EQ(palette->name(), u"Y"_s);
  EXPECT_EQ(palette->getProperties(), palette->getDatabase()->properties());
}

TEST_F(ToolPaletteTest, ItsReservedOperationsRaiseCodeThree) {
  for (const auto operation : {&OdTcToolPalette::reserved1, &OdTcToolPalette::reserved2}) {
    try {
      (palette->*operation)();
      FAIL() << "no error";
    } catch (const OdError& error) {
      EXPECT_EQ(error.code(), 3);
    }
  }
  palette->reserved3();
}

TEST_F(ToolPaletteTest, AddsAToolThenTellsDatabaseThenSavesThenTellsPalette) {
  ASSERT_TRUE(palette->saveAs(file));
  struct Watch : OdTcCatalogItemReactor {
    std::function<void()> call;
    void itemAdded(OdTcCatalogItem*) override { call(); }
  } ofDatabase, ofPalette;
  QStringList steps;
  ofDatabase.call = [&] { steps << (saved().contains("Tool>") ? u"late"_s : u"database"_s); };
  ofPalette.call = [&] { steps << (saved().contains("Tool>") ? u"palette"_s : u"early"_s); };
  palette->getDatabase()->addReactor(&ofDatabase);
  palette->addReactor(&ofPalette);
  const OdTcToolPtr made = added(u"T"_s);
  EXPECT_EQ(steps, QStringList({u"database"_s, u"palette"_s}));
  EXPECT_EQ(made->owner(), palette->getDatabase()->tools());
  EXPECT_EQ(made->database(), palette->getDatabase());
  EXPECT_TRUE(palette->isModified());
  EXPECT_TRUE(order().isEmpty()) << "an added tool has no place in the order yet";
}

TEST_F(ToolPaletteTest, TakesToolsOnly) {
  EXPECT_FALSE(palette->addItem(group(u"G"_s)));
  EXPECT_FALSE(palette->addItem(nullptr));
  EXPECT_EQ(palette->getDatabase()->tools()->count(), 0);
}

TEST_F(ToolPaletteTest, WithAutoSaveSuspendedTheFileStaysUntilItIsSaved) {
  ASSERT_TRUE(palette->saveAs(file));
  const QByteArray before = saved();
  palette->suspendAutoSave();
  added(u"T"_s);
  EXPECT_EQ(saved(), before);
  EXPECT_TRUE(palette->save());
  EXPECT_NE(saved(), before);
  palette->resumeAutoSave();
  added(u"U"_s);
  EXPECT_TRUE(saved().contains("U</ItemName>"));
}

TEST_F(ToolPaletteTest, AnAutoSaveThatFailsKeepsTheToolAndTellsPathAndReason) {
  ASSERT_TRUE(palette->saveAs(file));
  ItemLog log;
  palette->addReactor(&log);
  FailingServices services;
  services.bytesLeft = 10;
  added(u"T"_s);
  EXPECT_EQ(palette->getDatabase()->tools()->count(), 1);
  EXPECT_EQ(palette->getPath(), file);
  EXPECT_TRUE(wasTold({odpath::toPlatform(file), u"No space left on device"_s}));
  EXPECT_EQ(log.log, QStringList(u"added T"_s));
}

TEST_F(ToolPaletteTest, APaletteWithoutAFileIsNotSavedUnasked) {
  FailingServices services;
  added(u"T"_s);
  EXPECT_TRUE(services.written.isEmpty());
  EXPECT_FALSE(palette->save());
  EXPECT_FALSE(wasTold({u"Cannot"_s}));
}

TEST_F(ToolPaletteTest, RemovesAToolAndTheFirstOfItsEntriesInTheOrder) {
  const OdTcToolPtr made = added(u"T"_s);
  const OdString id = made->id();
  palette->setToolOrder({id, u"other"_s, id});
  ItemLog log;
  palette->addReactor(&log);
  EXPECT_TRUE(palette->findItem(id));
  EXPECT_TRUE(palette->removeItem(id));
  EXPECT_EQ(log.log, QStringList(u"removed T"_s));
  EXPECT_EQ(order(), OdArray<OdString>({u"other"_s, id}));
  EXPECT_FALSE(palette->removeItem(id));
  EXPECT_EQ(made->owner(), nullptr);
}

TEST_F(ToolPaletteTest, SettingTheOrderSwitchesToManualSorting) {
  palette->setToolOrder({u"a"_s});
  EXPECT_EQ(palette->getSortType(), 2);
  EXPECT_TRUE(palette->isModified());
  EXPECT_EQ(order(), OdArray<OdString>({u"a"_s}));
}

TEST_F(ToolPaletteTest, DisplaySettingsMarkItModified) {
  using Setter = void (OdTcToolPalette::*)(std::int32_t);
  const Setter setters[] = {&OdTcToolPalette::setSortType, &OdTcToolPalette::setPreviewSize,
                            &OdTcToolPalette::setPreviewStyle};
  for (const Setter set : setters) {
    const OdTcToolPalettePtr fresh = OdTcToolPalette::createObject();
    EXPECT_FALSE(fresh->isModified());
    (fresh->*set)(3);
    EXPECT_TRUE(fresh->isModified());
  }
}

TEST_F(ToolPaletteTest, IsModifiedIfAToolIsAndStaysSoThroughASave) {
  const OdTcToolPalettePtr read =
      loadedPalette("<Tools><Tool><ItemID idValue=\"T\"/></Tool></Tools>");
  EXPECT_FALSE(read->isModified());
  read->getDatabase()->tools()->at(0)->setModified();
  EXPECT_TRUE(read->isModified());
  palette->markModified();
  ASSERT_TRUE(palette->saveAs(file));
  EXPECT_TRUE(palette->isModified());
}

TEST_F(ToolPaletteTest, SavesToANewPathAndStaysThere) {
  const OdString other = stored(u"other.dtc"_s);
  ASSERT_TRUE(palette->saveAs(file));
  ASSERT_TRUE(palette->saveAs(other));
  EXPECT_EQ(palette->getPath(), other);
}

TEST_F(ToolPaletteTest, AShorterDocumentLeavesNothingOfTheLongerOne) {
  palette->setDescription(OdString(5000, u'x'));
  ASSERT_TRUE(palette->saveAs(file));
  palette->setDescription(OdString());
  ASSERT_TRUE(palette->save());
  EXPECT_FALSE(saved().contains("xxxx"));
  EXPECT_TRUE(saved().endsWith("</Palette>\n"));
}

TEST_F(ToolPaletteTest, AFailedSaveLeavesThePathAsItWas) {
  ASSERT_TRUE(palette->saveAs(file));
  const OdString target = stored(u"gone\\p.dtc"_s);
  EXPECT_FALSE(palette->saveAs(target)) << "the folder does not exist";
  EXPECT_TRUE(
      wasTold({u"Cannot save the palette"_s, odpath::toPlatform(target), u"No such file"_s}))
      << text(theHost().log.join(u'\n'));
  EXPECT_EQ(palette->getPath(), file);
}

TEST_F(ToolPaletteTest, ACopyGoesBackToItsPathUnlessTheWriteFails) {
  ASSERT_TRUE(palette->saveAs(file));
  const OdString copy = stored(u"copy.xtp"_s);
  palette->setExporting(true);
  EXPECT_TRUE(palette->getDatabase()->isExporting());
  EXPECT_TRUE(palette->saveCopy(copy));
  palette->setExporting(false);
  EXPECT_EQ(palette->getPath(), file);
  EXPECT_EQ(readFile(u"copy.xtp"_s), saved());
  const OdString bad = stored(u"gone\\copy.xtp"_s);
  EXPECT_FALSE(palette->saveCopy(bad));
  EXPECT_TRUE(wasTold({odpath::toPlatform(bad)}));
  EXPECT_EQ(palette->getPath(), bad);
}

TEST_F(ToolPaletteTest, ReadObjectsAreAttachedUntilTheNextSaveButNotByACopy) {
  const OdTcToolPalettePtr read = loadedPalette("<Tools><Tool/></Tools>");
  OdTcDatabase* const database = read->getDatabase();
  EXPECT_GE(database->attachedCount(), 2);
  const int before = database->attachedCount();
  database->attachObject(database);
  EXPECT_EQ(database->attachedCount(), before);
  ASSERT_TRUE(read->saveCopy(stored(u"copy.dtc"_s)));
  EXPECT_EQ(database->attachedCount(), before);
  ASSERT_TRUE(read->save());
  EXPECT_EQ(database->attachedCount(), 0);
}

TEST_F(ToolPaletteTest, LoadingAMissingFileFailsSilentlyWithThePathKept) {
  theHost().log.clear();
  EXPECT_FALSE(palette->load(file));
  EXPECT_EQ(palette->getPath(), file);
  EXPECT_FALSE(palette->getDatabase()->isUnread());
  EXPECT_TRUE(theHost().log.isEmpty());
}

TEST_F(ToolPaletteTest, ADocumentWithoutAPaletteShowsTheMessageAndLeavesTheDatabaseAsMade) {
  for (const QByteArray& bytes : {QByteArray("<Other/>"), QByteArray("<Palette/>")}) {
    writeFile(u"p.dtc"_s, bytes);
    theHost().log.clear();
    EXPECT_FALSE(palette->load(file));
    EXPECT_TRUE(theHost().log.join(u'\n').contains(u"Error while reading tool palette file."_s));
    EXPECT_TRUE(palette->getDatabase()->isUnread());
    EXPECT_EQ(palette->name(), u"P"_s);
  }
}

TEST_F(ToolPaletteTest, AnObjectOfTheWrongClassEndsTheLoadOfItsFile) {
  writeFile(u"p.dtc"_s, "<Palette><Data><Groups/></Data><Tools><Data/></Tools></Palette>");
  EXPECT_FALSE(palette->load(file));
  EXPECT_TRUE(palette->getDatabase()->isUnread());
  const OdTcDatabasePtr database = OdTcDatabase::createObject();
  EXPECT_THROW(database->readField(u"Tools"_s, OdVariant(OdTcGroup::createObject())),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(database->readField(u"PaletteUI"_s, OdVariant(OdTcGroup::createObject())),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(database->readField(u"Tools"_s, OdVariant(u"text"_s)), OdError_NotThatKindOfClass);
}

TEST_F(ToolPaletteTest, PaletteStyleAndForeignRecordsAreReadAndNotWritten) {
  const OdTcToolPalettePtr read = loadedPalette(
      "<PaletteStyle>3</PaletteStyle><PaletteUI><CAdUiPalette Size=\"5\"/><SortType>1</SortType>"
      "<PreviewSize>4</PreviewSize><PreviewStyle>2</PreviewStyle></PaletteUI>");
  EXPECT_EQ(read->getDatabase()->paletteStyle(), 3);
  EXPECT_EQ(read->getSortType(), 1) << "what follows the foreign record is read";
  EXPECT_EQ(read->getPreviewSize(), 4);
  EXPECT_EQ(read->getPreviewStyle(), 2);
  ASSERT_TRUE(read->saveAs(file));
  EXPECT_FALSE(saved().contains("PaletteStyle"));
  EXPECT_FALSE(saved().contains("CAdUiPalette"));
}

TEST_F(ToolPaletteTest, OfAForeignPaletteWhatStandsBesideItsContentIsReadByValue) {
  const OdTcToolPalettePtr read = loadedPalette(
      "<ItemID idValue=\"X\"/><PaletteContent/>"
      "<PaletteUI><SortType>2</SortType><PreviewSize>4</PreviewSize><PreviewStyle>3</PreviewStyle>"
      "<Tool a=\"1\"/><CAcTcUiToolPalette><CatalogView><ToolOrder><ID>T</ID></ToolOrder>"
      "</CatalogView></CAcTcUiToolPalette></PaletteUI>");
  EXPECT_EQ(read->id(), u"X"_s);
  EXPECT_EQ(read->getDatabase()->tools()->count(), 0);
  EXPECT_EQ(read->getSortType(), 2);
  EXPECT_EQ(read->getPreviewSize(), 4);
  EXPECT_EQ(read->getPreviewStyle(), 3);
  OdArray<OdString> ids;
  read->getToolOrder(ids);
  EXPECT_EQ(ids, OdArray<OdString>({u"T"_s}));
}

TEST_F(ToolPaletteTest, AnOrderWithUnknownIdsIsKeptOnSaving) {
  const OdTcToolPalettePtr read = loadedPalette(
      "<PaletteUI><SortType>2</SortType><CAcTcUiToolPalette><CatalogView><ToolOrder><ID>none</ID>"
      "<ID>none</ID></ToolOrder></CatalogView></CAcTcUiToolPalette></PaletteUI>");
  ASSERT_TRUE(read->saveAs(file));
  EXPECT_EQ(saved().count("<ID>none</ID>"), 2);
}

TEST_F(ToolPaletteTest, AnOrderWithEmptyIdsDoesNotCutTheOthers) {
  palette->setToolOrder({OdString(), u"1"_s, OdString(), u"2"_s});
  ASSERT_TRUE(palette->saveAs(file));
  const OdTcToolPalettePtr read = OdTcToolPalette::createObject();
  ASSERT_TRUE(read->load(file));
  OdArray<OdString> ids;
  read->getToolOrder(ids);
  EXPECT_EQ(ids, OdArray<OdString>({u"1"_s, u"2"_s}));
}

TEST_F(ToolPaletteTest, ReadByItselfHasNoCatalogAbove) {
  const OdTcToolPalettePtr read =
      loadedPalette("<Tools><Tool><ItemID idValue=\"T\"/></Tool></Tools>");
  EXPECT_EQ(read->catalog(), nullptr);
  EXPECT_EQ(read->getDatabase()->catalog(), nullptr);
  EXPECT_EQ(read->getDatabase()->tools()->at(0)->catalog(), nullptr);
  EXPECT_EQ(read->getDatabase()->tools()->at(0)->database(), read->getDatabase());
}

TEST_F(ToolPaletteTest, TellsTheReactorsOfDatabaseAndHandleOfAChange) {
  ItemLog ofDatabase, ofPalette;
  palette->getDatabase()->addReactor(&ofDatabase);
  palette->addReactor(&ofPalette);
  palette->setSortType(1);
  EXPECT_EQ(ofDatabase.log, QStringList{u"changed P"_s});
  EXPECT_EQ(ofPalette.log, QStringList{u"changed P"_s});
}

TEST_F(ToolPaletteTest, ManualSortingWithoutAnOrderIsKeptAsItIs) {
  palette->setSortType(2);
  added(u"T"_s);
  ASSERT_TRUE(palette->saveAs(file));
  const OdTcToolPalettePtr read = OdTcToolPalette::createObject();
  ASSERT_TRUE(read->load(file));
  EXPECT_EQ(read->getSortType(), 2);
  EXPECT_EQ(namesOf(read->enumTools()), QStringList(u"T"_s));
}

TEST_F(ToolPaletteTest, SaysItsPathRelativeToItsCatalog) {
  OdString out;
  EXPECT_FALSE(palette->getRelativePath(out)) << "it stands in no catalog";
  const OdTcCatalogPtr nowhere = OdTcCatalog::createObject();
  nowhere->addPalette(palette);
  EXPECT_FALSE(palette->getRelativePath(out)) << "neither has a path";
  palette->getDatabase()->setPath(file);
  EXPECT_FALSE(palette->getRelativePath(out)) << "the catalog has no path";
  const OdTcCatalogPtr catalog = load(writeTwoPalettes(u"c"_s));
  const OdTcToolPalettePtr other = CatalogFixture::palette(u"O"_s);
  catalog->addPalette(other);
  other->getDatabase()->setPath(OdString());
  EXPECT_FALSE(other->getRelativePath(out)) << "the palette has no path";
  other->getDatabase()->setPath(u"D:\\elsewhere\\p.dtc"_s);
  EXPECT_FALSE(other->getRelativePath(out)) << "the paths share no beginning";
  EXPECT_EQ(out, OdString());
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->getRelativePath(out));
  EXPECT_EQ(out, u"Palettes\\a.dtc"_s);
}

TEST_F(ToolPaletteTest, RenewsItsIdsAndLetsTheOrderFollow) {
  const OdTcToolPtr one = added(u"One"_s);
  const OdTcToolPtr two = added(u"Two"_s);
  const OdString own = palette->id();
  const QStringList former = {one->id(), two->id()};
  palette->setToolOrder({two->id(), u"alien"_s, one->id()});
  palette->renewIds();
  EXPECT_NE(palette->id(), own);
  EXPECT_FALSE(former.contains(one->id()) || former.contains(two->id()));
  EXPECT_EQ(order(), OdArray<OdString>({two->id(), u"alien"_s, one->id()}));
}

TEST_F(ToolPaletteTest, ACloneHasItsOwnToolsAndAnEmptyOrder) {
  ASSERT_TRUE(palette->saveAs(file));
  const OdTcToolPtr original = added(u"T"_s);
  palette->setToolOrder({original->id()});
  palette->setPreviewSize(4);
  palette->setPreviewStyle(3);
  palette->setReferenced(true);
  palette->getDatabase()->readField(u"PaletteStyle"_s, OdVariant(u"3"_s));
  const OdTcToolPalettePtr copy(palette->clone(true));
  EXPECT_NE(copy->id(), palette->id());
  EXPECT_EQ(copy->name(), u"P"_s);
  EXPECT_EQ(copy->getPath(), file);
  EXPECT_TRUE(copy->isReferenced());
  EXPECT_EQ(copy->getSortType(), 2);
  EXPECT_EQ(copy->getPreviewSize(), 1);
  EXPECT_EQ(copy->getPreviewStyle(), 0);
  EXPECT_EQ(copy->getDatabase()->paletteStyle(), 0);
  EXPECT_EQ(copy->getDatabase()->attachedCount(), 0);
  OdArray<OdString> ids;
  copy->getToolOrder(ids);
  EXPECT_TRUE(ids.isEmpty());
  ASSERT_EQ(copy->getDatabase()->tools()->count(), 1);
  const OdTcCatalogItem* const tool = copy->getDatabase()->tools()->at(0);
  EXPECT_NE(tool, original.get());
  EXPECT_NE(tool->id(), original->id());
  EXPECT_EQ(tool->database(), copy->getDatabase());
}

TEST_F(ToolPaletteTest, CollectsTheKindsThatCannotRun) {
  const OdTcToolPalettePtr read =
      loadedPalette("<Tools><Tool><ToolType>1</ToolType><Data><Light/></Data></Tool>"
                    "<Tool><ToolType>1</ToolType><Data><VisualStyle/></Data></Tool>"
                    "<Tool><ToolType>3</ToolType></Tool><Tool><ToolType>4</ToolType></Tool>"
                    "<Tool><ToolType>1</ToolType></Tool></Tools>");
  QStringList labels;
  read->collectUnsupportedKinds(labels, {{u"VisualStyle"_s, u"Visual style"_s}});
  EXPECT_EQ(labels, QStringList({u"Light"_s, u"Visual style"_s, u"Text"_s, u"Separator"_s}));
}

TEST_F(ToolPaletteTest, StripsWhatCannotRunAndLeavesTheOrder) {
  const OdTcToolPalettePtr read = loadedPalette(
      "<Tools><Tool><ItemID idValue=\"same\"/><ToolType>1</ToolType></Tool>"
      "<Tool><ItemID idValue=\"same\"/><ToolType>3</ToolType></Tool>"
      "<Tool><ItemID idValue=\"light\"/><ToolType>1</ToolType><Data><Light/></Data></Tool>"
      "<Tool><ItemID idValue=\"none\"/></Tool></Tools>");
  read->setToolOrder({u"light"_s});
  read->stripUnsupportedTools();
  OdTcToolList* const left = read->getDatabase()->tools();
  ASSERT_EQ(left->count(), 1) << "a tool without a type goes too";
  EXPECT_EQ(odrxCast<OdTcTool>(left->at(0))->getToolType(), 1u)
      << "of two tools with one id the right one stays";
  OdArray<OdString> ids;
  read->getToolOrder(ids);
  EXPECT_EQ(ids.size(), 1);
}

TEST_F(ToolPaletteTest, AdoptsTheTitleOfAFileAsItsName) {
  palette->getProperties()->setResource(u"res"_s, u"lib"_s);
  palette->adoptFileName(u"C:\\in\\My tools.xtp"_s);
  EXPECT_EQ(palette->name(), u"My tools"_s);
  EXPECT_EQ(palette->getProperties()->resource(), OdString());
  EXPECT_EQ(palette->getProperties()->src(), OdString());
}

TEST_F(ToolPaletteTest, AdoptingAFileLetsTheAgentsOfItsToolsBringThemselvesUpToDate) {
  struct Updated : RecordingAgent {
    using RecordingAgent::RecordingAgent;
    int updates = 0;
    void updateFromHost() override { ++updates; }
  };
  const auto first = odrxMake<Updated>(u"1"_s);
  const auto last = odrxMake<Updated>(u"2"_s);
  added(u"One"_s)->setActionAgent(first);
  added(u"None"_s);
  added(u"Two"_s)->setActionAgent(last);
  palette->adoptFileName(u"C:\\in\\My tools.xtp"_s);
  EXPECT_EQ(first->updates, 1);
  EXPECT_EQ(last->updates, 1);
  EXPECT_EQ(namesOf(palette->enumTools()), QStringList({u"One"_s, u"None"_s, u"Two"_s}));
}

/// A palette with one tool that has the picture Images\t.png.
struct PictureTest : ToolPaletteTest {
  OdTcToolPtr withPicture() const {
    writeFile(u"Images\\t.png"_s, "picture");
    writeFile(u"p.dtc"_s,
              "<Palette><Tools><Tool><ItemID idValue=\"T\"/><Properties><ItemName>T</ItemName>"
              "<Images><Image cx=\"16\" cy=\"16\" src=\"\\Images\\t.png\"/></Images></Properties>"
              "</Tool></Tools></Palette>");
    EXPECT_TRUE(palette->load(file));
    return OdTcToolPtr(palette->getDatabase()->tools()->at(0));
  }
};

TEST_F(PictureTest, GoesWithARemovedTool) {
  withPicture();
  EXPECT_TRUE(palette->removeItem(u"T"_s));
  EXPECT_FALSE(exists(u"Images\\t.png"_s));
}

TEST_F(PictureTest, GoesWithAToolThatIsStripped) {
  withPicture();
  palette->stripUnsupportedTools();
  EXPECT_EQ(palette->getDatabase()->tools()->count(), 0);
  EXPECT_FALSE(exists(u"Images\\t.png"_s));
}

TEST_F(PictureTest, StaysIfTheToolSharesIt) {
  withPicture()->setMarked();
  EXPECT_TRUE(palette->removeItem(u"T"_s));
  EXPECT_TRUE(exists(u"Images\\t.png"_s));
}

TEST_F(ToolPaletteTest, ToolsThatOutliveTheirPaletteHaveNoDatabase) {
  const OdTcToolPtr made = added(u"T"_s);
  const OdTcDatabasePtr database(palette->getDatabase());
  palette = nullptr;
  EXPECT_EQ(made->database(), database.get());
  EXPECT_EQ(made->catalog(), nullptr);
}

TEST_F(ToolPaletteTest, FindsOneOfManyToolsThroughAnIndex) {
  palette->suspendAutoSave();
  std::vector<OdTcToolPtr> tools;
  for (int i = 0; i < 300; ++i) tools.push_back(added(u"T"_s));
  for (const OdTcToolPtr& one : tools)
    ASSERT_EQ(palette->getDatabase()->tools()->find(one->id()), one.get());
}

} // namespace
