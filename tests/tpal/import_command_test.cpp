#include "tpal/tool_fixture.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class ImportCommand : public ToolFixture {
 protected:
  static QString data(const QString& name) { return QStringLiteral(TEST_DATA_DIR "/xtp/") + name; }
  int import(const QStringList& words) {
    return run(QStringList{QStringLiteral("import")} + words +
               QStringList{QStringLiteral("--into"), path(QStringLiteral("c"))});
  }
  QJsonArray json() const { return QJsonDocument::fromJson(out().toUtf8()).array(); }
  QJsonObject toolNamed(const QString& name) const {
    for (const QJsonValue& file : json())
      for (const QJsonValue& tool : file[QStringLiteral("tools")].toArray())
        if (tool[QStringLiteral("name")].toString() == name) return tool.toObject();
    ADD_FAILURE() << "no tool " << qPrintable(name);
    return {};
  }
  static QString field(const QJsonObject& tool, const char* name) {
    return tool[QLatin1String(name)].toString();
  }
  QStringList files() const {
    QStringList all;
    QDirIterator each(path(QString()), QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) all << each.next();
    return all;
  }
};

TEST_F(ImportCommand, MakesACatalogWhereThereIsNone) {
  EXPECT_EQ(import({data(QStringLiteral("one_line.xtp"))}), tpal::kOk) << qPrintable(err());
  EXPECT_TRUE(out().contains(QStringLiteral("is now the palette \"one_line\"")));
  EXPECT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("Quotes \" and '  [command]"))) << qPrintable(out());
}

TEST_F(ImportCommand, AddsToACatalogThatIsThere) {
  writeCatalog(tool("{T}", "Old", "<Command Macro=\"_OLD\"/>"));
  EXPECT_EQ(import({data(QStringLiteral("one_line.xtp")), QStringLiteral("--group"),
                    QStringLiteral("G")}),
            tpal::kOk);
  EXPECT_EQ(run({QStringLiteral("list"), path(QStringLiteral("c"))}), tpal::kOk);
  for (const char* word : {"Old", "Quotes"}) EXPECT_TRUE(out().contains(QLatin1String(word)));
  EXPECT_EQ(out().count(QStringLiteral("group")), 1);
}

TEST_F(ImportCommand, SaysOfEachToolWhatBecameOfIt) {
  EXPECT_EQ(import({data(QStringLiteral("unsupported_kinds.xtp")),
                    data(QStringLiteral("missing_pictures.xtp")),
                    data(QStringLiteral("add_on_products.xtp")), QStringLiteral("--json")}),
            tpal::kFindings);
  ASSERT_EQ(json().size(), 3);
  EXPECT_TRUE(json()[0][QStringLiteral("imported")].toBool());
  EXPECT_EQ(field(toolNamed(QStringLiteral("Kept")), "fate"), QStringLiteral("taken"));
  EXPECT_EQ(field(toolNamed(QStringLiteral("Light")), "fate"), QStringLiteral("skipped"));
  EXPECT_FALSE(field(toolNamed(QStringLiteral("Light")), "reason").isEmpty());
  EXPECT_EQ(field(toolNamed(QStringLiteral("Gone")), "picture"), QStringLiteral("missing"));
  EXPECT_EQ(field(toolNamed(QStringLiteral("Other case")), "picture"), QStringLiteral("found"));
  EXPECT_EQ(field(toolNamed(QStringLiteral("Bare")), "command"),
            QStringLiteral("^C^C_CIRCLE 0,0 3"));
}

TEST_F(ImportCommand, ConvertsMacrosIfThatIsWanted) {
  import({data(QStringLiteral("add_on_products.xtp")), QStringLiteral("--convert-commands"),
          QStringLiteral("--json")});
  EXPECT_EQ(field(toolNamed(QStringLiteral("Bare")), "fate"), QStringLiteral("converted"));
  EXPECT_EQ(field(toolNamed(QStringLiteral("Recipe101")), "fate"), QStringLiteral("taken"));
}

