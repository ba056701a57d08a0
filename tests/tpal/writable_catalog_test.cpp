#include "tpal/writable_catalog.h"

#include "catalog/database.h"
#include "frame/file_path.h"
#include "tpal/tool_fixture.h"

#include <QLockFile>

#include <memory>

namespace {

using Qt::StringLiterals::operator""_s;

class WritableCatalogTest : public ToolFixture {
 protected:
  WritableCatalogTest() { writeCatalog(tool("{1}", "Line", "<Command Macro=\"_LINE\"/>")); }

  /// The commands that write, as far as they need to be given here.
  int runOnCatalog(const QStringList& command) {
    QStringList words = command;
    words.insert(1, path(u"c"_s));
    return run(words);
  }
  std::unique_ptr<QLockFile> hold() const {
    auto lock = std::make_unique<QLockFile>(path(u"c/DrfTcCatalog.dtc.lock"_s));
    EXPECT_TRUE(lock->tryLock(0));
    return lock;
  }
  void movePalettesAway() const {
    ASSERT_TRUE(QDir().rename(path(u"c/Palettes"_s), path(u"c/away"_s)));
  }
};

TEST_F(WritableCatalogTest, IsNotWrittenWhileAnotherRunWritesIt) {
  const QByteArray catalog = read(u"c/DrfTcCatalog.dtc"_s);
  const auto other = hold();
  for (const QStringList& command :
       {QStringList{u"resave"_s}, QStringList{u"make"_s, u"P"_s, u"x"_s},
        QStringList{u"images"_s, u"--missing"_s}}) {
    EXPECT_EQ(runOnCatalog(command + QStringList{u"--wait"_s, u"0"_s}), tpal::kFailed);
    EXPECT_TRUE(err().contains(u"writes this catalog; nothing was changed"_s)) << qPrintable(err());
    EXPECT_TRUE(err().contains(u"DrfTcCatalog.dtc.lock"_s)) << qPrintable(err());
  }
  EXPECT_EQ(run({u"import"_s, path(u"x.xtp"_s), u"--into"_s, path(u"c"_s), u"--wait"_s, u"0"_s}),
            tpal::kFailed);
  EXPECT_TRUE(err().contains(u"writes this catalog"_s)) << qPrintable(err());
  EXPECT_EQ(read(u"c/DrfTcCatalog.dtc"_s), catalog);
}

TEST_F(WritableCatalogTest, IsReadWhileAnotherRunWritesIt) {
  const auto other = hold();
  EXPECT_EQ(runOnCatalog({u"list"_s}), tpal::kOk) << qPrintable(err());
  EXPECT_EQ(runOnCatalog({u"check"_s}), tpal::kOk) << qPrintable(out());
  EXPECT_EQ(runOnCatalog({u"images"_s}), tpal::kFindings) << qPrintable(err());
  EXPECT_EQ(run({u"resave"_s, path(u"c"_s), u"--to"_s, path(u"d"_s)}), tpal::kOk)
      << qPrintable(err());
}

TEST_F(WritableCatalogTest, IsCopiedToNoPlaceThatAnotherRunWrites) {
  ASSERT_EQ(run({u"resave"_s, path(u"c"_s), u"--to"_s, path(u"e"_s)}), tpal::kOk);
  const auto other = hold();
  EXPECT_EQ(run({u"resave"_s, path(u"e"_s), u"--to"_s, path(u"c"_s), u"--wait"_s, u"0"_s}),
            tpal::kFailed);
  EXPECT_TRUE(err().contains(u"writes this catalog"_s)) << qPrintable(err());
}

TEST_F(WritableCatalogTest, IsFreeAgainAfterwards) {
  EXPECT_EQ(runOnCatalog({u"resave"_s}), tpal::kOk) << qPrintable(err());
  EXPECT_FALSE(QFile::exists(path(u"c/DrfTcCatalog.dtc.lock"_s)));
}

TEST_F(WritableCatalogTest, NeedsAFolderThatCanBeWrittenTo) {
  // A folder stands in the place of the file that holds the catalog.
  ASSERT_TRUE(QDir().mkpath(path(u"c/DrfTcCatalog.dtc.lock/x"_s)));
  const QByteArray catalog = read(u"c/DrfTcCatalog.dtc"_s);
  EXPECT_EQ(runOnCatalog({u"resave"_s, u"--wait"_s, u"0"_s}), tpal::kFailed);
  EXPECT_TRUE(err().contains(u"nothing was changed"_s)) << qPrintable(err());
  EXPECT_EQ(read(u"c/DrfTcCatalog.dtc"_s), catalog);
}

TEST_F(WritableCatalogTest, LeavesNoFolderOfACatalogThatDoesNotComeAbout) {
  EXPECT_EQ(run({u"make"_s, path(u"new/one"_s), u"P"_s, path(u"gone.dxf"_s)}), tpal::kFailed);
  EXPECT_FALSE(QFile::exists(path(u"new"_s)));
}

TEST_F(WritableCatalogTest, KeepsWhatAnotherProgramWroteSinceItWasRead) {
  const tpal::ModuleClasses classes;
  QString out, err;
  QTextStream outStream(&out), errStream(&err);
  tpal::Console console{outStream, errStream};
  tpal::WritableCatalog catalog(path(u"c"_s), tpal::WritableCatalog::Writes::kCatalog, {}, console);
  ASSERT_TRUE(catalog.isOpen()) << qPrintable(err);
  tc::OdTcToolPalette& palette = *tpal::palettesOf(*catalog).front();
  EXPECT_EQ(catalog.save(palette), QString());
  EXPECT_EQ(catalog.save(palette), QString()) << "what was written by itself is known";

  write(u"c/Palettes/p.dtc"_s, "another's");
  EXPECT_TRUE(catalog.save(palette).contains(u"another program has written"_s));
  EXPECT_EQ(read(u"c/Palettes/p.dtc"_s), QByteArray("another's"));
  EXPECT_EQ(catalog.whyNotWritable(catalog.file()), QString());
  ASSERT_TRUE(QFile::remove(path(u"c/DrfTcCatalog.dtc"_s)));
  EXPECT_FALSE(catalog.whyNotWritable(catalog.file()).isEmpty());
}

TEST_F(WritableCatalogTest, IsNotWrittenWithoutPalettesThatStandInItsGroups) {
  movePalettesAway();
  const QByteArray catalog = read(u"c/DrfTcCatalog.dtc"_s);
  for (const QStringList& command :
       {QStringList{u"resave"_s}, QStringList{u"make"_s, u"Q"_s, u"LINE"_s},
        QStringList{u"resave"_s, u"--to"_s, path(u"d"_s)}}) {
    EXPECT_EQ(runOnCatalog(command), tpal::kFailed);
    EXPECT_TRUE(err().contains(u"would take them out of their groups: \""_s)) << qPrintable(err());
  }
  EXPECT_EQ(read(u"c/DrfTcCatalog.dtc"_s), catalog);
  EXPECT_FALSE(QFile::exists(path(u"d"_s)));
}

TEST_F(WritableCatalogTest, GivesMissingPalettesUpOnDemand) {
  movePalettesAway();
  EXPECT_EQ(runOnCatalog({u"resave"_s, u"--drop-missing"_s}), tpal::kOk) << qPrintable(err());
  EXPECT_TRUE(out().contains(u"whose file is not there"_s)) << qPrintable(out());
  const QByteArray catalog = read(u"c/DrfTcCatalog.dtc"_s);
  EXPECT_FALSE(catalog.contains("{P}"));
  EXPECT_TRUE(catalog.contains("{G}"));
  EXPECT_EQ(runOnCatalog({u"check"_s}), tpal::kOk) << qPrintable(out());
}

TEST_F(WritableCatalogTest, NeedsAnIdWherePalettesHaveOneName) {
  const QByteArray catalog = read(u"c/DrfTcCatalog.dtc"_s);
  write(u"c/DrfTcCatalog.dtc"_s,
        QByteArray(catalog).replace("</Palettes>",
                                    "<Palette><ItemID idValue=\"{Q}\"/><Url "
                                    "href=\"Palettes\\q.dtc\"/></Palette></Palettes>"));
  write(u"c/Palettes/q.dtc"_s,
        read(u"c/Palettes/p.dtc"_s).replace("{P}", "{Q}").replace("{1}", "{2}"));
  EXPECT_EQ(runOnCatalog({u"export"_s, u"P"_s, path(u"out.xtp"_s)}), tpal::kFailed);
  EXPECT_TRUE(err().contains(u"2 palettes \"P\"; say which by its id: {P}, {Q}"_s))
      << qPrintable(err());
  EXPECT_EQ(runOnCatalog({u"make"_s, u"P"_s, path(u"gone.dxf"_s)}), tpal::kFailed);
  EXPECT_TRUE(err().contains(u"2 palettes \"P\""_s)) << qPrintable(err());
  EXPECT_EQ(runOnCatalog({u"export"_s, u"{Q}"_s, path(u"out.xtp"_s)}), tpal::kOk)
      << qPrintable(err());
  EXPECT_TRUE(read(u"out.xtp"_s).contains("{2}"));
}

TEST_F(WritableCatalogTest, ExportsNothingOfAPaletteThatCannotBeRead) {
  ASSERT_EQ(runOnCatalog({u"export"_s, u"P"_s, path(u"out.xtp"_s)}), tpal::kOk)
      << qPrintable(err());
  const QByteArray former = read(u"out.xtp"_s);
  write(u"c/Palettes/p.dtc"_s, read(u"c/Palettes/p.dtc"_s).left(100));
  EXPECT_EQ(runOnCatalog({u"export"_s, u"{P}"_s, path(u"out.xtp"_s)}), tpal::kFailed);
  EXPECT_TRUE(out().contains(u"not written: the palette could not be read: "_s))
      << qPrintable(out());
  EXPECT_EQ(read(u"out.xtp"_s), former);
}

TEST_F(WritableCatalogTest, IsMadeWithoutAWordOfWhatIsNotThereYet) {
  write(u"plan.dxf"_s, "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  run({u"make"_s, path(u"new"_s), u"P"_s, path(u"plan.dxf"_s)});
  EXPECT_TRUE(QFile::exists(path(u"new/DrfTcCatalog.dtc"_s)));
  EXPECT_TRUE(err().isEmpty()) << qPrintable(err());
}

TEST_F(WritableCatalogTest, ExportsSourcesThatAreFoundFromAnywhere) {
  write(u"c/lib/door.dwg"_s, "a drawing");
  write(u"blocks/desk.dwg"_s, "a drawing");
  const QByteArray block = "<Block><BlockType>2</BlockType><SourceFile>";
  writeCatalog(tool("{1}", "Door",
                    block + "%UserProfileSamplesFolder%\\lib\\door.dwg</SourceFile></Block>") +
               tool("{2}", "Desk", block + "..\\..\\blocks\\desk.dwg</SourceFile></Block>") +
               tool("{3}", "Gone", block + "..\\gone.dwg</SourceFile></Block>"));
  const QByteArray before = read(u"c/Palettes/p.dtc"_s);
  const QString folder = QDir::current().relativeFilePath(path(u"c"_s));
  EXPECT_EQ(run({u"export"_s, folder, u"P"_s, path(u"x/out.xtp"_s)}), tpal::kOk)
      << qPrintable(out() + err());
  const QByteArray exported = read(u"x/out.xtp"_s);
  for (const QString& file : {u"c/lib/door.dwg"_s, u"blocks/desk.dwg"_s})
    EXPECT_TRUE(exported.contains("<SourceFile>" + odpath::fromPlatform(path(file)).toUtf8() + "<"))
        << exported.data();
  EXPECT_TRUE(exported.contains("<SourceFile>..\\gone.dwg<"));
  EXPECT_EQ(read(u"c/Palettes/p.dtc"_s), before);
}

TEST_F(WritableCatalogTest, ClaimsNothingOfWhatIsNotWritten) {
  // A folder stands where the new file is made ready.
  ASSERT_TRUE(QDir().mkpath(path(u"c/Palettes/p.dtc.new"_s)));
  write(u"doors.dxf"_s, "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  EXPECT_EQ(runOnCatalog({u"make"_s, u"P"_s, path(u"doors.dxf"_s)}), tpal::kFailed);
  EXPECT_FALSE(out().contains(u"on the palette"_s)) << qPrintable(out());
  EXPECT_TRUE(err().contains(u"not written"_s)) << qPrintable(err());
}

} // namespace
