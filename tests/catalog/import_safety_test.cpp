// Palettes that are broken, huge or hostile, and imports that are interrupted.
#include "catalog/foreign_store.h"
#include "catalog/import_fixture.h"
#include "persistence/foreign_paths.h"

namespace {

using namespace testhost;

struct ImportSafety : ImportFixture {
  /// A palette with pictures, a skipped tool and a group of its own.
  OdString rich() const {
    writeFile(u"in\\p\\Images\\a.png"_s, png());
    writeFile(u"in\\p\\Images\\b.png"_s, png(32));
    return exported(commandXml("A", imageXml(".\\Images\\a.png")) + toolXml("L", "<Light/>") +
                    commandXml("B", imageXml(".\\Images\\b.png", "cx=\"32\" cy=\"32\"")));
  }
  static OdTcImportOptions intoGroup() {
    OdTcImportOptions options;
    options.group = u"New group"_s;
    return options;
  }
};

struct PathRow {
  const char16_t* path;
  bool isInside;
};

struct ForeignPath : testing::TestWithParam<PathRow> {};

TEST_P(ForeignPath, IsInsideOrNot) {
  const OdString path = OdString::fromUtf16(GetParam().path);
  EXPECT_EQ(insidePath(path).has_value(), GetParam().isInside) << text(path);
  EXPECT_EQ(whyOutside(path).isEmpty(), GetParam().isInside) << text(whyOutside(path));
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ForeignPath,
    testing::Values(PathRow{u"a.png", true}, PathRow{u".\\Images\\a.png", true},
                    PathRow{u"\\Images\\a.png", true}, PathRow{u"Images/a.png", true},
                    PathRow{u"a\\..\\b.png", true}, PathRow{u".", true}, PathRow{u"", true},
                    PathRow{u"..\\a.png", false}, PathRow{u"a\\..\\..\\b.png", false},
                    PathRow{u"a/../../b.png", false}, PathRow{u"C:\\a.png", false},
                    PathRow{u"C:a.png", false}, PathRow{u"\\\\server\\share\\a.png", false},
                    PathRow{u"//server/share/a.png", false},
                    PathRow{u"\\\\.\\PhysicalDrive0", false}, PathRow{u"\\\\?\\C:\\a.png", false},
                    PathRow{u"NUL", false}, PathRow{u"Images\\con.png", false},
                    PathRow{u"COM1.png", false}, PathRow{u"/dev/zero", false},
                    PathRow{u"a.png:stream", false}, PathRow{u"console.png", true},
                    PathRow{u"COMA.png", true}));

TEST_F(ImportSafety, RefusesPicturesThatLeadOutOfTheirFolderAndNamesThem) {
  writeFile(u"in\\secret.png"_s, png());
  writeFile(u"secret.png"_s, png());
  QByteArray tools;
  const QList<QByteArray> paths = {"..\\..\\secret.png", "C:\\secret.png", "\\\\host\\x\\s.png",
                                   "\\\\.\\nul", "/dev/zero"};
  for (qsizetype i = 0; i < paths.size(); ++i)
    tools += commandXml("T" + QByteArray::number(i), imageXml(paths[i]));
  const OdTcToolPalettePtr palette = import(exported(tools));
  ASSERT_TRUE(palette);
  EXPECT_FALSE(exists(u"c\\Palettes\\Images"_s));
  for (qsizetype i = 0; i < paths.size(); ++i) {
    const OdTcImportedTool tool = row(u"T%1"_s.arg(i));
    EXPECT_EQ(tool.picture, OdTcPictureFate::kRefused) << paths[i].toStdString();
    EXPECT_EQ(tool.pictureFile, OdString::fromUtf8(paths[i]));
  }
}

TEST_F(ImportSafety, LooksNotIntoAFolderOfPicturesThatLiesElsewhere) {
  writeFile(u"Images\\a.png"_s, png());
  for (const char* folder :
       {"\\", "/", "..", "C:\\", "C:", "\\\\host\\share", "a\\..\\..", "NUL"}) {
    import(exported(commandXml("A", imageXml(".\\Images\\a.png")), "p",
                    "<DependentFilesPath>" + QByteArray(folder) + "</DependentFilesPath>"));
    EXPECT_EQ(row(u"A"_s).picture, OdTcPictureFate::kMissing) << folder;
    EXPECT_TRUE(report.notes.join(u'\n').contains(u"is not looked into"_s)) << folder;
  }
}

TEST_F(ImportSafety, LooksNotForSourcesOnSharesAndDevices) {
  const auto block = [](const QByteArray& id, const QByteArray& source) {
    return toolXml(id, "<Block><SourceFile>" + source + "</SourceFile></Block>");
  };
  import(exported(block("S", "\\\\server\\x.dwg") + block("D", "\\\\.\\PhysicalDrive0") +
                  block("N", "C:\\NUL")));
  for (const OdString& name : {u"S"_s, u"D"_s, u"N"_s})
    EXPECT_EQ(row(name).source, OdTcSourceFate::kRefused) << text(name);
}

TEST_F(ImportSafety, NamesWhereSourcesBehindLinksLie) {
  for (const OdString& file :
       {u"elsewhere\\door.dxf"_s, u"elsewhere\\site.png"_s, u"in\\own.dxf"_s, u"libs\\x"_s})
    writeFile(file, "x");
  const auto link = [this](const OdString& to, const OdString& from) {
    ASSERT_TRUE(QFile::link(platform(to), platform(from))) << text(from);
  };
  link(u"elsewhere\\door.dxf"_s, u"in\\linked.dxf"_s);
  link(u"elsewhere\\site.png"_s, u"in\\linked.png"_s);
  link(u"elsewhere"_s, u"in\\folder"_s);
  link(u"in\\own.dxf"_s, u"in\\same.dxf"_s);
  link(u"elsewhere\\gone.dxf"_s, u"in\\gone.dxf"_s);
  link(u"elsewhere\\door.dxf"_s, u"libs\\lib.dxf"_s);
  const auto block = [](const QByteArray& id, const QByteArray& source) {
    return toolXml(id, "<Block><BlockName>A</BlockName><SourceFile>" + source +
                           "</SourceFile></Block>");
  };
  const OdTcToolPalettePtr palette = import(exported(
      block("File", "linked.dxf") +
      toolXml("Picture", "<Raster><RasterName>A</RasterName><SourceFile>.\\linked.png</SourceFile>"
                         "</Raster>") +
      block("Folder", "folder\\door.dxf") + block("Inside", "same.dxf") +
      block("Gone", "gone.dxf") + block("Absolute", stored(u"libs\\lib.dxf"_s).toUtf8()) +
      block("Plain", stored(u"elsewhere\\door.dxf"_s).toUtf8()) +
      block("Above", "..\\elsewhere\\door.dxf")));
  ASSERT_TRUE(palette) << text(report.problem);
  const auto leadsTo = [](const OdString& file) {
    return OdString(u"its source is a link that leads to "_s + file);
  };
  const OdString door = stored(u"elsewhere\\door.dxf"_s);
  EXPECT_EQ(row(u"File"_s).reason, leadsTo(door));
  EXPECT_EQ(row(u"Picture"_s).reason, leadsTo(stored(u"elsewhere\\site.png"_s)));
  EXPECT_EQ(row(u"Folder"_s).reason, leadsTo(door));
  EXPECT_EQ(row(u"Absolute"_s).reason, leadsTo(door));
  for (const OdString& name :
       {u"File"_s, u"Picture"_s, u"Folder"_s, u"Absolute"_s, u"Inside"_s, u"Plain"_s, u"Above"_s})
    EXPECT_EQ(row(name).source, OdTcSourceFate::kFound) << text(name);
  EXPECT_EQ(row(u"Gone"_s).source, OdTcSourceFate::kMissing);
  for (const OdString& name : {u"Inside"_s, u"Gone"_s, u"Plain"_s, u"Above"_s})
    EXPECT_EQ(row(name).reason, OdString()) << text(name);
  EXPECT_EQ(row(u"Above"_s).sourceFile, door) << "the report names what lies above the palette";
}

TEST_F(ImportSafety, AFileThatCannotBeReadGivesNullAndChangesNothing) {
  const QDir hostile(QStringLiteral(TEST_DATA_DIR "/hostile"));
  const auto before = allFiles();
  int refused = 0;
  for (const QString& name : hostile.entryList(QDir::Files)) {
    writeFile(u"in\\h.xtp"_s, dataFile(u"hostile/"_s + name));
    OdTcImportOptions dry;
    dry.dryRun = true;
    if (import(stored(u"in\\h.xtp"_s), dry)) continue;
    ++refused;
    EXPECT_FALSE(import(stored(u"in\\h.xtp"_s))) << name.toStdString();
    EXPECT_FALSE(report.problem.isEmpty()) << name.toStdString();
  }
  EXPECT_GT(refused, 10);
  QFile::remove(platform(u"in\\h.xtp"_s));
  EXPECT_EQ(allFiles(), before);
  EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList());
}

