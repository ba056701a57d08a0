#include "catalog/palette_import.h"

#include "catalog/import_fixture.h"
#include "catalog/import_prompt.h"
#include "persistence/value_storage.h"
#include "tools/action_agent.h"

namespace {

using namespace testhost;

struct PaletteImportTest : ImportFixture {
  static const TestProfile* store() {
    return theHost().application.store->at(u"cmddata/ToolPaletteManager"_s);
  }
  static QByteArray light(const QByteArray& id) { return toolXml(id, "<Light/>"); }
};

TEST_F(PaletteImportTest, WithoutUnsupportedToolsShowsNoPromptAndPrintsNothing) {
  ASSERT_TRUE(import(exported(commandXml("A") + commandXml("B"))));
  EXPECT_TRUE(theHost().messages.boxes.empty());
  EXPECT_TRUE(theHost().messages.printed.isEmpty()) << text(theHost().messages.printed.join(u'|'));
}

TEST_F(PaletteImportTest, WithTwoUnsupportedToolsShowsOnePromptAndPrintsTwoLines) {
  const OdTcToolPalettePtr palette = import(exported(light("L1") + commandXml("A") + light("L2")));
  ASSERT_EQ(theHost().messages.boxes.size(), 1u);
  EXPECT_EQ(theHost().messages.boxes[0].identifier, u"ToolPaletteManager\\UTMsg"_s);
  EXPECT_EQ(theHost().messages.boxes[0].caption, u"Tool Palette Import"_s);
  EXPECT_TRUE(theHost().messages.boxes[0].text.contains(
      u"\"Visual Style, Light, MLeader,Camera,Table,Text, Separator\""_s));
  EXPECT_EQ(theHost().messages.printed, QStringList({u"\nSkipped unsupported tool: L1"_s,
                                                     u"\nSkipped unsupported tool: L2"_s}));
  EXPECT_EQ(toolsOf(*palette).size(), 1u);
}

TEST_F(PaletteImportTest, ATickStopsThePromptInLaterImportsButNotTheLines) {
  const OdString file = exported(light("L"));
  theHost().messages.tick = true;
  ASSERT_TRUE(import(file));
  EXPECT_EQ(store()->values.value(u"UnsupportedToolsMessage"_s).toInt32(), 1);
  ASSERT_TRUE(import(file));
  EXPECT_EQ(theHost().messages.boxes.size(), 1u);
  EXPECT_EQ(printedTimes(u"Skipped unsupported tool: L"_s), 2);
}

TEST_F(PaletteImportTest, SkipsTextsSeparatorsAndToolsWithoutAType) {
  const OdTcToolPalettePtr palette =
      import(exported(toolXml("T", "", "3") + toolXml("S", "", "4") + toolXml("Z", "", "0") +
                      "<Tool><StockToolRef/><Data/></Tool>" + commandXml("A")));
  EXPECT_EQ(toolsOf(*palette).size(), 1u);
  EXPECT_EQ(theHost().messages.boxes.size(), 1u);
  EXPECT_EQ(printedTimes(u"Skipped"_s), 4);
  EXPECT_EQ(row(u"T"_s).kind, u"Text"_s);
  EXPECT_EQ(row(u"S"_s).kind, u"Separator"_s);
  EXPECT_FALSE(row(u"Z"_s).reason.isEmpty());
}

TEST_F(PaletteImportTest, NamesTheKindsThatCannotRunAsTheImportCallsThem) {
  import(exported(toolXml("V", "<VisualStyle/>") + light("L") + toolXml("T", "", "3")));
  EXPECT_TRUE(report.notes.join(u'\n').contains(u"Visual style, Light, Text"_s));
  EXPECT_EQ(row(u"V"_s).kind, u"Visual style"_s);
}

TEST_F(PaletteImportTest, SeveralMultitoolsOfAFileShowTheirPromptOnce) {
  const QByteArray multitool =
      "<Tool><CustomData><className>X</className></CustomData><Flyout enable=\"1\"><ShapePackage "
      "idValue=\"P\"/><CurrentShape idValue=\"S\"/></Flyout><ToolType>1</ToolType></Tool>";
  import(exported(multitool + multitool));
  ASSERT_EQ(theHost().messages.boxes.size(), 1u);
  EXPECT_EQ(theHost().messages.boxes[0].identifier, u"ToolPaletteManager\\MTMsg"_s);
  EXPECT_TRUE(report.tools[0].reason.contains(u"several commands"_s));
}

TEST_F(PaletteImportTest, ImportedTwiceSharesNoIdAndHasTwoNames) {
  const OdString file = exported(commandXml("A") + commandXml("B"));
  const OdTcToolPalettePtr first = import(file), second = import(file);
  ASSERT_TRUE(first && second);
  EXPECT_EQ(first->name(), u"p"_s) << "the file's title";
  EXPECT_EQ(second->name(), u"p (2)"_s);
  QSet<OdString> ids;
  for (const OdTcToolPalettePtr& palette : {first, second}) {
    ids << palette->id();
    for (const OdTcTool* const tool : toolsOf(*palette)) ids << tool->id();
  }
  EXPECT_EQ(ids.size(), 6);
  EXPECT_FALSE(ids.contains(u"{A}"_s));
  EXPECT_TRUE(first->isImported());
}

TEST_F(PaletteImportTest, TheOrderFollowsTheFreshIdsAndKeepsThoseThatItDoesNotKnow) {
  const OdTcToolPalettePtr palette =
      import(exported(commandXml("A") + commandXml("B"), "p", {},
                      "<Tool idValue=\"{B}\"/><Tool>{GONE}</Tool><ID>{A}</ID>"));
  OdArray<OdString> order;
  palette->getToolOrder(order);
  ASSERT_EQ(order.size(), 3);
  EXPECT_EQ(order[0], toolsOf(*palette)[1]->id());
  EXPECT_EQ(order[1], u"{GONE}"_s);
  EXPECT_EQ(order[2], toolsOf(*palette)[0]->id());
}

TEST_F(PaletteImportTest, IsOnTheDiskWhenItIsDone) {
  const OdTcToolPalettePtr palette = import(exported(commandXml("A")));
  const OdTcCatalogPtr again = load(catalog().path());
  ASSERT_TRUE(again->findPalette(palette->id()));
  EXPECT_EQ(again->findPalette(palette->id())->name(), u"p"_s);
  EXPECT_EQ(toolsOf(*again->findPalette(palette->id())).size(), 1u);
}

TEST_F(PaletteImportTest, TellsTheCatalogsReactorsOnceAllIsDone) {
  ItemLog log;
  catalog().addReactor(&log);
  ASSERT_TRUE(import(exported(commandXml("A"))));
  EXPECT_EQ(log.log, QStringList(u"added p"_s));
  OdTcImportOptions options;
  options.group = u"New"_s;
  ASSERT_TRUE(import(exported(commandXml("A")), options));
  EXPECT_EQ(log.log.last(), u"added New"_s);
  catalog().removeReactor(&log);
}

TEST_F(PaletteImportTest, GoesIntoTheGroupOfThatNameOrANewOne) {
  OdTcImportOptions options;
  options.group = u"Site"_s;
  const OdTcToolPalettePtr first = import(exported(commandXml("A")), options);
  const OdTcToolPalettePtr second = import(exported(commandXml("A")), options);
  EXPECT_EQ(namesOf(catalog().groupsEnum()), QStringList(u"Site"_s));
  EXPECT_TRUE(first->isReferenced() && second->isReferenced());
  const OdTcCatalogPtr again = load(catalog().path());
  EXPECT_TRUE(again->findInGroups(second));
}

TEST_F(PaletteImportTest, ADryRunReportsTheSameAndChangesNothing) {
  writeFile(u"in\\p\\Images\\a.png"_s, png());
  const OdString file = exported(commandXml("A", imageXml(".\\Images\\a.png")) + light("L"));
  const auto before = allFiles();
  OdTcImportOptions options;
  options.dryRun = true;
  const OdTcToolPalettePtr palette = import(file, options);
  ASSERT_TRUE(palette);
  EXPECT_EQ(allFiles(), before);
  EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList());
  EXPECT_TRUE(theHost().messages.boxes.empty());
  EXPECT_EQ(theHost().messages.printed, QStringList());
  EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kFound);
  EXPECT_EQ(row(u"L"_s).fate, OdTcToolFate::kSkipped);
  EXPECT_EQ(report.palette, u"p"_s);
}

