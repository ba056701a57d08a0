#include "drawing/objects/file_references.h"

#include "drawing/database.h"
#include "drawing/objects/dictionary.h"
#include "drawing/objects/image_def.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/block_table.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// A drawing in the folder "source" that refers to files.
struct FileReferences : testing::Test {
  OdString stored(const QString& name) const { return odpath::fromPlatform(folder.filePath(name)); }
  void writeFile(const QString& name) const {
    QDir(folder.path()).mkpath(QFileInfo(name).path());
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  void SetUp() override {
    writeFile(QStringLiteral("source/parts/wall.dxf"));
    writeFile(QStringLiteral("source/near.dxf"));
    writeFile(QStringLiteral("photo.png"));
    writeFile(QStringLiteral("source/plan.dxf"));
    drawing->setFileName(stored(QStringLiteral("source/plan.dxf")));
  }
  /// The form in which drawings have it.
  OdString whole(const QString& name) const { return folder.filePath(name); }
  OdDbBlockTableRecordPtr refer(const char16_t* path) const {
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(QStringLiteral("X%1").arg(++count));
    drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
    block->setPathName(OdString::fromUtf16(path));
    block->setIsFromExternalReference(true, false);
    return block;
  }
  OdDbRasterImageDefPtr show(const char16_t* path) const {
    const auto picture = odrxMake<OdDbRasterImageDef>();
    picture->setSourceFileName(OdString::fromUtf16(path));
    OdDbRasterImageDef::createImageDictionary(*drawing)
        .openAs<OdDbDictionary>(OdDb::kForWrite)
        ->setAt(QStringLiteral("P%1").arg(++count), picture);
    return picture;
  }

  QTemporaryDir folder;
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  mutable int count = 0;
};

TEST_F(FileReferences, BecomeAbsoluteForADrawingElsewhere) {
  const auto below = refer(u"parts\\wall.dxf"), byName = refer(u"lost\\near.dxf"),
             missing = refer(u"..\\gone\\x.dxf"), absolute = refer(u"C:\\a.dxf"),
             nameless = refer(u"");
  const auto picture = show(u"..\\photo.png"), gone = show(u"gone.png");
  oddbRebaseFileReferences(*drawing, stored(QStringLiteral("host/h.dxf")));
  EXPECT_EQ(below->pathName(), whole(QStringLiteral("source/parts/wall.dxf")));
  EXPECT_EQ(byName->pathName(), whole(QStringLiteral("source/near.dxf")));
  EXPECT_EQ(missing->pathName(), whole(QStringLiteral("gone/x.dxf"))) << "where it was meant";
  EXPECT_EQ(absolute->pathName(), QStringLiteral("C:\\a.dxf"));
  EXPECT_EQ(nameless->pathName(), OdString());
  EXPECT_EQ(picture->sourceFileName(), whole(QStringLiteral("photo.png")));
  EXPECT_EQ(gone->sourceFileName(), whole(QStringLiteral("source/gone.png")));
}

TEST_F(FileReferences, BecomeAbsoluteForADrawingThatHasNoFileYet) {
  const auto below = refer(u"parts\\wall.dxf");
  oddbRebaseFileReferences(*drawing, {});
  EXPECT_EQ(below->pathName(), whole(QStringLiteral("source/parts/wall.dxf")));
}

TEST_F(FileReferences, StayForADrawingInTheSameFolder) {
  const auto below = refer(u"parts\\wall.dxf");
  const auto picture = show(u"..\\photo.png");
  oddbRebaseFileReferences(*drawing, stored(QStringLiteral("source/../source/host.dxf")));
  EXPECT_EQ(below->pathName(), QStringLiteral("parts/wall.dxf"));
  EXPECT_EQ(picture->sourceFileName(), QStringLiteral("../photo.png"));
}

TEST_F(FileReferences, StayInADrawingThatLiesNowhere) {
  drawing->setFileName({});
  const auto below = refer(u"parts\\wall.dxf");
  oddbRebaseFileReferences(*drawing, stored(QStringLiteral("host/h.dxf")));
  EXPECT_EQ(below->pathName(), QStringLiteral("parts/wall.dxf"));
}

TEST_F(FileReferences, ArePathsOfThisPlatformIfTheyAreGivenHere) {
  const auto photo = show(u"\\home\\me\\photo.png"), below = show(u"pictures/a\\b.png");
  const auto wall = refer(u"\\home\\me\\wall.dxf");
  EXPECT_EQ(photo->sourceFileName(), QStringLiteral("/home/me/photo.png"));
  EXPECT_EQ(below->sourceFileName(), QStringLiteral("pictures/a/b.png"));
  EXPECT_EQ(wall->pathName(), QStringLiteral("/home/me/wall.dxf"));
  for (const char16_t* const other : {u"C:\\pictures\\a.png", u"\\\\server\\pictures\\a.png"}) {
    EXPECT_EQ(show(other)->sourceFileName(), OdString::fromUtf16(other)) << "another platform's";
    EXPECT_EQ(refer(other)->pathName(), OdString::fromUtf16(other));
  }
}

TEST_F(FileReferences, StayAsAFileHadThem) {
  const auto below = refer(u"parts/wall.dxf");
  const auto picture = show(u"pictures/photo.png");
  QByteArray file = drawing->writeDxf();
  file.replace("parts/wall.dxf", ".\\parts\\wall.dxf")
      .replace("pictures/photo.png", "..\\photo.png");
  const OdDbDatabasePtr read =
      OdDbDatabase::readDxf(file, stored(QStringLiteral("source/plan.dxf")));
  read->setFileName(stored(QStringLiteral("source/plan.dxf")));
  const QByteArray again = read->writeDxf();
  EXPECT_TRUE(again.contains("\n.\\parts\\wall.dxf\n") ||
              again.contains("\r\n.\\parts\\wall.dxf\r\n"));
  EXPECT_TRUE(again.contains("..\\photo.png"));
  const OdDbBlockTableRecordPtr block =
      read->getBlockTableId().openAs<OdDbBlockTable>()->getAt(below->getName()).openObject();
  EXPECT_EQ(OdDbXRefMan::resolvedPath(*block),
            stored(QStringLiteral("source")) + QStringLiteral("\\.\\parts\\wall.dxf"))
      << "either separator is understood";
  const OdDbRasterImageDefPtr shown =
      read->getOdDbObjectId(picture->objectId().getHandle()).openObject();
  ASSERT_TRUE(shown);
  EXPECT_TRUE(odpath::samePlace(shown->activeFileName(), stored(QStringLiteral("photo.png"))));
}

} // namespace
