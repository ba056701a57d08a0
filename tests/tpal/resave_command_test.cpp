#include "tpal/tool_fixture.h"

namespace {

class ResaveCommand : public ToolFixture {
 protected:
  void SetUp() override {
    writeCatalog(tool("{1}", "Line", "<Command Macro=\"_LINE 0,0  1,0;&#x0A;x\"/>"));
  }
  int resave(const QStringList& more = {}) {
    return run(QStringList{QStringLiteral("resave"), path(QStringLiteral("c"))} + more);
  }
};

TEST_F(ResaveCommand, GivesTheSameBytesFromTheFirstTimeOn) {
  ASSERT_EQ(resave(), tpal::kOk) << qPrintable(err());
  const QByteArray catalog = read(QStringLiteral("c/DrfTcCatalog.dtc"));
  const QByteArray palette = read(QStringLiteral("c/Palettes/p.dtc"));
  EXPECT_TRUE(palette.contains("_LINE 0,0  1,0;&#x0A;x"));
  ASSERT_EQ(resave(), tpal::kOk);
  EXPECT_EQ(read(QStringLiteral("c/DrfTcCatalog.dtc")), catalog);
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), palette);
}

TEST_F(ResaveCommand, WritesElsewhereAndLeavesTheSourceAlone) {
  write(QStringLiteral("c/Palettes/Images/a.png"), "picture");
  const QByteArray before = read(QStringLiteral("c/Palettes/p.dtc"));
  ASSERT_EQ(resave({QStringLiteral("--to"), path(QStringLiteral("d"))}), tpal::kOk)
      << qPrintable(err());
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), before);
  EXPECT_TRUE(read(QStringLiteral("d/Palettes/p.dtc")).contains("_LINE"));
  EXPECT_TRUE(read(QStringLiteral("d/DrfTcCatalog.dtc")).contains("Palettes\\p.dtc"));
  EXPECT_EQ(read(QStringLiteral("d/Palettes/Images/a.png")), QByteArray("picture"));
}

TEST_F(ResaveCommand, TakesWhatToolsBringInFromTheCatalogsFolderAlong) {
  const QByteArray block = "<Block><BlockType>2</BlockType><SourceFile>";
  write(QStringLiteral("c/lib/door.dwg"), "a door");
  write(QStringLiteral("c/lib/desk.dwg"), "a desk");
  write(QStringLiteral("far/plan.dwg"), "a plan");
  writeCatalog(tool("{1}", "Door",
                    block + "%UserProfileSamplesFolder%\\lib\\door.dwg</SourceFile></Block>") +
               tool("{2}", "Desk", block + "..\\lib\\desk.dwg</SourceFile></Block>") +
               tool("{3}", "Plan", block + "..\\..\\far\\plan.dwg</SourceFile></Block>"));
  const QByteArray before = read(QStringLiteral("c/Palettes/p.dtc"));
  const QStringList to{QStringLiteral("--to"), path(QStringLiteral("deep/er/d"))};
  ASSERT_EQ(resave(to), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(read(QStringLiteral("deep/er/d/lib/door.dwg")), QByteArray("a door"));
  EXPECT_EQ(read(QStringLiteral("deep/er/d/lib/desk.dwg")), QByteArray("a desk"));
  const QByteArray palette = read(QStringLiteral("deep/er/d/Palettes/p.dtc"));
  EXPECT_TRUE(palette.contains(">%UserProfileSamplesFolder%\\lib\\door.dwg<")) << palette.data();
  EXPECT_TRUE(palette.contains(">..\\lib\\desk.dwg<")) << palette.data();
  EXPECT_TRUE(palette.contains("\\far\\plan.dwg<")) << palette.data();
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), before);
  QDir(path(QStringLiteral("c"))).removeRecursively();
  EXPECT_EQ(run({QStringLiteral("check"), path(QStringLiteral("deep/er/d"))}), tpal::kOk)
      << qPrintable(out());
}

TEST_F(ResaveCommand, WritesOverNoOtherCatalog) {
  const QStringList to{QStringLiteral("--to"), path(QStringLiteral("d"))};
  const QByteArray others[] = {"<Catalog><ItemID idValue=\"{OTHER}\"/><Properties><ItemName>Theirs"
                               "</ItemName></Properties></Catalog>",
                               "<Catalog><Pal"};
  for (const QByteArray& other : others) {
    write(QStringLiteral("d/DrfTcCatalog.dtc"), other);
    EXPECT_EQ(resave(to), tpal::kFailed);
    EXPECT_TRUE(err().contains(QStringLiteral("another catalog"))) << qPrintable(err());
    EXPECT_EQ(read(QStringLiteral("d/DrfTcCatalog.dtc")), other);
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("d/Palettes"))));
  }
  EXPECT_TRUE(QFile::remove(path(QStringLiteral("d/DrfTcCatalog.dtc"))));
  EXPECT_EQ(resave(to), tpal::kOk) << qPrintable(err());
}