TEST_F(PaletteImportTest, CopiesThePicturesToOurFolderAndLeavesTheirsAlone) {
  writeFile(u"in\\p\\Images\\a.png"_s, png());
  writeFile(u"in\\p\\Images\\l.png"_s, png());
  const OdString file = exported(commandXml("A", imageXml(".\\Images\\a.png")) +
                                 toolXml("L", "<Light/>", "1", imageXml(".\\Images\\l.png")));
  const OdTcToolPalettePtr palette = import(file);
  EXPECT_EQ(readFile(u"c\\Palettes\\Images\\a.png"_s), png());
  EXPECT_TRUE(exists(u"in\\p\\Images\\a.png"_s));
  EXPECT_TRUE(exists(u"in\\p\\Images\\l.png"_s))
      << "the skipped tool's picture is not ours to delete";
  OdTcImageList* const images = toolsOf(*palette)[0]->images();
  EXPECT_EQ(images->findBySize(4)->src(), u"\\Images\\a.png"_s);
  for (const int kind : {1, 3, 4}) {
    ASSERT_TRUE(images->findBySize(kind)) << kind;
    EXPECT_FALSE(images->findBySize(kind)->getBitmap().isNull()) << kind;
  }
}

TEST_F(PaletteImportTest, PicturesOfOneNameStayApart) {
  writeFile(u"in\\p\\Images\\a.png"_s, png(64, 0xFF00FF00));
  writeFile(u"in\\q\\Images\\a.png"_s, png(64, 0xFF0000FF));
  const QByteArray tools = commandXml("A", imageXml(".\\Images\\a.png"));
  const OdTcToolPalettePtr first = import(exported(tools, "p"));
  const OdTcToolPalettePtr second =
      import(exported(tools, "q", "<DependentFilesPath>q</DependentFilesPath>"));
  const auto color = [](const OdTcToolPalettePtr& palette) {
    return toolsOf(*palette)[0]->images()->findBySize(4)->getBitmap().pixel(5, 5);
  };
  EXPECT_EQ(color(first), 0xFF00FF00);
  EXPECT_EQ(color(second), 0xFF0000FF);
}

