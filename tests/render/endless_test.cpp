// Lines without ends, faces, and what unknown entities show.
#include "drafton/render/endless_line.h"
#include "drafton/render/pick.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/face.h"
#include "drawing/entities/line.h"
#include "drawing/entities/xline.h"
#include "render/picture_fixture.h"

namespace render_test {
namespace {

class EndlessPictures : public PictureTest {
 protected:
  OdDbXlinePtr xline(double x, double y, double dx, double dy, int color) {
    auto line = odrxMake<OdDbXline>(OdGePoint3d{x, y, 0}, OdGeVector3d{dx, dy, 0});
    line->setColor(OdCmColor::fromColorIndex(color));
    return line;
  }
  OdDbRayPtr ray(double x, double y, double dx, double dy, int color) {
    auto line = odrxMake<OdDbRay>(OdGePoint3d{x, y, 0}, OdGeVector3d{dx, dy, 0});
    line->setColor(OdCmColor::fromColorIndex(color));
    return line;
  }
  OdDbObjectId dashed() {
    const auto type = odrxMake<OdDbLinetypeTableRecord>();
    type->setName(QStringLiteral("Wide"));
    type->setNumDashes(2);
    type->setDashLengthAt(0, 6);
    type->setDashLengthAt(1, -4);
    type->setPatternLength(10);
    return database().getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(type);
  }
};

TEST_F(EndlessPictures, RunFromEdgeToEdge) {
  add(xline(0, 0, 1, 0, 1));
  add(xline(20, 500, 0, 1, 2));
  add(xline(-5000, -5000, 1, 1, 3));
  for (int i = 0; i < 6; ++i) {
    const double angle = kOdaPi * i / 3 + 0.2;
    add(ray(-60, 30, std::cos(angle), std::sin(angle), 4 + i % 3));
  }
  add(ray(500, 60, -1, 0, 5));
  add(ray(500, 70, 1, 0, 6)); // leads away
  auto line = xline(0, -40, 1, 0, 7);
  line->setLinetype(dashed());
  add(line);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "endless"));
}

TEST_F(EndlessPictures, AreSeenInBlocksThatAreElsewhere) {
  const OdDbObjectId cross = addBlock(u"Cross");
  addTo(cross, odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 10));
  addTo(cross, xline(0, 0, 1, 0, 1));
  addTo(cross, ray(0, 0, 0, 1, 3));
  const auto insert = odrxMake<OdDbBlockReference>(cross, OdGePoint3d{-300, 0, 0});
  insert->setRotation(-0.1);
  add(insert);
  add(odrxMake<OdDbBlockReference>(cross, OdGePoint3d{50, -40, 0}));
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "endless_block"));
}

TEST_F(EndlessPictures, HaveDashesThatStayWhenTheViewMoves) {
  auto line = xline(3, 50.25, 1, 0, 7);
  line->setLinetype(dashed());
  add(line);
  const QImage left = picture(0, 0, 200, 100, {400, 200});
  const QImage right = picture(20, 0, 220, 100, {400, 200});
  EXPECT_EQ(left.copy(40, 0, 300, 200), right.copy(0, 0, 300, 200));
}

TEST_F(EndlessPictures, CanBePickedAnywhereButNotEnclosed) {
  const OdDbObjectId both = add(xline(0, 0, 1, 0, 1));
  const OdDbObjectId one = add(ray(0, 10, 1, 0, 1));
  View view;
  view.size = {100, 100};
  const auto at = [&](double x, double y) {
    view.center = {x, y};
    return Picker(scene(), database().getModelSpaceId(), view).at({50, 50}, 2);
  };
  EXPECT_EQ(at(100000, 0), std::vector{both});
  EXPECT_EQ(at(-100000, 0), std::vector{both});
  EXPECT_EQ(at(100000, 10), std::vector{one});
  EXPECT_TRUE(at(-100000, 10).empty());
  view.center = {0, 0};
  EXPECT_TRUE(Picker(scene(), database().getModelSpaceId(), view).inside({0, 0, 100, 100}).empty());
}

TEST_F(EndlessPictures, ComeAndGoWithTheirEntities) {
  const OdDbObjectId id = add(xline(-5000, 0, 1, 0, 1));
  add(odrxMake<OdDbLine>(OdGePoint3d{-500, -30, 0}, OdGePoint3d{500, -30, 0}));
  const QImage with = picture(-100, -80, 100, 80);
  id.openAs<OdDbXline>(OdDb::kForWrite)->erase();
  const QImage without = picture(-100, -80, 100, 80);
  EXPECT_NE(with, without);
  id.openObject(OdDb::kForWrite, true)->erase(false);
  EXPECT_EQ(picture(-100, -80, 100, 80), with);
}

TEST_F(EndlessPictures, OfFaces) {
  for (int i = 0; i < 6; ++i) {
    const double x = -90 + 32 * i;
    const auto face =
        odrxMake<OdDbFace>(OdGePoint3d{x, -30, 0}, OdGePoint3d{x + 25, -30, 5},
                           OdGePoint3d{x + 25, 30, 9}, OdGePoint3d{x + (i == 5 ? 25 : 5), 30, 0});
    if (i > 0 && i < 5) face->makeEdgeInvisibleAt(static_cast<unsigned>(i - 1));
    face->setColor(OdCmColor::fromColorIndex(i + 1));
    add(face);
  }
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "face"));
}

TEST(MultipleLines, LookAsTheirStylesSay) {
  const OdDbDatabasePtr db =
      OdDbDatabase::readFile(QStringLiteral(SOURCE_DIR "/tests/data/multiple_lines.dxf"));
  Scene scene(*db);
  EXPECT_TRUE(
      looksLike(modelPicture(*db, scene, boxOf(-30, -30, 90, 60), {480, 360}), "multiple_lines"));
}

TEST(EndlessLine, SeenFromItsEndOrBesideThePictureIsNotSeen) {
  const Projection plan;
  const QRectF rect(0, -10, 10, 10); // y runs down
  EXPECT_FALSE(seenPart({5, 5, 0}, OdGeVector3d::zAxis(), true, plan, rect));
  EXPECT_FALSE(seenPart({50, 5, 0}, OdGeVector3d::yAxis(), true, plan, rect));
  EXPECT_FALSE(seenPart({50, 5, 0}, OdGeVector3d::xAxis(), false, plan, rect));
  const auto part = seenPart({5, 5, 0}, OdGeVector3d::xAxis(), false, plan, rect);
  ASSERT_TRUE(part);
  EXPECT_EQ(part->first, 0);
  EXPECT_EQ(part->second, 5);
}

} // namespace
} // namespace render_test
