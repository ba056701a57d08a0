#include "frame/file_path.h"
#include "tpal/console_host.h"
#include "tpal/plain_previews.h"
#include "tpal/tool_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class CheckCommand : public ToolFixture {
 protected:
  /// The codes that the check of the catalog gives, in order.
  QStringList codes() {
    const int exitCode =
        run({QStringLiteral("check"), path(QStringLiteral("c")), QStringLiteral("--json")});
    QStringList result;
    const QJsonArray rows = QJsonDocument::fromJson(out().toUtf8()).array();
    for (const QJsonValue& row : rows) result << row[QStringLiteral("code")].toString();
    EXPECT_EQ(exitCode, result.isEmpty() ? tpal::kOk : tpal::kFindings);
    return result;
  }
};

TEST_F(CheckCommand, FindsNothingInASoundCatalog) {
  writeCatalog(tool("{1}", "Line", "<Command Macro=\"_LINE\"/>"));
  EXPECT_EQ(codes(), QStringList());
}

TEST_F(CheckCommand, NamesAMissingCatalog) {
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C001")});
}

TEST_F(CheckCommand, NamesACatalogThatCannotBeRead) {
  write(QStringLiteral("c/DrfTcCatalog.dtc"), "<Catalog><Groups>");
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C002")});
}

TEST_F(CheckCommand, NamesAMissingPaletteFileAndTheReferenceToIt) {
  writeCatalog({});
  QFile::remove(path(QStringLiteral("c/Palettes/p.dtc")));
  EXPECT_EQ(codes(), (QStringList{QStringLiteral("C101"), QStringLiteral("C103")}));
}

TEST_F(CheckCommand, NamesTheFileThatDiffersInUpperAndLowerCaseAlone) {
  writeCatalog({});
  ASSERT_TRUE(
      QDir().rename(path(QStringLiteral("c/Palettes")), path(QStringLiteral("c/PALETTES"))));
  if (QFile::exists(path(QStringLiteral("c/Palettes")))) return; // here case is the same
  EXPECT_EQ(codes(), (QStringList{QStringLiteral("C101"), QStringLiteral("C103")}));
  EXPECT_TRUE(out().contains(QStringLiteral("it is spelled otherwise: "))) << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("PALETTES/p.dtc"))) << qPrintable(out());
}

TEST_F(CheckCommand, NamesTheSourceThatIsSpelledOtherwise) {
  writeCatalog(tool("{1}", "Door",
                    "<Block><BlockType>2</BlockType><SourceFile>..\\Lib\\door.dwg</SourceFile>"
                    "</Block>"));
  write(QStringLiteral("c/lib/Door.DWG"), "a drawing");
  if (QFile::exists(path(QStringLiteral("c/Lib")))) return; // here case is the same
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C106")});
  EXPECT_TRUE(out().contains(QStringLiteral("it is spelled otherwise: "))) << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("/lib/Door.DWG"))) << qPrintable(out());
}

TEST_F(CheckCommand, GivesATableForSpreadsheets) {
  writeCatalog(tool("{1}", "Idle", {}));
  run({QStringLiteral("check"), path(QStringLiteral("c")), QStringLiteral("--csv")});
  EXPECT_TRUE(out().contains(QStringLiteral("File,Code,Kind,Text\r\n"))) << qPrintable(out());
  EXPECT_TRUE(out().endsWith(QStringLiteral(
      "/c/Palettes/p.dtc,C105,tool-without-agent,\"tool \"\"Idle\"\" does nothing\"\r\n")))
      << qPrintable(out());
}

TEST_F(CheckCommand, NamesFilesAsTheSystemDoes) {
  writeCatalog(tool("{1}", "Idle", {}));
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C105")});
  const QJsonArray rows = QJsonDocument::fromJson(out().toUtf8()).array();
  EXPECT_EQ(rows[0][QStringLiteral("file")].toString(), path(QStringLiteral("c/Palettes/p.dtc")));
}

TEST_F(CheckCommand, CallsAMissingPaletteByItsName) {
  writeCatalog({});
  write(QStringLiteral("c/DrfTcCatalog.dtc"),
        read(QStringLiteral("c/DrfTcCatalog.dtc"))
            .replace("<Url", "<Properties><ItemName>Doors</ItemName></Properties><Url"));
  QFile::remove(path(QStringLiteral("c/Palettes/p.dtc")));
  EXPECT_EQ(run({QStringLiteral("check"), path(QStringLiteral("c"))}), tpal::kFindings);
  EXPECT_TRUE(out().contains(QStringLiteral("refers to the palette \"Doors\" {P}, which")))
      << qPrintable(out());
}

