// BLOCK and WBLOCK.
#include "engine/blocks/block_fixture.h"

namespace {

class BlockTest : public BlockFixture {};

TEST_F(BlockTest, TakesObjectsOutOfTheDrawingIntoABlock) {
  words("LINE|5,5|9,5||BLOCK|Bar|5,5|all||");
  EXPECT_FALSE(isBusy()) << output().toStdString();
  EXPECT_TRUE(all<OdDbLine>().empty());
  ASSERT_TRUE(hasBlock(u"Bar"));
  words("INSERT|Bar|1,1|||");
  OdGeExtents3d box;
  ASSERT_TRUE(inserts().at(0)->getGeomExtents(box));
  EXPECT_EQ(box.minPoint(), (OdGePoint3d{1, 1, 0}));
  EXPECT_EQ(box.maxPoint(), (OdGePoint3d{5, 1, 0}));
}

TEST_F(BlockTest, RedefinesABlockOnlyIfToldTo) {
  addLineBlock(u"Bar");
  words("LINE|0,0|0,1||BLOCK|Bar|");
  EXPECT_FALSE(isBusy());
  EXPECT_EQ(all<OdDbLine>().size(), 1u);
  words("BLOCK|Bar|y|0,0|all||");
  EXPECT_TRUE(all<OdDbLine>().empty());
  words("INSERT|*Bar|0,0|||");
  ASSERT_EQ(all<OdDbLine>().size(), 1u);
  EXPECT_EQ(all<OdDbLine>()[0]->endPoint(), (OdGePoint3d{0, 1, 0}));
}

TEST_F(BlockTest, RefusesToContainItself) {
  addLineBlock(u"Bar");
  words("INSERT|Bar|0,0|||");
  const QByteArray before = database().writeDxf();
  words("BLOCK|Bar|y|0,0|all||");
  EXPECT_TRUE(console().shows(QStringLiteral("Block \"Bar\" would contain itself.")));
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(BlockTest, RefusesNamesThatRecordsCannotHave) {
  words("BLOCK|a:b");
  EXPECT_TRUE(isBusy());
  EXPECT_TRUE(console().shows(QStringLiteral("is no name for a block")));
  type(QStringLiteral("^C"));
}

TEST_F(BlockTest, IsUndoneAtOnce) {
  words("LINE|5,5|9,5|");
  const QByteArray before = database().writeDxf();
  words("BLOCK|Bar|5,5|all||U");
  EXPECT_EQ(database().writeDxf(), before);
}

TEST_F(BlockTest, IsWrittenToAFileByItsName) {
  addLineBlock(u"Bar");
  words("WBLOCK|" + path("bar.dxf") + "|=");
  EXPECT_FALSE(isBusy());
  EXPECT_TRUE(QFile::exists(path("bar.dxf"))) << output().toStdString();
}

TEST_F(BlockTest, WritesABlockTheWholeDrawingOrChosenObjects) {
  addLineBlock(u"Bar");
  words("LINE|5,5|9,5|");
  words("WBLOCK|" + path("block.dxf") + "|Bar");
  words("WBLOCK|" + path("whole.dxf") + "|*");
  words("WBLOCK|" + path("part.dxf") + "||5,5|all|");
  const auto lineOf = [&](const char* name) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(odpath::fromPlatform(path(name)));
    const auto space = drawing->getModelSpaceId().openAs<OdDbBlockTableRecord>();
    EXPECT_EQ(space->entityIds().size(), 1u) << name;
    const OdDbLinePtr line = space->newIterator()->entity();
    return std::pair(line->startPoint(), line->endPoint());
  };
  EXPECT_EQ(lineOf("block.dxf"), std::pair(OdGePoint3d{}, OdGePoint3d{10, 0, 0}));
  EXPECT_EQ(lineOf("whole.dxf"), std::pair(OdGePoint3d{5, 5, 0}, OdGePoint3d{9, 5, 0}));
  EXPECT_EQ(lineOf("part.dxf"), std::pair(OdGePoint3d{}, OdGePoint3d{4, 0, 0}));
  EXPECT_EQ(all<OdDbLine>().size(), 1u) << "what was chosen stays";
}

TEST_F(BlockTest, ReplacesAFileOnlyIfToldTo) {
  writeDrawing("old.dxf", 3);
  addLineBlock(u"Bar");
  words("WBLOCK|" + path("old.dxf") + "|");
  EXPECT_FALSE(isBusy());
  EXPECT_TRUE(OdDbDatabase::readFile(odpath::fromPlatform(path("old.dxf")))
                  ->getModelSpaceId()
                  .openAs<OdDbBlockTableRecord>()
                  ->newIterator()
                  ->entity()
                  ->isKindOf(OdDbCircle::desc()));
}

} // namespace
