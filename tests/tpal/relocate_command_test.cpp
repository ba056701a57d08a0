#include "tpal/tool_fixture.h"

#include "frame/file_path.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

using Qt::StringLiterals::operator""_s;

const QByteArray kOther = "<Command Macro=\"_LINE\"/>";

class RelocateCommand : public ToolFixture {
 protected:
  RelocateCommand() {
    write(u"new/doors.dwg"_s, "a drawing");
    writeCatalog(tool("{1}", "Door", block("P:\\Old\\doors.dwg")) +
                 tool("{2}", "Gone", block("p:\\old\\sub\\gone.dwg")) +
                 tool("{3}", "Near", block("P:\\Older\\doors.dwg")) + tool("{4}", "Line", kOther));
  }
  static QByteArray block(const QByteArray& source) {
    return "<Block><BlockType>2</BlockType><SourceFile>" + source + "</SourceFile></Block>";
  }
  int relocate(const QStringList& more) {
    return run(QStringList{u"relocate"_s, path(u"c"_s)} + more);
  }
  QString map(const QString& from) const { return from + u'=' + path(u"new"_s); }
  QByteArray palette() const { return read(u"c/Palettes/p.dtc"_s); }
  QByteArray stored(const QString& name) const { return odpath::fromPlatform(path(name)).toUtf8(); }
};

TEST_F(RelocateCommand, FindsSourcesInTheirNewFolderWhateverTheCase) {
  EXPECT_EQ(relocate({u"--map"_s, map(u"p:/OLD/"_s)}), tpal::kFindings);
  EXPECT_TRUE(palette().contains("<SourceFile>" + stored(u"new/doors.dwg"_s))) << palette().data();
  EXPECT_TRUE(palette().contains("<SourceFile>" + stored(u"new/sub/gone.dwg"_s)));
  EXPECT_TRUE(palette().contains("<SourceFile>P:\\Older\\doors.dwg"));
  EXPECT_TRUE(out().contains(u"P: Door: P:\\Old\\doors.dwg -> "_s)) << qPrintable(out());
  EXPECT_TRUE(out().contains(u"gone.dwg: there is no such file\n"_s)) << qPrintable(out());
  EXPECT_TRUE(out().contains(u"Tools that look elsewhere: 2; without a file there: 1\n"_s))
      << qPrintable(out());
}

TEST_F(RelocateCommand, IsWellWhenAllSourcesAreThere) {
  write(u"new/sub/gone.dwg"_s, "found again");
  EXPECT_EQ(relocate({u"--map"_s, map(u"P:\\Old"_s)}), tpal::kOk) << qPrintable(out() + err());
}

TEST_F(RelocateCommand, OnlyLooksInADryRun) {
  const QByteArray before = palette();
  EXPECT_EQ(relocate({u"--map"_s, map(u"P:\\Old"_s), u"--dry-run"_s}), tpal::kFindings);
  EXPECT_TRUE(out().contains(u"Tools that would look elsewhere: 2"_s)) << qPrintable(out());
  EXPECT_EQ(palette(), before);
}

TEST_F(RelocateCommand, TakesTheFirstFolderThatFits) {
  EXPECT_EQ(relocate({u"--map"_s, u"P:\\Old\\sub=Q:\\x"_s, u"--map"_s, map(u"P:\\Old"_s)}),
            tpal::kFindings);
  EXPECT_TRUE(palette().contains("<SourceFile>Q:\\x\\gone.dwg"));
  EXPECT_TRUE(palette().contains("<SourceFile>" + stored(u"new/doors.dwg"_s)));
  EXPECT_TRUE(err().isEmpty()) << qPrintable(err());
}

TEST_F(RelocateCommand, NamesAFolderBelowWhichNothingLies) {
  const QByteArray before = palette();
  EXPECT_EQ(relocate({u"--map"_s, map(u"P:\\Odl"_s)}), tpal::kFindings);
  EXPECT_TRUE(err().contains(u"no tool has its source below P:\\Odl"_s)) << qPrintable(err());
  EXPECT_EQ(palette(), before);
}

TEST_F(RelocateCommand, ReportsAsJson) {
  EXPECT_EQ(relocate({u"--map"_s, map(u"P:\\Old"_s), u"--json"_s}), tpal::kFindings);
  const QJsonArray rows = QJsonDocument::fromJson(out().toUtf8()).array();
  ASSERT_EQ(rows.size(), 2) << qPrintable(out());
  EXPECT_EQ(rows[0][u"tool"_s].toString(), u"Door"_s);
  EXPECT_EQ(rows[0][u"from"_s].toString(), u"P:\\Old\\doors.dwg"_s);
  EXPECT_TRUE(rows[0][u"found"_s].toBool());
  EXPECT_FALSE(rows[1][u"found"_s].toBool());
}

TEST_F(RelocateCommand, ClaimsNothingOfAPaletteThatIsNotWritten) {
  // A folder stands where the new file is made ready.
  ASSERT_TRUE(QDir().mkpath(path(u"c/Palettes/p.dtc.new"_s)));
  EXPECT_EQ(relocate({u"--map"_s, map(u"P:\\Old"_s)}), tpal::kFailed);
  EXPECT_TRUE(err().contains(u"p.dtc: not written: "_s)) << qPrintable(err());
  EXPECT_TRUE(out().startsWith(u"Tools that look elsewhere: 0"_s)) << qPrintable(out());
}

TEST_F(RelocateCommand, LeavesAPaletteThatCannotBeReadAlone) {
  const QByteArray broken = palette().left(200);
  write(u"c/Palettes/p.dtc"_s, broken);
  EXPECT_EQ(relocate({u"--map"_s, map(u"P:\\Old"_s)}), tpal::kFindings);
  EXPECT_TRUE(err().contains(u"cannot read file"_s)) << qPrintable(err());
  EXPECT_EQ(palette(), broken);
}

TEST_F(RelocateCommand, NeedsToKnowWhatHasMoved) {
  EXPECT_EQ(relocate({}), tpal::kUsage);
  EXPECT_TRUE(err().contains(u"--map is missing"_s)) << qPrintable(err());
}

} // namespace
