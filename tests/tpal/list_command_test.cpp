#include "tpal/tool_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using ListCommand = ToolFixture;

TEST_F(ListCommand, ShowsGroupsPalettesAndToolsWithWhatTheyDo) {
  writeCatalog(tool("{1}", "Line", "<Command Macro=\"_LINE 0,0 1,0;\"/>"));
  ASSERT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kOk)
      << qPrintable(err());
  const QStringList lines = out().split(u'\n');
  ASSERT_GE(lines.size(), 4);
  EXPECT_TRUE(lines[0].startsWith(QStringLiteral("catalog  Cat  ")));
  EXPECT_EQ(lines[1], QStringLiteral("  group  G"));
  EXPECT_EQ(lines[2], QStringLiteral("    palette  P"));
  EXPECT_EQ(lines[3], QStringLiteral("      Line  [command]  _LINE 0,0 1,0;"));
}

TEST_F(ListCommand, ShowsAPaletteOfNoGroupBehindTheGroups) {
  writeCatalog({}, {});
  ASSERT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kOk);
  EXPECT_EQ(out().split(u'\n')[2], QStringLiteral("  palette  P"));
}

TEST_F(ListCommand, GivesTheSameTreeAsJson) {
  writeCatalog(tool("{1}", "Line", "<Command Macro=\"_LINE\"/>"));
  ASSERT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c")), QStringLiteral("--json")}),
            tpal::kOk);
  const QJsonObject catalog = QJsonDocument::fromJson(out().toUtf8()).array()[0].toObject();
  const QJsonValue line = catalog[QStringLiteral("children")][0][QStringLiteral("children")][0]
                                 [QStringLiteral("children")][0];
  EXPECT_EQ(line[QStringLiteral("name")].toString(), QStringLiteral("Line"));
  EXPECT_EQ(line[QStringLiteral("kind")].toString(), QStringLiteral("command"));
  EXPECT_EQ(line[QStringLiteral("command")].toString(), QStringLiteral("_LINE"));
}

TEST_F(ListCommand, GivesATableForSpreadsheets) {
  writeCatalog(tool("{1}", "Say &quot;no&quot;, twice", "<Command Macro=\"_A&#x0A;_B\"/>") +
               tool("{2}", "Line", "<Command Macro=\"_LINE\"/>"));
  ASSERT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c")), QStringLiteral("--csv")}),
            tpal::kOk);
  const QString file = path(QStringLiteral("c/DrfTcCatalog.dtc"));
  EXPECT_EQ(out(), QChar(QChar::ByteOrderMark) +
                       QStringLiteral("Catalog,Group,Palette,Tool,Kind,Command,Id\r\n") + file +
                       QStringLiteral(",G,P,\"Say \"\"no\"\", twice\",command,\"_A\n_B\",{1}\r\n") +
                       file + QStringLiteral(",G,P,Line,command,_LINE,{2}\r\n"));
}

TEST_F(ListCommand, ShowsPalettesWithoutToolsInTheTable) {
  writeCatalog({});
  run({QStringLiteral("list"), path(QStringLiteral("c")), QStringLiteral("--csv")});
  EXPECT_TRUE(out().endsWith(QStringLiteral(",G,P,,palette,,{P}\r\n"))) << qPrintable(out());
}

TEST_F(ListCommand, NamesACatalogThatIsNotThereAndGoesOnWithTheNext) {
  writeCatalog({});
  EXPECT_EQ(
      run({QStringLiteral("list"), path(QStringLiteral("nowhere")), path(QStringLiteral("c"))}),
      tpal::kFailed);
  EXPECT_TRUE(err().contains(QStringLiteral("nowhere")));
  EXPECT_TRUE(out().contains(QStringLiteral("catalog  Cat")));
}

TEST_F(ListCommand, TellsOfPalettesThatCannotBeRead) {
  writeCatalog({});
  write(QStringLiteral("c/Palettes/p.dtc"), "<Palette><Tools>");
  EXPECT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kFindings);
  EXPECT_TRUE(err().contains(QStringLiteral("p.dtc"))) << qPrintable(err());
  EXPECT_EQ(err().count(u'\n'), 1) << qPrintable(err());
}

TEST_F(ListCommand, CallsAMissingPaletteByItsName) {
  writeCatalog({});
  write(QStringLiteral("c/DrfTcCatalog.dtc"),
        read(QStringLiteral("c/DrfTcCatalog.dtc"))
            .replace("<Url", "<Properties><ItemName>Doors</ItemName></Properties><Url"));
  QFile::remove(path(QStringLiteral("c/Palettes/p.dtc")));
  run({QStringLiteral("list"), path(QStringLiteral("c"))});
  EXPECT_TRUE(out().contains(QStringLiteral("missing palette  Doors"))) << qPrintable(out());
}

TEST_F(ListCommand, EndsOnAGroupThatNamesItself) {
  writeCatalog({}, "<ToolPalette ID=\"{G}\"/>");
  EXPECT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("missing palette  {G}")));
}

} // namespace
