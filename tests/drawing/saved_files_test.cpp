// What stands on the disk behind a save, and what a file carries besides its objects.
#include "drawing/database.h"
#include "drawing/dxf/residue.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class SavedFiles : public ::testing::Test {
 protected:
  static QByteArray bytes(const OdString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QTemporaryDir m_folder;
  OdString m_path = m_folder.filePath(QStringLiteral("plan.old.dxf"));
  OdDbDatabasePtr m_db = OdDbDatabase::createDatabase();
};

OdDbDatabasePtr reread(const QByteArray& bytes) {
  const auto db = OdDbDatabase::readDxf(bytes, QStringLiteral("x.dxf"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  return db;
}

} // namespace

TEST_F(SavedFiles, BackupIsTheFileThatWasThereBefore) {
  m_db->writeFile(m_path, OdDb::kVersionUnknown, true);
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
  const QByteArray old = bytes(m_path);
  m_db->setSysVar(QStringLiteral("LTSCALE"), 2.0);
  m_db->writeFile(m_path, OdDb::kVersionUnknown, true);
  EXPECT_TRUE(bytes(m_folder.filePath(QStringLiteral("plan.old.bak"))) == old);
  EXPECT_FALSE(bytes(m_path) == old);
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 2);
}

TEST_F(SavedFiles, BackupThatCannotBeMadeLeavesTheOldFile) {
  m_db->writeFile(m_path);
  const QByteArray old = bytes(m_path);
  ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("plan.old.bak")));
  m_db->setSysVar(QStringLiteral("LTSCALE"), 2.0);
  EXPECT_THROW(m_db->writeFile(m_path, OdDb::kVersionUnknown, true), OdFileError);
  EXPECT_TRUE(bytes(m_path) == old);
}

TEST_F(SavedFiles, PermissionsStay) {
  m_db->writeFile(m_path);
  const auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                           QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ReadGroup;
  ASSERT_TRUE(QFile::setPermissions(m_path, permissions));
  m_db->writeFile(m_path);
  EXPECT_EQ(QFile::permissions(m_path), permissions);
}

TEST_F(SavedFiles, ChangeByOthersIsTold) {
  m_db->writeFile(m_path);
  const OdDbDatabasePtr db = OdDbDatabase::readFile(m_path);
  EXPECT_FALSE(db->isFileChangedByOthers());
  QFile other(m_path);
  ASSERT_TRUE(other.open(QIODevice::Append));
  other.write("999\nby somebody else\n");
  other.close();
  EXPECT_TRUE(db->isFileChangedByOthers());
  db->writeFile(m_path);
  EXPECT_FALSE(db->isFileChangedByOthers());
  ASSERT_TRUE(QFile::remove(m_path));
  EXPECT_TRUE(db->isFileChangedByOthers());
  EXPECT_FALSE(m_db->isFileChangedByOthers()) << "a drawing without a file";
}

TEST_F(SavedFiles, ThumbnailIsKeptReplacedAndTakenAway) {
  EXPECT_EQ(m_db->thumbnail(), QByteArray());
  const QByteArray without = m_db->writeDxf();
  QByteArray picture;
  for (int i = 0; i < 1000; ++i) picture += static_cast<char>(i);
  m_db->setThumbnail(picture);
  EXPECT_TRUE(m_db->isModified());
  const QByteArray saved = m_db->writeDxf();
  EXPECT_TRUE(saved.contains("  2\nTHUMBNAILIMAGE\n 90\n1000\n310\n000102"));
  const OdDbDatabasePtr back = reread(saved);
  EXPECT_EQ(back->thumbnail(), picture);
  EXPECT_TRUE(back->writeDxf() == saved);
  back->setThumbnail({});
  EXPECT_TRUE(back->writeDxf() == without);
}

TEST_F(SavedFiles, TagsOfNewerVersionsAreLeftOutOfOlderFiles) {
  QByteArray text = m_db->writeDxf();
  text.replace(
      "  2\nENTITIES\n",
      "  2\nENTITIES\n  0\nBODY\n  5\nF0\n330\n1F\n100\nAcDbEntity\n  8\n0\n347\n0\n160\n4\n"
      "310\n01020304\n284\n1\n100\nAcDbModelerGeometry\n 10\n0\n 20\n0\n 30\n0\n"
      "101\nEmbedded Object\n 70\n1\n1001\nACAD\n1000\nlast\n");
  text.replace("  0\nEOF\n", "  0\nSECTION\n  2\nACDSDATA\n 70\n2\n  0\nENDSEC\n  0\nEOF\n");
  const OdDbDatabasePtr db = reread(text);
  EXPECT_TRUE(db->writeDxf() == reread(db->writeDxf())->writeDxf());
  EXPECT_TRUE(db->writeDxf().contains("347\n0\n160\n4\n310\n01020304\n284\n1\n"));
  const QByteArray old = db->writeDxf(OdDb::kR2000);
  EXPECT_TRUE(old.contains(
      " 92\n4\n310\n01020304\n100\nAcDbModelerGeometry\n 10\n0\n 20\n0\n 30\n0\n1001\n"));
  EXPECT_FALSE(old.contains("ACDSDATA"));
  const QByteArray middle = db->writeDxf(OdDb::kR2010);
  EXPECT_TRUE(middle.contains("347\n0\n160\n4\n310\n01020304\n284\n1\n100\nAcDbModelerGeometry\n"));
  EXPECT_FALSE(middle.contains("Embedded Object"));
}

TEST_F(SavedFiles, UnknownCodePageIsWrittenBackAsItWasRead) {
  m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->editResidue().xdata =
      "1001\nACAD\n1000\nX\n";
  QByteArray text = m_db->writeDxf(OdDb::kR2000);
  text.replace("ANSI_1252", "ANSI_0000").replace("1000\nX\n", "1000\nX\xE4\x81\xFF\n");
  EXPECT_TRUE(reread(text)->writeDxf() == text);
}

TEST_F(SavedFiles, CharactersThatAreToldByTheirNumbersAreRead) {
  QByteArray text = m_db->writeDxf(OdDb::kR2000);
  const auto named = [&](const QByteArray& name) {
    QByteArray changed = text;
    changed.replace("100\nAcDbTextStyleTableRecord\n  2\nStandard\n",
                    "100\nAcDbTextStyleTableRecord\n  2\n" + name + "\n");
    return reread(changed)->getTextStyleTableId().openAs<OdDbTextStyleTable>();
  };
  EXPECT_TRUE(named("A\\U+00C4\\U+4E00")->has(QStringLiteral("AÄ一")));
  EXPECT_TRUE(named("\\M+193FA")->has(QStringLiteral("日")));
  EXPECT_TRUE(named("C:\\Users")->has(QStringLiteral("C:\\Users")));
}