TEST_F(ImportSafety, ACatalogIsNoPaletteThoughItHoldsElementsOfThatName) {
  writeFile(u"c.atc"_s, "<Catalog><Palettes><Palette><Url href=\"p.atc\"/></Palette></Palettes>"
                        "</Catalog>");
  EXPECT_FALSE(import(stored(u"c.atc"_s)));
  EXPECT_TRUE(report.problem.contains(u"it is a catalog"_s));
}

TEST_F(ImportSafety, NamesAMissingFileAFolderAndAnEmptyPalette) {
  EXPECT_FALSE(import(stored(u"none.xtp"_s)));
  EXPECT_TRUE(report.problem.contains(u"no such file"_s));
  QDir().mkpath(platform(u"folder.xtp"_s));
  EXPECT_FALSE(import(stored(u"folder.xtp"_s)));
  EXPECT_TRUE(report.problem.contains(u"it is a folder"_s)) << text(report.problem);
  writeFile(u"empty.xtp"_s, "<ToolPaletteExport><Palette/></ToolPaletteExport>");
  EXPECT_FALSE(import(stored(u"empty.xtp"_s)));
  EXPECT_TRUE(report.problem.contains(u"empty"_s)) << text(report.problem);
}

TEST_F(ImportSafety, CutAnywhereTheFileComesInWholeOrNotAtAll) {
  const OdString file = rich();
  QFile whole(odpath::toPlatform(file));
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray bytes = whole.readAll().trimmed();
  OdTcImportOptions dry;
  dry.dryRun = true;
  for (qsizetype length = 0; length < bytes.size(); length += 7) {
    writeFile(u"in\\cut.xtp"_s, bytes.left(length));
    EXPECT_FALSE(import(stored(u"in\\cut.xtp"_s), dry)) << length;
  }
}