TEST_F(CheckCommand, NamesAPaletteFileOfWhichTheCatalogDoesNotKnow) {
  writeCatalog({});
  write(QStringLiteral("c/Palettes/lost.dtc"), read(QStringLiteral("c/Palettes/p.dtc")));
  write(QStringLiteral("c/Palettes/notes.txt"), "no palette");
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C111")});
  EXPECT_TRUE(out().contains(QStringLiteral("lost.dtc"))) << qPrintable(out());
}

TEST_F(CheckCommand, LooksForWhatIsWantedAlone) {
  writeCatalog(tool("{1}", "One", "<Command Macro=\"_LINE\"/>") + tool("{1}", "Two", {}));
  const QStringList check{QStringLiteral("check"), path(QStringLiteral("c"))};
  EXPECT_EQ(run(check), tpal::kFindings);
  EXPECT_TRUE(err().isEmpty()) << "a script takes that for an error";
  m_isTerminal = true;
  EXPECT_EQ(run(check), tpal::kFindings);
  EXPECT_EQ(out().count(u'\n'), 2) << qPrintable(out());
  EXPECT_EQ(err(),
            QStringLiteral("tpal: C104 duplicate-id: 1\ntpal: C105 tool-without-agent: 1\n"));
  EXPECT_EQ(run(check + QStringList{QStringLiteral("--only"), QStringLiteral("C104,C102")}),
            tpal::kFindings);
  EXPECT_EQ(out().count(u'\n'), 1) << qPrintable(out());
  EXPECT_TRUE(out().contains(QStringLiteral("C104"))) << qPrintable(out());
  EXPECT_EQ(run(check + QStringList{QStringLiteral("--ignore"), QStringLiteral("duplicate-id"),
                                    QStringLiteral("--ignore"), QStringLiteral("C105")}),
            tpal::kOk);
  EXPECT_TRUE(out().isEmpty()) << qPrintable(out());
}

TEST_F(CheckCommand, NamesAPaletteFileThatCannotBeRead) {
  writeCatalog({});
  write(QStringLiteral("c/Palettes/p.dtc"), "not XML at all");
  EXPECT_TRUE(codes().contains(QStringLiteral("C102")));
}

TEST_F(CheckCommand, NamesADanglingReference) {
  writeCatalog({}, "<ToolPalette ID=\"{P}\"/><ToolPalette ID=\"{nobody}\"/>");
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C103")});
  EXPECT_TRUE(out().contains(QStringLiteral("{nobody}")));
}

TEST_F(CheckCommand, NamesAnIdThatStandsTwice) {
  writeCatalog(tool("{1}", "One", "<Command Macro=\"_LINE\"/>") +
               tool("{1}", "Two", "<Command Macro=\"_LINE\"/>"));
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C104")});
}

TEST_F(CheckCommand, NamesAToolThatDoesNothing) {
  writeCatalog(tool("{1}", "Idle", ""));
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C105")});
}

TEST_F(CheckCommand, NamesASourceFileThatIsNotThere) {
  writeCatalog(tool("{1}", "Door",
                    "<Block><BlockType>1</BlockType><BlockName>D</BlockName>"
                    "<SourceFile>C:\\nowhere\\doors.dxf</SourceFile></Block>"));
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C106")});
}

TEST_F(CheckCommand, LooksForRelativeSourcesBesideThePalette) {
  const QByteArray block = "<Block><BlockName>D</BlockName><SourceFile>..\\doors.dxf</SourceFile>"
                           "</Block>";
  const QByteArray raster = "<Raster><SourceFile>..\\photo.png</SourceFile></Raster>";
  writeCatalog(tool("{1}", "Door", block) + tool("{2}", "Photo", raster));
  EXPECT_EQ(codes(), (QStringList{QStringLiteral("C106"), QStringLiteral("C108")}));
  EXPECT_TRUE(out().contains(QStringLiteral("tool \\\"Door\\\": there is no file ..\\\\doors.dxf "
                                            "beside the palette")))
      << qPrintable(out());
  write(QStringLiteral("c/doors.dxf"), "x");
  write(QStringLiteral("c/photo.png"), "x");
  EXPECT_EQ(codes(), QStringList());
  // The catalog's folder may be relative as well.
  const QString former = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(path(QString())));
  EXPECT_EQ(run({QStringLiteral("check"), QStringLiteral("c")}), tpal::kOk) << qPrintable(out());
  QDir::setCurrent(former);
}

TEST_F(CheckCommand, DoesNotMissASourceThatIsNotNamed) {
  writeCatalog(tool("{1}", "Door", "<Block><BlockName>D</BlockName></Block>") +
               tool("{2}", "Brick", "<Hatch><SourceFile>mine.pat</SourceFile></Hatch>"));
  EXPECT_EQ(codes(), QStringList());
}

