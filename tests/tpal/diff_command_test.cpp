#include "tpal/tool_fixture.h"

#include "frame/file_path.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

using Qt::StringLiterals::operator""_s;

class DiffCommand : public ToolFixture {
 protected:
  /// Compares a catalog of these tools, in "old", with one of those, in "c".
  int diff(const QByteArray& before, const QByteArray& after, const QStringList& more = {}) {
    writeCatalog(before);
    keepAsOld();
    writeCatalog(after);
    return diff(more);
  }
  int diff(const QStringList& more = {}) {
    return run(QStringList{u"diff"_s, path(u"old"_s), path(u"c"_s)} + more);
  }
  void keepAsOld() const {
    QDir(path(u"old"_s)).removeRecursively();
    ASSERT_TRUE(QDir().rename(path(u"c"_s), path(u"old"_s)));
  }
  static QByteArray line(const QByteArray& id = "{1}", const QByteArray& macro = "_LINE") {
    return tool(id, "Line " + id, "<Command Macro=\"" + macro + "\"/>");
  }
  static QByteArray onLayer(const QByteArray& width) {
    return tool("{1}", "Wall",
                "<GeneralProperties><Layer><BasicPropInfo><PropValue unspecified=\"FALSE\" "
                "value=\"W\"/></BasicPropInfo><LayerCreateInfo><LayerTableRecord "
                "isNotPlotted=\"FALSE\" lineWeight=\"" +
                    width +
                    "\"><CommonTableRecordProps name=\"W\"/></LayerTableRecord></LayerCreateInfo>"
                    "</Layer></GeneralProperties><Command Macro=\"_LINE\"/>");
  }
};

TEST_F(DiffCommand, FindsNothingBetweenACatalogAndItsCopy) {
  write(u"c/lib/doors.dwg"_s, "a drawing");
  const QByteArray source = odpath::fromPlatform(path(u"c/lib/doors.dwg"_s)).toUtf8();
  const QByteArray block = "<Block><BlockType>2</BlockType><SourceFile>";
  write(u"far/plan.dwg"_s, "a drawing");
  writeCatalog(line() + tool("{2}", "Door", block + source + "</SourceFile></Block>") +
               tool("{3}", "Plan", block + "..\\..\\far\\plan.dwg</SourceFile></Block>"));
  ASSERT_EQ(run({u"resave"_s, path(u"c"_s), u"--to"_s, path(u"deep/old"_s)}), tpal::kOk);
  EXPECT_EQ(run({u"diff"_s, path(u"deep/old"_s), path(u"c"_s)}), tpal::kOk)
      << qPrintable(out() + err());
  EXPECT_TRUE(out().isEmpty());
}

TEST_F(DiffCommand, NamesWhatCameAndWhatWent) {
  EXPECT_EQ(diff(line("{1}") + line("{2}"), line("{2}") + line("{3}")), tpal::kFindings);
  EXPECT_EQ(out(), u"- P: Line {1}\n+ P: Line {3}\n"_s);
}

TEST_F(DiffCommand, NamesAValueThatDiffers) {
  EXPECT_EQ(diff(line("{1}", "_LINE"), line("{1}", "_PLINE\n")), tpal::kFindings);
  EXPECT_EQ(out(), u"~ P: Line {1}: Data/Command/Macro: _LINE -> _PLINE\\n\n"_s);
}

TEST_F(DiffCommand, NamesAValueInTheRecordOfALayer) {
  EXPECT_EQ(diff(onLayer("35"), onLayer("70")), tpal::kFindings);
  EXPECT_TRUE(out().contains(u"LayerTableRecord/lineWeight: 35 -> 70\n"_s)) << qPrintable(out());
  EXPECT_EQ(out().count(u'\n'), 1) << qPrintable(out());
}

TEST_F(DiffCommand, NamesAnotherOrderButNotForToolsThatCameOrWent) {
  EXPECT_EQ(diff(line("{1}") + line("{2}") + line("{3}"), line("{3}") + line("{1}")),
            tpal::kFindings);
  EXPECT_EQ(out(), u"~ palette P: Order: Line {1}, Line {3} -> Line {3}, Line {1}\n"
                   u"- P: Line {2}\n"_s);
}

TEST_F(DiffCommand, NamesPalettesAndTheirGroups) {
  writeCatalog(line());
  keepAsOld();
  writeCatalog(line(), {});
  EXPECT_EQ(diff(), tpal::kFindings);
  EXPECT_EQ(out(), u"~ palette P: Groups: G -> \n"_s);
  write(u"c/DrfTcCatalog.dtc"_s, "<Catalog><ItemID idValue=\"{C}\"/></Catalog>");
  EXPECT_EQ(diff(), tpal::kFindings);
  EXPECT_EQ(out(), u"- palette P\n- P: Line {1}\n"_s);
}

TEST_F(DiffCommand, ReportsAsJson) {
  EXPECT_EQ(diff(line("{1}", "_A"), line("{1}", "_B") + line("{2}"), {u"--json"_s}),
            tpal::kFindings);
  const QJsonArray rows = QJsonDocument::fromJson(out().toUtf8()).array();
  ASSERT_EQ(rows.size(), 2) << qPrintable(out());
  EXPECT_EQ(rows[0][u"change"_s].toString(), u"changed"_s);
  EXPECT_EQ(rows[0][u"id"_s].toString(), u"{1}"_s);
  EXPECT_EQ(rows[0][u"field"_s].toString(), u"Data/Command/Macro"_s);
  EXPECT_EQ(rows[0][u"from"_s].toString(), u"_A"_s);
  EXPECT_EQ(rows[0][u"to"_s].toString(), u"_B"_s);
  EXPECT_EQ(rows[1][u"change"_s].toString(), u"added"_s);
}

TEST_F(DiffCommand, FailsWhereSomethingCannotBeRead) {
  writeCatalog(line());
  keepAsOld();
  EXPECT_EQ(diff(), tpal::kFailed);
  writeCatalog(line());
  write(u"c/Palettes/p.dtc"_s, "<Palette><Tools>");
  EXPECT_EQ(diff(), tpal::kFailed);
  EXPECT_TRUE(err().contains(u"p.dtc"_s)) << qPrintable(err());
  EXPECT_TRUE(out().isEmpty()) << "a palette that cannot be read is not gone";
}

TEST_F(DiffCommand, WritesNothing) {
  const QByteArray shown =
      QByteArray("<Tool><ItemID idValue=\"{1}\"/><Properties><ItemName>T</ItemName><Images>"
                 "<Image cx=\"16\" cy=\"16\" src=\"\\Images\\gone.png\"/></Images>"
                 "</Properties><ToolType>1</ToolType></Tool>");
  writeCatalog(shown);
  keepAsOld();
  writeCatalog(shown);
  const QByteArray palette = read(u"c/Palettes/p.dtc"_s);
  EXPECT_EQ(diff(), tpal::kOk) << qPrintable(out());
  EXPECT_EQ(read(u"c/Palettes/p.dtc"_s), palette);
  EXPECT_EQ(QDir(path(u"c/Palettes"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{u"p.dtc"_s});
  EXPECT_EQ(QDir(path(u"c"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            (QStringList{u"DrfTcCatalog.dtc"_s, u"Palettes"_s}));
}

} // namespace
