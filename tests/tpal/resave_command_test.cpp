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
