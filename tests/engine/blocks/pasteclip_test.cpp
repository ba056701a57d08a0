#include "engine/blocks/block_fixture.h"

#include "drafton/engine/document_manager.h"
#include "drawing/entities/raster_image.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

namespace {

class PasteTest : public BlockFixture {};

TEST_F(PasteTest, WithoutCopiedObjectsTellsSo) {
  type(QStringLiteral("PASTECLIP\n"));
  EXPECT_TRUE(console().shows(QStringLiteral("There are no objects on the clipboard.")));
  EXPECT_FALSE(document().processor().isBusy());
}

TEST_F(PasteTest, BringsObjectsWithLayersAndBlocksIntoAnotherDrawing) {
  addLineBlock(u"Door");
  type(QStringLiteral("LAYER Make Walls \nCIRCLE 5,5 2\nINSERT Door 10,10 1 1 0\nCOPYCLIP ALL \n"));
  type(QStringLiteral("NewDocument\n"));
  type(QStringLiteral("PASTECLIP 0,0\n"));
  const auto circles = all<OdDbCircle>();
  const auto inserts = all<OdDbBlockReference>();
  ASSERT_EQ(circles.size(), 1u);
  ASSERT_EQ(inserts.size(), 1u);
  EXPECT_EQ(circles[0]->center(), OdGePoint3d(2, 2, 0));
  EXPECT_EQ(circles[0]->layer(), QStringLiteral("Walls"));
  EXPECT_EQ(inserts[0]->position(), OdGePoint3d(7, 7, 0));
  EXPECT_EQ(inserts[0]->blockName(), QStringLiteral("Door"));
}

TEST_F(PasteTest, ScalesToTheUnitsOfTheDrawing) {
  type(QStringLiteral("INSUNITS 6\nCIRCLE 3,3 2\nCOPYCLIP ALL \n")); // metres
  type(QStringLiteral("NewDocument\n"));
  type(QStringLiteral("INSUNITS 4\nPASTECLIP 100,100\nPASTECLIP Original\n"));
  const auto circles = all<OdDbCircle>();
  ASSERT_EQ(circles.size(), 2u);
  EXPECT_NEAR(circles[0]->radius(), 2000, 1e-6);
  EXPECT_NEAR(circles[0]->center().distanceTo({2100, 2100, 0}), 0, 1e-6);
  EXPECT_NEAR(circles[1]->center().distanceTo({3000, 3000, 0}), 0, 1e-6);
}

TEST_F(PasteTest, FindsPicturesAndReferencesFromWhereTheyArePutDown) {
  for (const char* folder : {"from", "to"}) ASSERT_TRUE(QDir().mkpath(path(folder)));
  QImage picture(40, 20, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(path("from/photo.png")));
  writeDrawing("from/wheel.dxf", 3);
  words("INSERTRASTER|" + path("from/photo.png") + "|1,2|4|0");
  words("XATTACH|" + path("from/wheel.dxf") + "|a|10,0|||");
  // As other programs write them, to be moved with the drawing.
  const auto pictureOf = [this] {
    return OdDbRasterImageDefPtr(
        all<OdDbRasterImage>().at(0)->imageDefId().safeOpenObject(OdDb::kForWrite));
  };
  const auto blockOf = [this] { return opened(inserts().at(0)->blockTableRecord()); };
  pictureOf()->setSourceFileName(QStringLiteral("photo.png"));
  blockOf()->setPathName(QStringLiteral("wheel.dxf"));
  words("SaveAs|" + path("from/plan.dxf"));
  type(QStringLiteral("COPYCLIP ALL \n"));
  words("NewDocument|SaveAs|" + path("to/other.dxf") + "|PASTECLIP|o");
  const OdString photo = odpath::fromPlatform(path("from/photo.png"));
  ASSERT_EQ(inserts().size(), 1u) << output().toStdString();
  EXPECT_TRUE(odpath::samePlace(pictureOf()->activeFileName(), photo))
      << pictureOf()->sourceFileName().toStdString();
  EXPECT_TRUE(
      odpath::samePlace(blockOf()->pathName(), odpath::fromPlatform(path("from/wheel.dxf"))))
      << blockOf()->pathName().toStdString();
  EXPECT_FALSE(blockOf()->entityIds().empty()) << "it is shown";

  words("NewDocument|SaveAs|" + path("from/beside.dxf") + "|PASTECLIP|o");
  EXPECT_EQ(pictureOf()->sourceFileName(), QStringLiteral("photo.png"))
      << "beside the files the path stays short";
  EXPECT_TRUE(odpath::samePlace(pictureOf()->activeFileName(), photo));
}

TEST_F(PasteTest, ShowsTheObjectsAtTheCursorAndLeavesNoBlockBehind) {
  type(QStringLiteral("CIRCLE 3,3 2\nCOPYCLIP ALL \nPASTECLIP\n"));
  const drafton::PreviewShapes shapes = document().processor().request()->preview({10, 10, 0});
  ASSERT_EQ(shapes.size(), 1u);
  OdGeExtents3d box;
  ASSERT_TRUE(shapes[0]->getGeomExtents(box));
  EXPECT_NEAR(box.minPoint().distanceTo({10, 10, 0}), 0, 1e-9);
  type(QStringLiteral("10,10\n"));
  int blocks = 0;
  const auto table = database().getBlockTableId().openAs<OdDbBlockTable>();
  for (auto at = table->newIterator(); !at->done(); at->step())
    blocks += OdDbBlockTableRecordPtr(at->getRecord())->isLayout() ? 0 : 1;
  EXPECT_EQ(blocks, 0);
}

} // namespace
