// Entities that another program wrote, read and saved by us, and read by it again.
#include "drawing/database.h"

#include "drawing/entities/python_script.h"

#include <QTemporaryDir>

class EntityRoundTrip : public testing::TestWithParam<const char*> {};

TEST_P(EntityRoundTrip, KeepsEveryValue) {
  QTemporaryDir folder;
  const QString version = QLatin1String(GetParam());
  const QString theirs = folder.filePath(QStringLiteral("theirs.dxf"));
  const QString ours = folder.filePath(QStringLiteral("ours.dxf"));
  runScript("entities_a.py", {QStringLiteral("make"), version, theirs});
  const OdDbDatabasePtr db = OdDbDatabase::readFile(theirs);
  EXPECT_TRUE(db->unknownContent().isEmpty())
      << db->unknownContent().join(QLatin1Char('\n')).toStdString();
  db->writeFile(ours);
  const QByteArray differences =
      runScript("entities_a.py", {QStringLiteral("compare"), theirs, ours});
  EXPECT_EQ(differences.toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Versions, EntityRoundTrip,
                         testing::Values("R12", "R2000", "R2004", "R2007", "R2010", "R2013",
                                         "R2018"),
                         [](const auto& version) { return std::string(version.param); });