TEST_F(ResaveCommand, BringsAFormerCopyUpToDate) {
  const QByteArray block = "<Block><BlockType>2</BlockType><SourceFile>..\\door.dwg</SourceFile>";
  writeCatalog(tool("{1}", "Door", block + "</Block>"));
  write(QStringLiteral("c/door.dwg"), "a door");
  write(QStringLiteral("c/Palettes/Images/a.png"), "old picture");
  const QStringList to{QStringLiteral("--to"), path(QStringLiteral("d"))};
  ASSERT_EQ(resave(to), tpal::kOk) << qPrintable(out() + err());
  write(QStringLiteral("c/door.dwg"), "A door");
  write(QStringLiteral("c/Palettes/Images/a.png"), "new picture");
  ASSERT_EQ(resave(to), tpal::kOk) << qPrintable(out() + err());
  EXPECT_EQ(read(QStringLiteral("d/door.dwg")), QByteArray("A door"));
  EXPECT_EQ(read(QStringLiteral("d/Palettes/Images/a.png")), QByteArray("new picture"));
  EXPECT_EQ(QDir(path(QStringLiteral("d"))).entryList(QDir::Files).size(), 2)
      << "nothing is left of the way there";
}

TEST_F(ResaveCommand, NamesASourceThatCannotBeCopied) {
  writeCatalog(
      tool("{1}", "Door",
           "<Block><BlockType>2</BlockType><SourceFile>..\\door.dwg</SourceFile></Block>"));
  write(QStringLiteral("c/door.dwg"), "a door");
  QDir().mkpath(path(QStringLiteral("d/door.dwg"))); // a folder stands in its place
  EXPECT_EQ(resave({QStringLiteral("--to"), path(QStringLiteral("d"))}), tpal::kFailed);
  EXPECT_TRUE(out().contains(QStringLiteral("d/door.dwg: not written: "))) << qPrintable(out());
}

TEST_F(ResaveCommand, LeavesAloneWhatItCannotRead) {
  write(QStringLiteral("c/Palettes/p.dtc"), "<Palette><Tools>");
  EXPECT_EQ(resave(), tpal::kFindings);
  EXPECT_EQ(read(QStringLiteral("c/Palettes/p.dtc")), QByteArray("<Palette><Tools>"));
  EXPECT_TRUE(out().contains(QStringLiteral("left alone")));
}

TEST_F(ResaveCommand, RefusesACatalogThatItCannotRead) {
  write(QStringLiteral("c/DrfTcCatalog.dtc"), "<Catalog");
  EXPECT_EQ(resave(), tpal::kFailed);
  EXPECT_EQ(read(QStringLiteral("c/DrfTcCatalog.dtc")), QByteArray("<Catalog"));
}

TEST_F(ResaveCommand, NamesAPaletteThatCannotBeWrittenAndWritesTheRest) {
  // A folder stands where the copy is to go.
  QDir().mkpath(path(QStringLiteral("d/Palettes/p.dtc")));
  EXPECT_EQ(resave({QStringLiteral("--to"), path(QStringLiteral("d"))}), tpal::kFailed);
  EXPECT_TRUE(out().contains(QStringLiteral("p.dtc: not written: "))) << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("DrfTcCatalog.dtc: written"))) << qPrintable(out());
  EXPECT_TRUE(read(QStringLiteral("d/DrfTcCatalog.dtc")).contains("{P}"));
  EXPECT_EQ(resave({QStringLiteral("--json"), QStringLiteral("--to"), path(QStringLiteral("d"))}),
            tpal::kFailed);
  EXPECT_TRUE(out().contains(QStringLiteral("\"written\": false"))) << qPrintable(out());
}

TEST_F(ResaveCommand, NamesATargetThatCannotBeWritten) {
  write(QStringLiteral("d"), "a file where a folder is wanted");
  EXPECT_EQ(resave({QStringLiteral("--to"), path(QStringLiteral("d"))}), tpal::kFailed);
  EXPECT_FALSE(err().isEmpty());
}

} // namespace
