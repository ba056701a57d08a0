#include "drafton/engine/commands/circle_geometry.h"

#include <gtest/gtest.h>

using namespace drafton;

TEST(CircleGeometry, GoesThroughThreePoints) {
  const auto circle = circleThrough({13, 4, 2}, {3, 14, 0}, {-7, 4, 0});
  ASSERT_TRUE(circle);
  EXPECT_NEAR(circle->center.x, 3, 1e-12);
  EXPECT_NEAR(circle->center.y, 4, 1e-12);
  EXPECT_EQ(circle->center.z, 2);
  EXPECT_NEAR(circle->radius, 10, 1e-12);
}

TEST(CircleGeometry, LosesNoDigitsFarFromTheOrigin) {
  constexpr double kFar = 4e6;
  const auto circle = circleThrough({kFar + 1, kFar, 0}, {kFar, kFar + 1, 0}, {kFar - 1, kFar, 0});
  ASSERT_TRUE(circle);
  EXPECT_NEAR(circle->radius, 1, 1e-9);
}

TEST(CircleGeometry, PointsInALineHaveNoCircle) {
  EXPECT_FALSE(circleThrough({0, 0, 0}, {1, 1, 0}, {2, 2, 0}));
  EXPECT_FALSE(circleThrough({0, 0, 0}, {0, 0, 0}, {2, 2, 0}));
  EXPECT_FALSE(circleThrough({1, 1, 0}, {1, 1, 0}, {1, 1, 0}));
}

TEST(CircleGeometry, StandsOnItsDiameter) {
  const auto circle = circleOnDiameter({0, 0, 5}, {6, 8, 0});
  ASSERT_TRUE(circle);
  EXPECT_EQ(circle->center, (OdGePoint3d{3, 4, 5}));
  EXPECT_EQ(circle->radius, 5);
  EXPECT_FALSE(circleOnDiameter({1, 1, 0}, {1, 1, 9}));
}
