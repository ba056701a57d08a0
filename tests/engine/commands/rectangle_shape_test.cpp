#include "drafton/engine/commands/rectangle_shape.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

/// Twice the area inside of straight sides, positive counterclockwise.
double twiceArea(const std::vector<OdDbPolyline::Vertex>& outline) {
  double sum = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const OdGePoint2d& a = outline[i].point;
    const OdGePoint2d& b = outline[(i + 1) % outline.size()].point;
    sum += a.x * b.y - b.x * a.y;
  }
  return sum;
}

} // namespace

TEST(RectangleShape, PlainCornersGoAlongTheLengthFirst) {
  const auto outline = rectangleOutline({1, 2, 0}, {10, 5}, {});
  ASSERT_EQ(outline.size(), 4u);
  EXPECT_EQ(outline[0].point, (OdGePoint2d{1, 2}));
  EXPECT_EQ(outline[1].point, (OdGePoint2d{11, 2}));
  EXPECT_EQ(outline[2].point, (OdGePoint2d{11, 7}));
  EXPECT_EQ(outline[3].point, (OdGePoint2d{1, 7}));
}

TEST(RectangleShape, ChamferCutsBeforeAndBehindEachCorner) {
  RectangleModes modes;
  modes.chamferBefore = 1;
  modes.chamferBehind = 2;
  const auto outline = rectangleOutline({0, 0, 0}, {10, 5}, modes);
  ASSERT_EQ(outline.size(), 8u);
  EXPECT_EQ(outline[0].point, (OdGePoint2d{0, 1}));
  EXPECT_EQ(outline[1].point, (OdGePoint2d{2, 0}));
  EXPECT_EQ(outline[2].point, (OdGePoint2d{9, 0}));
  EXPECT_EQ(outline[3].point, (OdGePoint2d{10, 2}));
  for (const OdDbPolyline::Vertex& vertex : outline) EXPECT_EQ(vertex.bulge, 0);
}

TEST(RectangleShape, FilletBulgesOutwardsWhicheverWayRound) {
  RectangleModes modes;
  modes.fillet = 1;
  for (const RectangleSides& sides : {RectangleSides{10, 5}, RectangleSides{-10, 5},
                                      RectangleSides{10, -5}, RectangleSides{-10, -5}}) {
    const auto outline = rectangleOutline({0, 0, 0}, sides, modes);
    ASSERT_EQ(outline.size(), 8u);
    const double turn = twiceArea(outline);
    for (std::size_t i = 0; i < 8; i += 2) {
      EXPECT_NEAR(std::abs(outline[i].bulge), std::tan(kOdaPi / 8), 1e-15);
      EXPECT_GT(outline[i].bulge * turn, 0) << "bulges inwards";
      EXPECT_EQ(outline[i + 1].bulge, 0);
    }
  }
}

TEST(RectangleShape, TooShortSidesKeepPlainCorners) {
  RectangleModes modes;
  modes.fillet = 2.6;
  EXPECT_EQ(rectangleOutline({0, 0, 0}, {10, 5}, modes).size(), 4u);
  modes.fillet = 2.5;
  EXPECT_EQ(rectangleOutline({0, 0, 0}, {10, 5}, modes).size(), 8u);
}

TEST(RectangleShape, TurnedRectangleReachesTheOppositeCorner) {
  RectangleModes modes;
  modes.rotation = kOdaPi / 6;
  const OdGePoint3d corner{3, 4, 0}, opposite{20, 30, 0};
  const auto outline =
      rectangleOutline(corner, sidesBetween(corner, opposite, modes.rotation), modes);
  EXPECT_NEAR(outline[2].point.x, 20, 1e-12);
  EXPECT_NEAR(outline[2].point.y, 30, 1e-12);
}

TEST(RectangleShape, SideForAreaMakesUpForTheCorners) {
  RectangleModes modes;
  EXPECT_EQ(sideForArea(50, 10, modes), 5);
  modes.chamferBefore = 1;
  modes.chamferBehind = 2;
  const double chamfered = sideForArea(50, 10, modes);
  EXPECT_NEAR(twiceArea(rectangleOutline({}, {10, chamfered}, modes)) / 2, 50, 1e-12);
  modes = {};
  modes.fillet = 1;
  EXPECT_NEAR(10 * sideForArea(50, 10, modes) - (4 - kOdaPi), 50, 1e-12);
}