TEST_F(PaletteImportTest, PicturesAreLookedForInTheFolderThatTheFileNames) {
  writeFile(u"in\\files of p\\Images\\a.png"_s, png());
  import(exported(commandXml("A", imageXml(".\\Images\\a.png")), "p",
                  "<DependentFilesPath>files of p</DependentFilesPath>"));
  EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kFound);
}

TEST_F(PaletteImportTest, WithoutANamedFolderPicturesLieInTheOneThatIsCalledLikeTheFile) {
  writeFile(u"in\\p\\Images\\a.png"_s, png());
  import(exported(commandXml("A", imageXml(".\\Images\\a.png")), "p", {}));
  EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kFound);
}

TEST_F(PaletteImportTest, MapsTheFoldersOfSourcesOnTheWayIn) {
  writeFile(u"lib\\door.dwg"_s, "x");
  const auto block = [](const QByteArray& id, const QByteArray& source) {
    return toolXml(id, "<Block><BlockName>B</BlockName><SourceFile>" + source +
                           "</SourceFile></Block>");
  };
  OdTcImportOptions options;
  options.folderMap = {{u"c:/old lib/"_s, stored(u"lib"_s)}, {u"%AECCONTENT_DIR%"_s, u"D:\\aec"_s}};
  const OdTcToolPalettePtr palette = import(exported(block("A", "C:\\Old Lib\\door.dwg") +
                                                     block("B", "%AECCONTENT_DIR%\\x\\y.dwg") +
                                                     block("C", "C:\\Old Library\\door.dwg")),
                                            options);
  EXPECT_EQ(toolsOf(*palette)[0]->getActionAgent()->sourcePath(), stored(u"lib\\door.dwg"_s));
  EXPECT_EQ(row(u"A"_s).source, OdTcSourceFate::kFound);
  EXPECT_EQ(row(u"B"_s).sourceFile, u"D:\\aec\\x\\y.dwg"_s);
  EXPECT_EQ(row(u"B"_s).source, OdTcSourceFate::kMissing);
  EXPECT_EQ(row(u"C"_s).sourceFile, u"C:\\Old Library\\door.dwg"_s) << "another folder";
}

