// Drawings that are converted by other programs.
#include "drafton/engine/drawing_files.h"

#include "drafton/engine/dwg_converter.h"
#include "drawing/entities/line.h"
#include "drawing/objects/layout.h"
#include "engine/support/engine_fixture.h"
#include "engine/support/test_commands.h"
#include "frame/file_path.h"
#include "support/held_clock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace drafton;

namespace {

class DrawingFilesTest : public EngineFixture {
 protected:
  DrawingFilesTest() {
    engine().commands().add(testCommands());
    QDir().mkpath(path("tmp"));
    qputenv("TMPDIR", path("tmp").toLocal8Bit());
  }
  ~DrawingFilesTest() override { qputenv("TMPDIR", m_tmp); }

  OdString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
  QByteArray bytesOf(const OdString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  void put(const OdString& file, const QByteArray& bytes) {
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
  }
  void draw() { type(QStringLiteral("DRAW 0,0 10,10 \n")); }
  void set(const char* name, const OdString& value) {
    engine().application().setSetting(QString::fromLatin1(name), value);
  }
  /// Makes `script` the converter: $1 is what it gets, $2 what it is to make.
  OdString converter(const char* script, const char* name = "convert it.sh") {
    put(path(name), script);
    return QStringLiteral("sh \"%1\" {input} {output}").arg(path(name));
  }
  void setConverter(const char* script) { set("DwgConverter", converter(script)); }
  void open(const char* name) { type(QStringLiteral("OpenDocument \"%1\"\n").arg(path(name))); }
  void saveAs(const char* name) { type(QStringLiteral("SaveAs \"%1\"\n").arg(path(name))); }
  std::size_t openDocuments() { return engine().documents().documents().size(); }
  bool nothingIsLeft() { return QDir(path("tmp")).isEmpty(); }

  /// A file that stands for a foreign drawing: the converters here only copy.
  void putForeign(const char* name) {
    const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
    put(path(name), db->writeDxf());
  }

 private:
  QTemporaryDir m_folder;
  QByteArray m_tmp = qgetenv("TMPDIR");
};

constexpr const char* kCopies = "cp \"$1\" \"$2\"\n";

/// A converter that does not do what it should, and what is then told.
struct Failure {
  const char* script;
  const char* told;
};
constexpr Failure kFailures[] = {
    {"echo the licence has expired >&2\nexit 7\n", "failed with exit code 7. It said: the licence"},
    {"echo on standard output; exit 1\n", "It said: on standard output"},
    {"exit 0\n", "made no file"},
    {": > \"$2\"\n", "made no file"},
    {"mkdir \"$2\"\n", "made no file"},
    {"kill -9 $$\n", "crashed"},
    {"rm -f \"$1\"; echo spoilt > \"$1\"; exit 3\n", "failed with exit code 3"},
    {"cp \"$1\" \"$2\"; exit 4\n", "failed with exit code 4"},
};

} // namespace

TEST_F(DrawingFilesTest, SavingTellsTheExtentsOfWhatIsThere) {
  draw();
  const std::size_t steps = database().undoDepth();
  saveAs("box.dxf");
  EXPECT_EQ(database().sysVarPoint("EXTMIN"), (OdGePoint3d{0, 0, 0}));
  EXPECT_EQ(database().sysVarPoint("EXTMAX"), (OdGePoint3d{10, 10, 0}));
  EXPECT_EQ(database().sysVarPoint("PEXTMIN").x, 1e20) << "nothing is on the sheet";
  EXPECT_EQ(database().undoDepth(), steps) << "telling is no change that could be undone";
  EXPECT_FALSE(database().isModified());
  type(QStringLiteral("U\nSave\n"));
  EXPECT_EQ(database().sysVarPoint("EXTMAX").x, -1e20);
}

TEST_F(DrawingFilesTest, SavingWhatWasNotChangedKeepsTheExtentsThatItCameWith) {
  const OdDbDatabasePtr other = OdDbDatabase::createDatabase();
  other->setSysVar(QStringLiteral("EXTMAX"), OdGePoint3d{7, 7, 7});
  other->writeFile(odpath::fromPlatform(path("other.dxf")));
  open("other.dxf");
  saveAs("again.dxf");
  EXPECT_EQ(bytesOf(path("again.dxf")), bytesOf(path("other.dxf")));
}

TEST_F(DrawingFilesTest, WithoutAConverterAMessageSaysHowToSetOne) {
  putForeign("plan.dwg");
  const QByteArray before = bytesOf(path("plan.dwg"));
  open("plan.dwg");
  EXPECT_EQ(events().last(), QStringLiteral("failed OpenDocument"));
  for (const char* word : {"plan.dwg", "SETTING", "DwgConverter", "{input}", "{output}"})
    EXPECT_TRUE(console().shows(QLatin1String(word))) << word;
  console().clear();
  draw();
  saveAs("other.dwg");
  EXPECT_EQ(events().last(), QStringLiteral("failed SaveAs"));
  EXPECT_TRUE(console().shows(QStringLiteral("DwgConverter")));
  EXPECT_FALSE(QFile::exists(path("other.dwg")));
  EXPECT_EQ(bytesOf(path("plan.dwg")), before);
  EXPECT_TRUE(nothingIsLeft());
}

TEST_F(DrawingFilesTest, OpensAndSavesThroughTheConverter) {
  setConverter(kCopies);
  draw();
  saveAs("a plan 'of' mine.dwg");
  ASSERT_TRUE(QFile::exists(path("a plan 'of' mine.dwg"))) << output().toStdString();
  EXPECT_FALSE(document().isModified());
  EXPECT_EQ(document().name(), QStringLiteral("a plan 'of' mine.dwg"));
  type(QStringLiteral("CloseDocument\n"));
  open("a plan 'of' mine.dwg");
  const OdString file = path("a plan 'of' mine.dwg");
  EXPECT_EQ(odpath::toPlatform(document().path()), file);
  EXPECT_FALSE(database().extents().isEmpty());
  const QByteArray before = bytesOf(file);
  draw();
  type(QStringLiteral("Save\n"));
  EXPECT_GT(bytesOf(file).size(), before.size());
  EXPECT_TRUE(nothingIsLeft());
}

TEST_F(DrawingFilesTest, ChangesOfOthersAreAskedAboutHereToo) {
  setConverter(kCopies);
  draw();
  saveAs("plan.dwg");
  draw();
  type(QStringLiteral("Save\n"));
  EXPECT_FALSE(console().shows(QStringLiteral("Another program"))) << output().toStdString();
  draw();
  put(path("plan.dwg"), "theirs");
  type(QStringLiteral("Save\nn\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("Another program has changed")));
  EXPECT_EQ(bytesOf(path("plan.dwg")), "theirs");
}

TEST_F(DrawingFilesTest, InsertedAttachedAndWrittenDrawingsAreConvertedAsWell) {
  setConverter(kCopies);
  putForeign("part.dwg");
  const auto blocks = [&] { return database().getBlockTableId().openAs<OdDbBlockTable>(); };
  type(QStringLiteral("INSERT \"%1\"\n0,0\n\n\n\n").arg(path("part.dwg")));
  EXPECT_TRUE(blocks()->has(QStringLiteral("part"))) << output().toStdString();
  putForeign("site.dwg");
  type(QStringLiteral("XATTACH \"%1\"\n\n0,0\n\n\n\n").arg(path("site.dwg")));
  ASSERT_TRUE(blocks()->has(QStringLiteral("site"))) << output().toStdString();
  const OdDbBlockTableRecordPtr site = blocks()->getAt(QStringLiteral("site")).openObject();
  EXPECT_TRUE(site->isFromExternalReference());
  EXPECT_FALSE(site->isUnloaded());
  // What a tool reads goes the same way.
  EXPECT_TRUE(OdDbDatabase::readFile(odpath::fromPlatform(path("part.dwg"))));
  type(QStringLiteral("WBLOCK \"%1\"\npart\n").arg(path("new.dwg")));
  EXPECT_TRUE(QFile::exists(path("new.dwg"))) << output().toStdString();
  EXPECT_TRUE(nothingIsLeft());
}

TEST_F(DrawingFilesTest, InsertedDrawingsTellWhyTheirConverterFails) {
  setConverter("echo the licence has expired >&2; exit 7\n");
  putForeign("part.dwg");
  const QByteArray before = database().writeDxf();
  for (const char* command : {"INSERT", "XATTACH"}) {
    console().clear();
    type(QStringLiteral("%1 \"%2\"\n\n^C").arg(QLatin1String(command), path("part.dwg")));
    EXPECT_TRUE(console().shows(QStringLiteral("the licence has expired")))
        << output().toStdString();
    EXPECT_EQ(database().writeDxf(), before);
  }
}

TEST_F(DrawingFilesTest, SavingMayHaveAConverterOfItsOwn) {
  set("DwgConverter", converter("exit 1\n", "open.sh"));
  set("DwgConverterForSaving", converter(kCopies, "save.sh"));
  saveAs("a.dwg");
  EXPECT_TRUE(QFile::exists(path("a.dwg"))) << output().toStdString();
}

TEST_F(DrawingFilesTest, ConvertersMayWorkOnFolders) {
  put(path("folders.sh"), "cp \"$1\"/*.d* \"$2/plan.dxf\"\n");
  set("DwgConverter",
      QStringLiteral("sh \"%1\" {inputfolder} {outputfolder}").arg(path("folders.sh")));
  putForeign("plan.dwg");
  open("plan.dwg");
  EXPECT_EQ(document().name(), QStringLiteral("plan.dwg")) << output().toStdString();
}

TEST_F(DrawingFilesTest, AFailedConverterIsNamedAndTheFormerFileStays) {
  putForeign("plan.dwg");
  const QByteArray before = bytesOf(path("plan.dwg"));
  for (const Failure& failure : kFailures) {
    setConverter(failure.script);
    console().clear();
    open("plan.dwg");
    EXPECT_EQ(events().last(), QStringLiteral("failed OpenDocument")) << failure.script;
    EXPECT_TRUE(console().shows(QStringLiteral("plan.dwg")));
    EXPECT_TRUE(console().shows(QStringLiteral("the converter sh")));
    EXPECT_TRUE(console().shows(QLatin1String(failure.told))) << output().toStdString();
    EXPECT_EQ(openDocuments(), 1u);

    console().clear();
    draw();
    type(QStringLiteral("SaveAs \"%1\"\ny\n").arg(path("plan.dwg")));
    EXPECT_EQ(events().last(), QStringLiteral("failed SaveAs")) << failure.script;
    EXPECT_TRUE(console().shows(QLatin1String(failure.told))) << output().toStdString();
    EXPECT_TRUE(document().isModified());
    EXPECT_EQ(document().name(), QStringLiteral("Drawing1.dxf"));
    EXPECT_EQ(bytesOf(path("plan.dwg")), before) << failure.script;
    EXPECT_TRUE(nothingIsLeft()) << failure.script;
  }
}

TEST_F(DrawingFilesTest, AConverterThatIsNotThereIsNamed) {
  putForeign("plan.dwg");
  set("DwgConverter", QStringLiteral("no-such-converter {input} {output}"));
  open("plan.dwg");
  EXPECT_TRUE(console().shows(QStringLiteral("the converter no-such-converter does not start")))
      << output().toStdString();
}

TEST(DwgConverterTest, PathsMayLookLikeThePlacesForThem) {
  const QTemporaryDir folder;
  const QString from = folder.filePath(QStringLiteral("{output} {input}.dwg"));
  const QString to = folder.filePath(QStringLiteral("made.dxf"));
  QFile file(from);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("drawing");
  file.close();
  EXPECT_EQ(DwgConverter(QStringLiteral("cp {input} {output}")).convert(from, to, {}), OdString());
  EXPECT_TRUE(QFile::exists(to));
}

TEST_F(DrawingFilesTest, ACommandLineWithoutBothFilesIsRefused) {
  putForeign("plan.dwg");
  for (const char* line : {"cp {input}", "cp {output}", "{", "\"\""}) {
    set("DwgConverter", QString::fromLatin1(line));
    console().clear();
    open("plan.dwg");
    EXPECT_TRUE(console().shows(QStringLiteral("has to hold {input} and {output}"))) << line;
  }
}

TEST_F(DrawingFilesTest, AConverterThatDoesNotEndIsStopped) {
  putForeign("plan.dwg");
  setConverter("echo working\nexec sleep 1000\n");
  set("DwgConverterSeconds", QStringLiteral("1"));
  open("plan.dwg");
  EXPECT_TRUE(console().shows(QStringLiteral("did not end within 1 seconds")))
      << output().toStdString();
  EXPECT_TRUE(console().shows(QStringLiteral("It said: working")));
  EXPECT_TRUE(nothingIsLeft());
}

TEST_F(DrawingFilesTest, AConversionCanBeCancelled) {
  putForeign("plan.dwg");
  setConverter("exec sleep 1000\n");
  type(QStringLiteral("OpenDocument \"%1\"\n^C").arg(path("plan.dwg")));
  EXPECT_TRUE(console().shows(QStringLiteral("the conversion was cancelled")))
      << output().toStdString();
  EXPECT_EQ(openDocuments(), 1u);
}

TEST_F(DrawingFilesTest, WhatAConverterMakesHasToBeADrawing) {
  putForeign("plan.dwg");
  setConverter("echo no drawing > \"$2\"\n");
  open("plan.dwg");
  EXPECT_EQ(events().last(), QStringLiteral("failed OpenDocument"));
  EXPECT_TRUE(console().shows(QStringLiteral("plan.dwg:1: this is not a DXF drawing")))
      << output().toStdString();
}

TEST_F(DrawingFilesTest, AConverterThatTalksWithoutEndIsHeardToItsEnd) {
  setConverter("yes bad news | head -c 3000000\necho last words\nexit 9\n");
  putForeign("plan.dwg");
  open("plan.dwg");
  EXPECT_TRUE(console().shows(QStringLiteral("last words")));
  EXPECT_LT(output().size(), 10'000);
}

TEST_F(DrawingFilesTest, AFolderIsNoDrawing) {
  setConverter(kCopies);
  QDir().mkpath(path("folder.dwg"));
  open("folder.dwg");
  EXPECT_TRUE(console().shows(QStringLiteral("it is not a file")));
  saveAs("folder.dwg");
  EXPECT_TRUE(QDir(path("folder.dwg")).exists());
  open("none.dwg");
  EXPECT_TRUE(console().shows(QStringLiteral("there is no such file")));
}

namespace {

constexpr double kDay = 24 * 60 * 60;
/// The last evening of 1999, 21:58:35.
constexpr qint64 kEvening = 946677515;
constexpr double kEveningInDays = 2451544.91568287;

} // namespace

TEST_F(DrawingFilesTest, TimesOfADrawingAreToldWhenItIsSaved) {
  testhost::HeldClock clock(kEvening);
  type(QStringLiteral("NewDocument\n"));
  draw();
  clock.moveTo(kEvening + 3600);
  saveAs("a.dxf");
  const auto told = [&](const char* name) {
    return OdDbDatabase::readFile(path("a.dxf"))->sysVarReal(name);
  };
  const double zone = QDateTime::fromSecsSinceEpoch(kEvening).offsetFromUtc() / kDay;
  EXPECT_NEAR(told("TDUCREATE"), kEveningInDays, 1e-7);
  EXPECT_NEAR(told("TDCREATE"), kEveningInDays + zone, 1e-7);
  EXPECT_NEAR(told("TDUUPDATE"), kEveningInDays + 3600 / kDay, 1e-7);
  EXPECT_NEAR(told("TDUPDATE"), kEveningInDays + zone + 3600 / kDay, 1e-7);
  EXPECT_NEAR(told("TDINDWG"), 3600 / kDay, 1e-7);

  clock.moveTo(kEvening + 5400);
  type(QStringLiteral("CloseDocument\n"));
  open("a.dxf");
  clock.moveTo(kEvening + 7200);
  draw();
  type(QStringLiteral("Save\n"));
  EXPECT_NEAR(told("TDUCREATE"), kEveningInDays, 1e-7) << "made once";
  EXPECT_NEAR(told("TDUUPDATE"), kEveningInDays + 7200 / kDay, 1e-7);
  EXPECT_NEAR(told("TDINDWG"), (3600 + 1800) / kDay, 1e-7);

  clock.moveTo(kEvening + 9000);
  const QByteArray before = bytesOf(path("a.dxf"));
  type(QStringLiteral("Save\n"));
  EXPECT_EQ(bytesOf(path("a.dxf")), before) << "nothing was changed";
}

TEST_F(DrawingFilesTest, TimesAreNoChangeThatIsUndone) {
  testhost::HeldClock clock(kEvening);
  draw();
  EXPECT_FALSE(database().writeDxf().contains("$TD")) << "only files tell times";
  const std::size_t steps = database().undoDepth();
  saveAs("a.dxf");
  EXPECT_EQ(database().undoDepth(), steps);
  const QByteArray saved = database().writeDxf();
  type(QStringLiteral("U\n"));
  type(QStringLiteral("REDO\n"));
  EXPECT_EQ(database().writeDxf(), saved);
  type(QStringLiteral("TDUPDATE 5\n"));
  EXPECT_NEAR(database().sysVarReal("TDUUPDATE"), kEveningInDays, 1e-7);
  EXPECT_FALSE(variables().set(QStringLiteral("TDUPDATE"), 5.0)) << "nobody else sets the clock";
}

TEST_F(DrawingFilesTest, LayoutsTellTheirExtents) {
  draw();
  const auto extentsOf = [](const OdDbDatabase& from, std::size_t tab) {
    OdGePoint3d least, greatest;
    oddb::layouts(from).at(tab)->getExtents(least, greatest);
    return std::pair(least, greatest);
  };
  const std::size_t steps = database().undoDepth();
  saveAs("box.dxf");
  EXPECT_EQ(database().undoDepth(), steps);
  const OdDbDatabasePtr model = OdDbDatabase::readFile(path("box.dxf"));
  EXPECT_EQ(extentsOf(*model, 0), std::pair(OdGePoint3d(), OdGePoint3d(10, 10, 0)));
  EXPECT_EQ(extentsOf(*model, 1).first.x, 1e20) << "nothing is on the sheet";
  database()
      .getPaperSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{3, 4, 0}, OdGePoint3d{5, 6, 0}));
  type(QStringLiteral("Save\n"));
  const OdDbDatabasePtr sheet = OdDbDatabase::readFile(path("box.dxf"));
  EXPECT_EQ(extentsOf(*sheet, 1), std::pair(OdGePoint3d(3, 4, 0), OdGePoint3d(5, 6, 0)));
  EXPECT_EQ(sheet->sysVarPoint("PEXTMAX"), (OdGePoint3d{5, 6, 0}));
}