TEST_F(CheckCommand, NamesAPictureThatIsNotThere) {
  write(
      QStringLiteral("c/DrfTcCatalog.dtc"),
      "<Catalog><Palettes><Palette><Url href=\"Palettes\\p.dtc\"/></Palette></Palettes></Catalog>");
  write(QStringLiteral("c/Palettes/p.dtc"),
        "<Palette><Tools><Tool><Properties><ItemName>T</ItemName><Images option=\"0\">"
        "<Image cx=\"32\" cy=\"32\" src=\"\\Images\\gone.png\"/></Images></Properties>"
        "<ToolType>1</ToolType><Data><Command Macro=\"_LINE\"/></Data></Tool></Tools></Palette>");
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C107")});
}

TEST_F(CheckCommand, NamesPicturesThatNoToolShows) {
  writeCatalog("<Tool><Properties><ItemName>T</ItemName><Images option=\"0\"><Image cx=\"32\" "
               "cy=\"32\" src=\"\\Images\\used.png\"/></Images></Properties><ToolType>1</ToolType>"
               "<Data><Command Macro=\"_LINE\"/></Data></Tool>");
  write(QStringLiteral("c/Palettes/Images/Used.PNG"), "x");
  write(QStringLiteral("c/Palettes/Images/used.png"), "x");
  EXPECT_EQ(codes(), QStringList());
  write(QStringLiteral("c/Palettes/Images/left over.png"), "x");
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C110")});
  EXPECT_TRUE(out().contains(QStringLiteral("left over.png")));
  write(QStringLiteral("c/Palettes/p.dtc"), "not XML at all");
  EXPECT_FALSE(codes().contains(QStringLiteral("C110"))) << "whose they are nobody can tell";
}

QByteArray withPicture(const QByteArray& name, const QByteArray& src) {
  return "<Properties><ItemName>" + name +
         "</ItemName><Images option=\"0\"><Image cx=\"32\" "
         "cy=\"32\" src=\"" +
         src + "\"/></Images></Properties>";
}

TEST_F(CheckCommand, KnowsThePicturesOfEveryItem) {
  // A picture that is not needed any more "can be deleted": none that anything shows may be named.
  struct Row {
    const char* shownBy;
    QByteArray catalog, group, inner, palette, tool;
  };
  const QByteArray src = "\\Images\\x.png", fromCatalog = "\\Palettes\\Images\\x.png";
  const Row rows[] = {
      {"the catalog", withPicture("C", fromCatalog), {}, {}, {}, {}},
      {"a group", {}, withPicture("G", fromCatalog), {}, {}, {}},
      {"a group within a group", {}, {}, withPicture("I", fromCatalog), {}, {}},
      {"a palette", {}, {}, {}, withPicture("P", src), {}},
      {"a tool", {}, {}, {}, {}, withPicture("T", src)},
      {"a tool, with other separators", {}, {}, {}, {}, withPicture("T", "Images/x.png")},
      {"a tool, with steps", {}, {}, {}, {}, withPicture("T", "\\Images\\.\\x.png")},
      {"a tool, with steps back", {}, {}, {}, {}, withPicture("T", "\\Images\\..\\Images\\x.png")},
      {"a tool, in large letters", {}, {}, {}, {}, withPicture("T", "\\IMAGES\\X.png")},
      {"nobody", {}, {}, {}, {}, {}},
  };
  write(QStringLiteral("c/Palettes/Images/x.png"), "x");
  for (const Row& row : rows) {
    write(
        QStringLiteral("c/DrfTcCatalog.dtc"),
        "<Catalog>" + row.catalog +
            "<Palettes><Palette><ItemID idValue=\"{P}\"/><Url href=\"Palettes\\p.dtc\"/></Palette>"
            "</Palettes><Groups><ToolPaletteGroup><ItemID idValue=\"{G}\"/>" +
            row.group +
            "<Contents><ToolPalette ID=\"{P}\"/><ToolPaletteGroup><ItemID idValue=\"{I}\"/>" +
            row.inner + "</ToolPaletteGroup></Contents></ToolPaletteGroup></Groups></Catalog>");
    write(QStringLiteral("c/Palettes/p.dtc"),
          "<Palette><ItemID idValue=\"{P}\"/>" + row.palette +
              "<Tools><Tool><ItemID idValue=\"{T}\"/>" + row.tool +
              "<ToolType>1</ToolType><Data><Command "
              "Macro=\"_LINE\"/></Data></Tool></Tools></Palette>");
    const bool isShown = QByteArray(row.shownBy) != "nobody";
    EXPECT_EQ(codes().contains(QStringLiteral("C110")), !isShown)
        << row.shownBy << ": " << qPrintable(out());
  }
}