TEST_F(ImportSafety, DoesNotImportIntoACatalogThatCannotBeRead) {
  writeFile(u"broken\\DrfTcCatalog.dtc"_s, "<Catalog");
  const OdTcCatalogPtr broken = OdTcCatalog::createObject();
  EXPECT_FALSE(broken->load(stored(u"broken\\DrfTcCatalog.dtc"_s)));
  EXPECT_FALSE(broken->importPalette(rich(), {}, report));
  EXPECT_TRUE(report.problem.contains(u"cannot be read"_s));
  EXPECT_EQ(readFile(u"broken\\DrfTcCatalog.dtc"_s), "<Catalog");
}

TEST_F(ImportSafety, WithoutRoomOnTheDiskLeavesTheCatalogAsItWas) {
  const OdString file = rich();
  ASSERT_TRUE(catalog().save());
  const auto before = allFiles();
  std::uint64_t room = 0;
  bool isDone = false;
  int failures = 0;
  while (!isDone) {
    FailingServices services;
    services.bytesLeft = room;
    isDone = import(file, intoGroup());
    if (isDone) break;
    ++failures;
    EXPECT_FALSE(report.problem.isEmpty()) << room;
    EXPECT_EQ(allFiles(), before) << room;
    EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList()) << room;
    EXPECT_EQ(namesOf(catalog().groupsEnum()), QStringList()) << room;
    EXPECT_EQ(catalog().loaders()->count(), 0) << room;
    room += 97;
    ASSERT_LT(room, 100000u);
  }
  EXPECT_GT(failures, 20);
  EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList(u"p"_s));
}