TEST_F(PaletteImportTest, ASourceBesideTheFileIsFoundByTheToolAfterwards) {
  writeFile(u"in\\lib\\door.dxf"_s, "x");
  const auto block = [](const QByteArray& id, const QByteArray& source) {
    return toolXml(id, "<Block><SourceFile>" + source + "</SourceFile></Block>");
  };
  OdTcImportOptions options;
  options.folderMap = {{u"C:\\lib"_s, u"lib"_s}};
  const OdTcToolPalettePtr palette =
      import(exported(block("A", "lib\\door.dxf") + block("B", "C:\\lib\\door.dxf") +
                      block("C", "gone.dxf")),
             options);
  for (const OdString& name : {u"A"_s, u"B"_s}) {
    EXPECT_EQ(row(name).source, OdTcSourceFate::kFound);
    EXPECT_EQ(row(name).sourceFile, stored(u"in\\lib\\door.dxf"_s));
  }
  for (const std::size_t at : {0u, 1u})
    EXPECT_EQ(toolsOf(*palette)[at]->getActionAgent()->sourcePath(),
              stored(u"in\\lib\\door.dxf"_s));
  EXPECT_EQ(row(u"C"_s).source, OdTcSourceFate::kMissing);
  EXPECT_EQ(toolsOf(*palette)[2]->getActionAgent()->sourcePath(), u"gone.dxf"_s);
}

TEST_F(PaletteImportTest, NamesPatternsThatTheHostDoesNotHave) {
  const auto hatch = [](const QByteArray& id, const QByteArray& more) {
    return toolXml(id, "<Hatch>" + more + "</Hatch>");
  };
  const OdString file = exported(
      hatch("Named", "<hatchObjectType>0</hatchObjectType><HatchType>1</HatchType>"
                     "<PatternName>AR-CONC</PatternName>") +
      hatch("Lines", "<hatchObjectType>0</hatchObjectType><HatchType>0</HatchType>") +
      hatch("Filling", "<hatchObjectType>0</hatchObjectType><HatchType>1</HatchType>"
                       "<PatternName>SOLID</PatternName>") +
      hatch("File", "<hatchObjectType>0</hatchObjectType><HatchType>2</HatchType>"
                    "<PatternName>MINE</PatternName><SourceFile>C:\\mine.pat</SourceFile>") +
      hatch("Own", "<hatchObjectType>0</hatchObjectType><HatchType>2</HatchType>"
                   "<PatternName>MINE</PatternName><SourceFile>mine.pat</SourceFile>") +
      hatch("Gradient", "<hatchObjectType>1</hatchObjectType><GradientName>LINEAR</GradientName>"));
  theHost().previews.canRender = false;
  import(file);
  EXPECT_TRUE(row(u"Named"_s).reason.contains(u"\"AR-CONC\""_s)) << text(row(u"Named"_s).reason);
  EXPECT_TRUE(row(u"Own"_s).reason.contains(u"\"MINE\""_s)) << text(row(u"Own"_s).reason);
  for (const OdString& name : {u"Lines"_s, u"Filling"_s, u"Gradient"_s, u"File"_s})
    EXPECT_EQ(row(name).reason, OdString()) << text(name);
  theHost().previews.canRender = true;
  import(file);
  EXPECT_EQ(row(u"Named"_s).reason, OdString());
}