TEST_F(CheckCommand, NamesAPatternThatTheProgramDoesNotHave) {
  const auto hatch = [](const QByteArray& pattern) {
    return tool("{1}", "H",
                "<Hatch><HatchType>1</HatchType><PatternName>" + pattern +
                    "</PatternName></Hatch>");
  };
  const auto previews = kvMake<PlainPreviews>();
  previews->unknownPattern = QStringLiteral("NO-SUCH-PATTERN");
  tpal::ConsoleHost::instance().setPreviews(previews.get());
  writeCatalog(hatch("NO-SUCH-PATTERN"));
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C109")});
  writeCatalog(hatch("ANSI31"));
  EXPECT_EQ(codes(), QStringList());
  tpal::ConsoleHost::instance().setPreviews(nullptr);
}

TEST_F(CheckCommand, SaysOfACustomPatternWhatIsWrongWithItsFile) {
  const auto previews = kvMake<PlainPreviews>();
  previews->unknownPattern = QStringLiteral("MINE");
  tpal::ConsoleHost::instance().setPreviews(previews.get());
  const auto found = [&](int type, const QByteArray& file) {
    previews->asked.clear();
    writeCatalog(tool("{1}", "H",
                      "<Hatch><HatchType>" + QByteArray::number(type) +
                          "</HatchType><PatternName>MINE</PatternName><SourceFile>" + file +
                          "</SourceFile></Hatch>"));
    EXPECT_EQ(codes(), QStringList{QStringLiteral("C109")});
    EXPECT_EQ(previews->asked.size(), 1);
    const QJsonValue row = QJsonDocument::fromJson(out().toUtf8()).array().first();
    return row[QStringLiteral("text")].toString().section(QStringLiteral("tool \"H\": "), 1);
  };
  write(QStringLiteral("c/patterns/mine.pat"), "*OTHER\n0, 0,0, 0,9\n");
  const OdString mine = odpath::fromPlatform(path(QStringLiteral("c/patterns/mine.pat")));
  EXPECT_EQ(found(2, "..\\patterns\\mine.pat"),
            QStringLiteral("there is no hatch pattern \"MINE\" in ") + mine);
  EXPECT_EQ(previews->asked, QStringList(QStringLiteral("MINE|") + mine));
  EXPECT_EQ(found(2, mine.toUtf8()),
            QStringLiteral("there is no hatch pattern \"MINE\" in ") + mine);
  EXPECT_EQ(found(2, "gone.pat"),
            QStringLiteral("there is no pattern file gone.pat beside the palette, so that its "
                           "pattern \"MINE\" cannot be looked for: the tool works only where the "
                           "program finds the file"));
  EXPECT_EQ(found(2, "C:\\gone.pat"),
            QStringLiteral("there is no pattern file C:\\gone.pat, which is to have the pattern "
                           "\"MINE\""));
  EXPECT_EQ(found(1, "draftoniso.pat"), QStringLiteral("there is no hatch pattern \"MINE\""));
  tpal::ConsoleHost::instance().setPreviews(nullptr);
}

TEST_F(CheckCommand, DoesNotMissThePatternOfLinesOfTheUsersOwn) {
  const auto previews = kvMake<PlainPreviews>();
  previews->unknownPattern = QStringLiteral("_USER");
  tpal::ConsoleHost::instance().setPreviews(previews.get());
  for (const QByteArray type : {"0", "1", "2"}) {
    writeCatalog(
        tool("{1}", "H",
             "<Hatch><HatchType>" + type + "</HatchType><PatternName>_USER</PatternName></Hatch>"));
    EXPECT_EQ(codes(), QStringList());
  }
  tpal::ConsoleHost::instance().setPreviews(nullptr);
}

TEST_F(CheckCommand, PrintsOneLineForEachFinding) {
  EXPECT_EQ(run({QStringLiteral("check"), path(QStringLiteral("a")), path(QStringLiteral("b"))}),
            tpal::kFindings);
  EXPECT_EQ(out().count(u'\n'), 2);
  EXPECT_EQ(out().count(QStringLiteral(": C001 missing-catalog: ")), 2);
}

TEST_F(CheckCommand, NamesAFolderInThePlaceOfAPaletteFile) {
  writeCatalog({});
  QFile::remove(path(QStringLiteral("c/Palettes/p.dtc")));
  QDir().mkpath(path(QStringLiteral("c/Palettes/p.dtc")));
  EXPECT_EQ(codes(), QStringList{QStringLiteral("C102")});
  EXPECT_TRUE(out().contains(QStringLiteral("it is a folder")));
}

} // namespace