TEST_F(ImportSafety, WithoutRightsLeavesTheCatalogAsItWas) {
  const OdString file = rich();
  ASSERT_TRUE(catalog().save());
  for (const OdString& folder : {u"c\\Palettes"_s, u"c"_s, u"c\\DrfTcCatalog.dtc"_s}) {
    const auto before = allFiles();
    {
      FailingServices services;
      services.deniedFolder = stored(folder);
      EXPECT_FALSE(import(file, intoGroup())) << text(folder);
    }
    EXPECT_FALSE(report.problem.isEmpty()) << text(folder);
    EXPECT_EQ(allFiles(), before) << text(folder);
    EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList());
    EXPECT_EQ(namesOf(catalog().groupsEnum()), QStringList());
  }
}

TEST_F(ImportSafety, AGroupThatWasThereBeforeIsThereAfterAFailure) {
  ASSERT_TRUE(import(rich(), intoGroup()));
  const OdString first = report.id;
  {
    FailingServices services;
    services.deniedFolder = stored(u"c\\DrfTcCatalog.dtc"_s);
    EXPECT_FALSE(import(rich(), intoGroup()));
  }
  EXPECT_EQ(namesOf(catalog().groupsEnum()), QStringList(u"New group"_s));
  EXPECT_TRUE(catalog().findInGroups(catalog().findPalette(first)));
  EXPECT_EQ(catalog().groupsEnum()->next()->children()->next()->id(), first);
}

TEST_F(ImportSafety, TakesManyToolsAndDuplicateIds) {
  constexpr int kTools = 100000;
  QByteArray tools;
  for (int i = 0; i < kTools; ++i)
    tools += "<Tool><ItemID idValue=\"{SAME}\"/><ToolType>1</ToolType><Data><Command Macro=\"_A\"/>"
             "</Data></Tool>";
  const OdString file = exported(tools);
  tools.clear();
  OdTcImportOptions dry;
  dry.dryRun = true;
  for (const OdTcImportOptions& options : {dry, OdTcImportOptions()}) {
    const OdTcToolPalettePtr palette = import(file, options);
    ASSERT_TRUE(palette) << text(report.problem);
    QSet<OdString> ids;
    for (const OdTcTool* const tool : toolsOf(*palette)) ids << tool->id();
    EXPECT_EQ(ids.size(), kTools);
  }
}

TEST_F(ImportSafety, TakesAFileOf200Megabytes) {
  QByteArray records;
  while (records.size() < 1 << 20)
    records += "<Xrecord handle=\"1\"><Resbuf code=\"70\">12</Resbuf></Xrecord>";
  QByteArray tools;
  for (int i = 0; i < 200; ++i)
    tools += toolXml("T" + QByteArray::number(i),
                     "<Block><BlockName>A</BlockName></Block><DynamicProperties>" + records +
                         "</DynamicProperties>");
  EXPECT_GT(tools.size(), 200 << 20);
  const OdString file = exported(tools);
  tools.clear();
  const OdTcToolPalettePtr palette = import(file);
  ASSERT_TRUE(palette) << text(report.problem);
  EXPECT_EQ(toolsOf(*palette).size(), 200u);
  EXPECT_EQ(row(u"T199"_s).kind, u"Block"_s);
}

TEST_F(ImportSafety, AStoreWhoseEntriesPointToEachOtherIsWalkedOnce) {
  copyTree(QStringLiteral(TEST_DATA_DIR "/xtp/store"), u"store"_s);
  OdTcForeignPalettes found;
  findForeignPalettes(stored(u"store\\catalog.atc"_s), found);
  EXPECT_EQ(found.files, QStringList(stored(u"store\\Palettes\\one.atc"_s)));
  const OdString problems = problemsOf(found);
  for (const OdString& named : {u"one_line.xtp"_s, u"gone.atc"_s, u"\\\\server\\x.atc"_s})
    EXPECT_TRUE(problems.contains(named)) << text(problems);
  EXPECT_EQ(found.problems.size(), 3u);
}

} // namespace