TEST_F(PaletteImportTest, ConvertsOnlyRecordsThatHoldNothingButAMacro) {
  const QByteArray macro = "<CommandString>^C^C_LINE</CommandString>";
  OdTcImportOptions options;
  options.convertCommands = true;
  import(exported(toolXml("Bare", macro) +
                  toolXml("Record", "<AecDbCommandObject>" + macro +
                                        "</AecDbCommandObject><Units>1</Units>") +
                  toolXml("More", "<Recipe101><Style>S</Style>" + macro + "</Recipe101>") +
                  toolXml("Deep", "<Recipe101>" + macro + "<Deep><x>1</x></Deep></Recipe101>") +
                  toolXml("Beside", "<AecDbGeo><x>1</x></AecDbGeo>" + macro)),
         options);
  for (const OdString& name : {u"Bare"_s, u"Record"_s})
    EXPECT_EQ(row(name).fate, OdTcToolFate::kConverted) << text(name);
  for (const OdString& name : {u"More"_s, u"Deep"_s, u"Beside"_s}) {
    EXPECT_EQ(row(name).fate, OdTcToolFate::kTaken) << text(name);
    EXPECT_EQ(row(name).command, u"^C^C_LINE"_s) << "it is told all the same";
  }
  EXPECT_TRUE(row(u"Beside"_s).reason.contains(u"\"CommandString\""_s))
      << "the macro is that record's";
}

TEST_F(PaletteImportTest, ShowsTheToolsInTheirOrderUnlessTheFileSaysOtherwise) {
  EXPECT_EQ(import(exported(commandXml("B") + commandXml("A")))->getSortType(), 2);
  writeFile(u"own.xtp"_s, "<Palette><ItemID idValue=\"{P}\"/><Tools/><PaletteUI><SortType>1"
                          "</SortType></PaletteUI></Palette>");
  EXPECT_EQ(import(stored(u"own.xtp"_s))->getSortType(), 1);
  const QByteArray bytes = readFile(u"in\\p.xtp"_s);
  writeFile(u"in\\p.xtp"_s,
            QByteArray(bytes).replace("<PaletteUI>", "<PaletteUI><SortType>0</SortType>"));
  EXPECT_EQ(import(stored(u"in\\p.xtp"_s))->getSortType(), 0);
}

TEST_F(PaletteImportTest, TakesNoNameThatIsSpokenFor) {
  OdTcImportOptions dry;
  dry.dryRun = true;
  dry.takenNames = {u"p"_s, u"p (2)"_s};
  import(exported(commandXml("A")), dry);
  EXPECT_EQ(report.palette, u"p (3)"_s);
}

TEST_F(PaletteImportTest, NamesCommandsThatAreNotAvailableHere) {
  import(exported(toolXml("A", "<Command Macro=\"^C^C_-FitViewport\"/>") +
                  toolXml("B", "<Command Macro=\"^C^C_fitviewport\"/>")));
  EXPECT_TRUE(row(u"A"_s).reason.contains(u"FitViewport"_s));
  EXPECT_EQ(row(u"A"_s).fate, OdTcToolFate::kTaken);
  EXPECT_TRUE(row(u"B"_s).reason.isEmpty()) << "names are compared exactly";
}

TEST_F(PaletteImportTest, OfAStoreTheNameIsTheOneInTheFile) {
  writeFile(u"in\\Walls_8F2A.atc"_s,
            "<Palette option=\"0\"><ItemID idValue=\"{S}\"/><Properties><ItemName>Walls</ItemName>"
            "</Properties><Tools>" +
                commandXml("A", imageXml("Images\\w.png")) + "</Tools></Palette>");
  writeFile(u"in\\Images\\w.png"_s, png());
  const OdTcToolPalettePtr palette = import(stored(u"in\\Walls_8F2A.atc"_s));
  ASSERT_TRUE(palette);
  EXPECT_EQ(palette->name(), u"Walls"_s);
  EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kFound);
}

struct CountingProgress : OdTcImportProgress {
  int range = -1, steps = 0, stops = 0, allowed = 1 << 20;
  void start(int count) override { range = count; }
  bool step() override { return ++steps <= allowed; }
  void stop() override { ++stops; }
  CountingProgress() { OdTcImportProgress::setInstance(this); }
  ~CountingProgress() { OdTcImportProgress::setInstance(nullptr); }
};

TEST_F(PaletteImportTest, TellsItsProgressToolByTool) {
  CountingProgress progress;
  import(exported(commandXml("A") + light("B") + commandXml("C")));
  EXPECT_EQ(progress.range, 9);
  EXPECT_EQ(progress.steps, 9) << "each is looked at, brought, and gets its pictures";
  EXPECT_EQ(progress.stops, 1);
  CountingProgress dry;
  OdTcImportOptions options;
  options.dryRun = true;
  import(exported(commandXml("A") + light("B") + commandXml("C")), options);
  EXPECT_EQ(dry.range, 6);
  EXPECT_EQ(dry.steps, 6) << "nothing is brought";
}

