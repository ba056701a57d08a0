// What another program wrote, read and saved by us, and read by it again.
#include "drawing/database.h"

#include "drawing/entities/python_script.h"

#include <QTemporaryDir>

class ContentRoundTrip : public testing::TestWithParam<const char*> {};

TEST_P(ContentRoundTrip, KeepsEveryValue) {
  QTemporaryDir folder;
  const QString version = QLatin1String(GetParam());
  const QString theirs = folder.filePath(QStringLiteral("theirs.dxf"));
  const QString ours = folder.filePath(QStringLiteral("ours.dxf"));
  runScript("contents.py", {QStringLiteral("make"), version, theirs});
  const OdDbDatabasePtr db = OdDbDatabase::readFile(theirs);
  EXPECT_TRUE(db->unknownContent().isEmpty())
      << db->unknownContent().join(QLatin1Char('\n')).toStdString();
  db->writeFile(ours);
  EXPECT_EQ(runScript("contents.py", {QStringLiteral("compare"), theirs, ours}).toStdString(), "");
}

TEST_P(ContentRoundTrip, KeepsEveryTag) {
  QTemporaryDir folder;
  const QString version = QLatin1String(GetParam());
  // Old files are read into a drawing of today, whose tags are others.
  if (version == QLatin1String("R12")) return;
  const QString theirs = folder.filePath(QStringLiteral("theirs.dxf"));
  const QString ours = folder.filePath(QStringLiteral("ours.dxf"));
  runScript("contents.py", {QStringLiteral("make"), version, theirs});
  OdDbDatabase::readFile(theirs)->writeFile(ours);
  EXPECT_EQ(runScript("../audit.py", {QStringLiteral("compare"), theirs, ours}).toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Versions, ContentRoundTrip,
                         testing::Values("R12", "R2000", "R2004", "R2007", "R2010", "R2013",
                                         "R2018"),
                         [](const auto& version) { return std::string(version.param); });
