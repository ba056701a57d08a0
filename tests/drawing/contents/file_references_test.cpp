#include "drawing/objects/file_references.h"

#include "drawing/database.h"
#include "drawing/objects/dictionary.h"
#include "drawing/objects/image_def.h"
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
  EXPECT_EQ(below->pathName(), stored(QStringLiteral("source/parts/wall.dxf")));
  EXPECT_EQ(byName->pathName(), stored(QStringLiteral("source/near.dxf")));
  EXPECT_EQ(missing->pathName(), stored(QStringLiteral("gone/x.dxf"))) << "where it was meant";
  EXPECT_EQ(absolute->pathName(), QStringLiteral("C:\\a.dxf"));
  EXPECT_EQ(nameless->pathName(), OdString());
  EXPECT_EQ(picture->sourceFileName(), stored(QStringLiteral("photo.png")));
  EXPECT_EQ(gone->sourceFileName(), stored(QStringLiteral("source/gone.png")));
}

TEST_F(FileReferences, BecomeAbsoluteForADrawingThatHasNoFileYet) {
  const auto below = refer(u"parts\\wall.dxf");
  oddbRebaseFileReferences(*drawing, {});
  EXPECT_EQ(below->pathName(), stored(QStringLiteral("source/parts/wall.dxf")));
}

TEST_F(FileReferences, StayForADrawingInTheSameFolder) {
  const auto below = refer(u"parts\\wall.dxf");
  const auto picture = show(u"..\\photo.png");
  oddbRebaseFileReferences(*drawing, stored(QStringLiteral("source/../source/host.dxf")));
  EXPECT_EQ(below->pathName(), QStringLiteral("parts\\wall.dxf"));
  EXPECT_EQ(picture->sourceFileName(), QStringLiteral("..\\photo.png"));
}

TEST_F(FileReferences, StayInADrawingThatLiesNowhere) {
  drawing->setFileName({});
  const auto below = refer(u"parts\\wall.dxf");
  oddbRebaseFileReferences(*drawing, stored(QStringLiteral("host/h.dxf")));
  EXPECT_EQ(below->pathName(), QStringLiteral("parts\\wall.dxf"));
}

} // namespace