TEST_F(ImportCommand, MapsFoldersOneAfterTheOther) {
  write(QStringLiteral("lib/b.dwg"), "x");
  import({data(QStringLiteral("names_by_parent.xtp")), QStringLiteral("--map"),
          QStringLiteral("D:\\=E:\\"), QStringLiteral("--map"),
          QStringLiteral("C:\\=") + path(QStringLiteral("lib")), QStringLiteral("--json")});
  EXPECT_EQ(field(toolNamed(QStringLiteral("Second")), "source"), QStringLiteral("found"));
  EXPECT_TRUE(field(toolNamed(QStringLiteral("Second")), "sourceFile")
                  .endsWith(QStringLiteral("lib\\b.dwg")));
}

TEST_F(ImportCommand, ADryRunWritesNothing) {
  EXPECT_EQ(import({data(QStringLiteral("one_line.xtp")), QStringLiteral("--dry-run")}), tpal::kOk);
  EXPECT_TRUE(out().contains(QStringLiteral("would be the palette")));
  EXPECT_EQ(files(), QStringList());
}

TEST_F(ImportCommand, TakesWholeFoldersWithTheStoresInThem) {
  QDir().mkpath(path(QStringLiteral("in")));
  for (const char* name : {"store/catalog.atc", "store/more.atc", "store/Palettes/one.atc"})
    write(QStringLiteral("in/") + QLatin1String(name), [&] {
      QFile file(data(QLatin1String(name)));
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      return file.readAll();
    }());
  write(QStringLiteral("in/x.xtp"), "<Palette><ItemID idValue=\"{X}\"/></Palette>");
  EXPECT_EQ(import({path(QStringLiteral("in")), QStringLiteral("--json")}), tpal::kFindings);
  ASSERT_EQ(json().size(), 5) << "each palette and each problem once: " << qPrintable(out());
  EXPECT_EQ(json()[0][QStringLiteral("palette")].toString(), QStringLiteral("Store palette"));
  EXPECT_EQ(json()[1][QStringLiteral("palette")].toString(), QStringLiteral("x"));
  EXPECT_TRUE(err().contains(QStringLiteral("is not followed"))) << qPrintable(err());
  for (int i = 2; i < 5; ++i) {
    EXPECT_FALSE(json()[i][QStringLiteral("imported")].toBool());
    EXPECT_FALSE(json()[i][QStringLiteral("problem")].toString().isEmpty());
  }
}

TEST_F(ImportCommand, NamesThePalettesInACatalogOfAStoreWithTheirTools) {
  const auto tool = [](const QByteArray& name) {
    return "<Tool><Properties>" + name + "</Properties><ToolType>1</ToolType></Tool>";
  };
  write(QStringLiteral("store.atc"),
        "<Catalog><Properties><ItemName>Store</ItemName></Properties>"
        "<Palette><Properties><ItemName>Doors</ItemName></Properties><Tools>" +
            tool("<ItemName>Single</ItemName>") + tool({}) +
            "</Tools></Palette><Palette><Tools/></Palette></Catalog>");
  EXPECT_EQ(import({path(QStringLiteral("store.atc")), QStringLiteral("--json")}), tpal::kFailed);
  ASSERT_EQ(json().size(), 3) << qPrintable(out());
  const QJsonObject doors = json()[0].toObject();
  EXPECT_EQ(doors[QStringLiteral("palette")].toString(), QStringLiteral("Doors"));
  EXPECT_FALSE(doors[QStringLiteral("imported")].toBool());
  const QJsonArray tools = doors[QStringLiteral("tools")].toArray();
  ASSERT_EQ(tools.size(), 2);
  EXPECT_EQ(field(tools[0].toObject(), "name"), QStringLiteral("Single"));
  EXPECT_EQ(field(tools[1].toObject(), "name"), QString());
  for (const QJsonValue& row : tools) {
    EXPECT_EQ(field(row.toObject(), "fate"), QStringLiteral("skipped"));
    EXPECT_TRUE(field(row.toObject(), "reason").contains(QStringLiteral("stands in the catalog")));
  }
  EXPECT_EQ(json()[1][QStringLiteral("palette")].toString(), QString()) << "it has no name";
  EXPECT_TRUE(json()[2][QStringLiteral("problem")].toString().contains(
      QStringLiteral("points to no palettes")));
}

