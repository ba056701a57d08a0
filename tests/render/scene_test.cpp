#include "drafton/render/pick.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "render/picture_fixture.h"

namespace render_test {
namespace {

class SceneChanges : public PictureTest {
 protected:
  OdDbObjectId line(double y) {
    return add(odrxMake<OdDbLine>(OdGePoint3d{0, y, 0}, OdGePoint3d{100, y, 0}));
  }
  View view() const {
    OdGeExtents3d box;
    box.addPoint({0, 0, 0});
    box.addPoint({100, 100, 0});
    View made;
    made.size = {100, 100};
    return made.fitted(box);
  }
  bool isSeen(double y) {
    const QImage image = picture(0, 0, 100, 100, {100, 100});
    const int row = static_cast<int>(100 - y);
    return qGray(image.pixel(50, row)) < 255 || qGray(image.pixel(50, row - 1)) < 255;
  }
  std::vector<OdDbObjectId> pickedAt(double x, double y) {
    return Picker(scene(), database().getModelSpaceId(), view()).at({x, 100 - y}, 2);
  }
};

TEST_F(SceneChanges, FollowsNewMovedAndErasedEntities) {
  const OdDbObjectId first = line(20);
  EXPECT_TRUE(isSeen(20));
  line(40);
  EXPECT_TRUE(isSeen(40));
  first.openAs<OdDbLine>(OdDb::kForWrite)->transformBy(OdGeMatrix3d::translation({0, 50, 0}));
  EXPECT_FALSE(isSeen(20));
  EXPECT_TRUE(isSeen(70));
  first.safeOpenObject(OdDb::kForWrite)->erase();
  EXPECT_FALSE(isSeen(70));
  first.openObject(OdDb::kForWrite, true)->erase(false);
  EXPECT_TRUE(isSeen(70));
}

TEST_F(SceneChanges, FollowsUndoAndRedo) {
  line(10);
  EXPECT_TRUE(isSeen(10));
  database().startUndoRecord(QStringLiteral("LINE"));
  line(30);
  database().endUndoRecord();
  EXPECT_TRUE(isSeen(30));
  database().undo();
  EXPECT_FALSE(isSeen(30));
  database().redo();
  EXPECT_TRUE(isSeen(30));
}

TEST_F(SceneChanges, FollowsBlocksThroughTheirInserts) {
  const OdDbObjectId block = addBlock(u"B"), around = addBlock(u"A");
  addTo(block, odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{100, 0, 0}));
  addTo(around, odrxMake<OdDbBlockReference>(block, OdGePoint3d{0, 10, 0}));
  add(odrxMake<OdDbBlockReference>(around, OdGePoint3d{0, 10, 0}));
  EXPECT_TRUE(isSeen(20));
  addTo(block, odrxMake<OdDbLine>(OdGePoint3d{0, 60, 0}, OdGePoint3d{100, 60, 0}));
  EXPECT_TRUE(isSeen(80));
}

TEST_F(SceneChanges, OutlivesItsDrawing) {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  Scene orphan(*drawing);
  drawing = OdDbDatabasePtr();
  EXPECT_EQ(orphan.database(), nullptr);
  QImage image(10, 10, QImage::Format_RGB32);
  image.fill(Qt::white);
  render(image, orphan, OdDbObjectId(), View(), {});
  EXPECT_EQ(image.pixel(5, 5), qRgb(255, 255, 255));
}

TEST_F(SceneChanges, PicksWhatIsUnderTheCursorLastDrawnFirst) {
  const OdDbObjectId across = line(50);
  const OdDbObjectId down = add(odrxMake<OdDbLine>(OdGePoint3d{50, 0, 0}, OdGePoint3d{50, 100, 0}));
  EXPECT_EQ(pickedAt(20, 51), std::vector{across});
  EXPECT_EQ(pickedAt(50, 50), (std::vector{down, across}));
  EXPECT_TRUE(pickedAt(20, 20).empty());
}

TEST_F(SceneChanges, PicksAreasInsideAndCirclesOnTheirEdge) {
  const OdDbObjectId circle =
      add(odrxMake<OdDbCircle>(OdGePoint3d{30, 50, 0}, OdGeVector3d::zAxis(), 20));
  const OdDbObjectId solid = add(hatchOf(60, 30, 90, 70));
  EXPECT_EQ(pickedAt(50, 50), std::vector{circle});
  EXPECT_TRUE(pickedAt(30, 50).empty());
  EXPECT_EQ(pickedAt(75, 50), std::vector{solid});
}

TEST_F(SceneChanges, WindowsTakeWhatIsWholeCrossingsWhatTouches) {
  const OdDbObjectId small =
      add(odrxMake<OdDbLine>(OdGePoint3d{10, 10, 0}, OdGePoint3d{20, 20, 0}));
  const OdDbObjectId upright =
      add(odrxMake<OdDbLine>(OdGePoint3d{25, 0, 0}, OdGePoint3d{25, 100, 0}));
  line(90);
  Picker picker(scene(), database().getModelSpaceId(), view());
  const QRectF rect(QPointF(5, 95), QPointF(30, 70));
  EXPECT_EQ(picker.inside(rect), std::vector{small});
  EXPECT_EQ(picker.crossing(rect), (std::vector{small, upright}));
}

TEST_F(SceneChanges, PicksInsertsByWhatTheyShow) {
  const OdDbObjectId block = addBlock(u"B");
  addTo(block, odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{10, 0, 0}));
  addTo(block, odrxMake<OdDbLine>(OdGePoint3d{0, 10, 0}, OdGePoint3d{10, 10, 0}));
  const OdDbObjectId insert = add(odrxMake<OdDbBlockReference>(block, OdGePoint3d{50, 50, 0}));
  EXPECT_EQ(pickedAt(55, 60), std::vector{insert});
  EXPECT_TRUE(pickedAt(55, 55).empty());
  Picker picker(scene(), database().getModelSpaceId(), view());
  EXPECT_EQ(picker.inside(QRectF(QPointF(45, 55), QPointF(65, 35))), std::vector{insert});
  EXPECT_TRUE(picker.inside(QRectF(QPointF(45, 55), QPointF(65, 45))).empty());
}

TEST_F(SceneChanges, DoesNotPickWhatIsNotSeen) {
  const OdDbObjectId layer = addLayer(u"L", 1);
  auto hidden = odrxMake<OdDbLine>(OdGePoint3d{0, 50, 0}, OdGePoint3d{100, 50, 0});
  hidden->setLayer(layer);
  add(hidden);
  EXPECT_EQ(pickedAt(20, 50).size(), 1u);
  layer.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsOff(true);
  EXPECT_TRUE(pickedAt(20, 50).empty());
}

TEST_F(SceneChanges, FarAwayIsASpeckAndNearbyIsSmooth) {
  add(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 1));
  // One pixel tells of it from a thousand units' distance.
  const QImage far = picture(-1000, -1000, 1000, 1000, {101, 101});
  int inked = 0;
  for (int y = 0; y < 101; ++y)
    for (int x = 0; x < 101; ++x) inked += far.pixel(x, y) != qRgb(255, 255, 255);
  EXPECT_GE(inked, 1);
  EXPECT_LE(inked, 4);
  // And the edge of an arc that fills no picture is found from very near.
  const QImage near = picture(0.9999, -0.0001, 1.0001, 0.0001, {100, 100});
  EXPECT_LT(qGray(near.pixel(50, 5)), 255);
  EXPECT_LT(qGray(near.pixel(50, 95)), 255);
  EXPECT_EQ(near.pixel(5, 50), qRgb(255, 255, 255));
}

} // namespace
} // namespace render_test