TEST_F(PaletteImportTest, OfAPaletteWithoutToolsTheProgressHasARangeOfNothing) {
  CountingProgress progress;
  ASSERT_TRUE(import(exported({})));
  EXPECT_EQ(progress.range, 0);
  EXPECT_EQ(progress.steps, 0);
  EXPECT_EQ(progress.stops, 1);
}

TEST_F(PaletteImportTest, ACancelledImportLeavesNoTrace) {
  const OdString file = exported(commandXml("A") + light("B") + commandXml("C"));
  const auto before = allFiles();
  for (int allowed = 0; allowed < 9; ++allowed) {
    CountingProgress progress;
    progress.allowed = allowed;
    EXPECT_FALSE(import(file)) << allowed;
    EXPECT_EQ(progress.stops, 1);
    EXPECT_TRUE(report.problem.contains(u"cancelled"_s));
    EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList());
  }
  EXPECT_EQ(allFiles(), before);
}

TEST_F(PaletteImportTest, ASecondImportFromInsideTheFirstIsRefused) {
  struct Nested : CountingProgress {
    std::function<void()> inside;
    bool step() override {
      if (inside) std::exchange(inside, nullptr)();
      return true;
    }
  } progress;
  const OdString file = exported(commandXml("A"));
  OdTcImportReport inner;
  progress.inside = [&] { EXPECT_FALSE(catalog().importPalette(file, {}, inner)); };
  EXPECT_TRUE(import(file));
  EXPECT_FALSE(inner.problem.isEmpty());
  EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList(u"p"_s));
}

TEST_F(PaletteImportTest, TheManagerImportsIntoTheActiveCatalogAndShowsMessageOneOnFailure) {
  OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  EXPECT_EQ(manager->importPalette(nullptr, stored(u"none.xtp"_s)), nullptr);
  EXPECT_TRUE(theHost().messages.boxes.empty()) << "there is no catalog";
  EXPECT_TRUE(manager->importPalette(&catalog(), exported(commandXml("A"))));
  EXPECT_EQ(manager->importPalette(&catalog(), stored(u"none.xtp"_s)), nullptr);
  ASSERT_EQ(theHost().messages.boxes.size(), 1u);
  EXPECT_EQ(theHost().messages.boxes[0].text, u"Error while reading tool palette file."_s);
  EXPECT_EQ(theHost().messages.boxes[0].caption, u"Drafton"_s);
  writeFile(u"in\\bad.xtp"_s, "<Catalog/>");
  EXPECT_EQ(manager->importPalette(&catalog(), stored(u"in\\bad.xtp"_s)), nullptr);
  EXPECT_EQ(theHost().messages.boxes.size(), 2u) << "the reader has told it, and nobody else does";
}

TEST_F(PaletteImportTest, KnowsTheCommandsThatCannotRunHere) {
  for (const char16_t* name :
       {u"imageframe",   u"MTextEdit",    u"nsf",          u"pface",
        u"qparams",      u"refclose",     u"refset",       u"SplitViewport_2",
        u"FitViewport",  u"NetLoad",      u"lsp",          u"appload",
        u"ATTRNORMAL",   u"ATTROFF",      u"ATTRON",       u"Lock_Unlock_Viewport",
        u"objeciorder1", u"objeciorder2", u"objeciorder3", u"ON_OFF_Viewport",
        u"ViewZoomScale"})
    EXPECT_TRUE(OdTcValueStorageImpl::isCommandUnsupported(OdString::fromUtf16(name)));
  for (const char16_t* name : {u"IMAGEFRAME", u"mtextedit", u"LINE", u""})
    EXPECT_FALSE(OdTcValueStorageImpl::isCommandUnsupported(OdString::fromUtf16(name)));
  EXPECT_EQ(OdTcValueStorageImpl::kindNames().value(u"VisualStyle"_s), u"Visual style"_s);
}

} // namespace