TEST_F(ImportCommand, NamesAFileThatCannotBeReadAndTakesTheOthers) {
  write(QStringLiteral("bad.xtp"), "<Palette");
  EXPECT_EQ(import({path(QStringLiteral("bad.xtp")), data(QStringLiteral("one_line.xtp"))}),
            tpal::kFailed);
  EXPECT_TRUE(out().contains(QStringLiteral("bad.xtp: not imported: ")));
  EXPECT_TRUE(out().contains(QStringLiteral("is now the palette \"one_line\"")));
}

TEST_F(ImportCommand, RefusesACatalogThatItCannotRead) {
  write(QStringLiteral("c/DrfTcCatalog.dtc"), "<Catalog");
  EXPECT_EQ(import({data(QStringLiteral("one_line.xtp"))}), tpal::kFailed);
  EXPECT_EQ(read(QStringLiteral("c/DrfTcCatalog.dtc")), QByteArray("<Catalog"));
}

TEST_F(ImportCommand, WithoutAnythingToTakeItFails) {
  QDir().mkpath(path(QStringLiteral("empty")));
  EXPECT_EQ(import({path(QStringLiteral("empty"))}), tpal::kFailed);
  EXPECT_TRUE(err().contains(QStringLiteral("there are no palettes")));
  EXPECT_EQ(import({path(QStringLiteral("none.xtp"))}), tpal::kFailed);
  EXPECT_TRUE(err().contains(QStringLiteral("there is no such file")));
}

TEST_F(ImportCommand, ExportsAPaletteByItsNameAndTakesItBack) {
  ASSERT_EQ(import({data(QStringLiteral("overlay.xtp"))}), tpal::kOk) << qPrintable(out());
  const QString target = path(QStringLiteral("out/back.xtp"));
  QDir().mkpath(path(QStringLiteral("out")));
  EXPECT_EQ(run({QStringLiteral("export"), path(QStringLiteral("c")), QStringLiteral("overlay"),
                 target, QStringLiteral("--json")}),
            tpal::kOk)
      << qPrintable(err());
  const QJsonObject row = QJsonDocument::fromJson(out().toUtf8()).object();
  EXPECT_TRUE(row[QStringLiteral("written")].toBool());
  EXPECT_EQ(row[QStringLiteral("pictures")].toInt(), 3);
  EXPECT_TRUE(QFileInfo::exists(path(QStringLiteral("out/back/Images/tool.png"))));
  ASSERT_EQ(import({target, QStringLiteral("--json")}), tpal::kOk) << qPrintable(out());
  EXPECT_EQ(field(toolNamed(QStringLiteral("Tool")), "picture"), QStringLiteral("found"));
}

TEST_F(ImportCommand, NamesAPaletteThatIsNotThereAndAFileThatIsNoExchangeFile) {
  writeCatalog({});
  EXPECT_EQ(run({QStringLiteral("export"), path(QStringLiteral("c")), QStringLiteral("Nothing"),
                 path(QStringLiteral("x.xtp"))}),
            tpal::kFailed);
  EXPECT_TRUE(err().contains(QStringLiteral("has no palette \"Nothing\"")));
  EXPECT_EQ(run({QStringLiteral("export"), path(QStringLiteral("c")), QStringLiteral("P"),
                 path(QStringLiteral("x.dtc"))}),
            tpal::kUsage);
}

} // namespace
