#include "drafton/engine/commands/arc_path.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

constexpr double kNear = 1e-9;

void expectAt(const OdGePoint3d& found, const OdGePoint3d& wanted) {
  EXPECT_NEAR(found.x, wanted.x, kNear);
  EXPECT_NEAR(found.y, wanted.y, kNear);
  EXPECT_NEAR(found.z, wanted.z, kNear);
}

/// A quarter circle around the origin, counterclockwise from (10,0).
const ArcPath kQuarter{{10, 0, 0}, {0, 10, 0}, std::tan(kOdaPi / 8)};

void expectQuarter(const std::optional<ArcPath>& path) {
  ASSERT_TRUE(path);
  expectAt(path->start, kQuarter.start);
  expectAt(path->end, kQuarter.end);
  EXPECT_NEAR(path->bulge, kQuarter.bulge, kNear);
}

} // namespace

TEST(ArcPath, QuarterCircleIsTheSameByEveryDescription) {
  const OdGePoint3d center, start{10, 0, 0}, end{0, 10, 0};
  const double half = 10 * std::sqrt(0.5);
  expectQuarter(arcThrough(start, {half, half, 0}, end));
  expectQuarter(arcAround(center, start, {0, 3, 0}));
  expectQuarter(arcAroundByAngle(center, start, kOdaPi / 2));
  expectQuarter(arcAroundByChord(center, start, 10 * std::sqrt(2.0)));
  expectQuarter(arcByAngle(start, end, kOdaPi / 2));
  expectQuarter(arcByDirection(start, end, kOdaPi / 2));
  expectQuarter(arcByRadius(start, end, 10));
  expectQuarter(arcByRadiusAndAngle(start, 10, kOdaPi / 2, 3 * kOdaPi / 4));
}

TEST(ArcPath, CircleOfAnArcHasItsCenterRadiusAndAngles) {
  const std::optional<CircularArc> arc = circularArcOf(kQuarter);
  ASSERT_TRUE(arc);
  expectAt(arc->center, {0, 0, 0});
  EXPECT_NEAR(arc->radius, 10, kNear);
  EXPECT_NEAR(arc->startAngle, 0, kNear);
  EXPECT_NEAR(arc->endAngle, kOdaPi / 2, kNear);
}

TEST(ArcPath, ClockwiseArcHasItsEndsExchanged) {
  const std::optional<CircularArc> arc =
      circularArcOf({kQuarter.end, kQuarter.start, -kQuarter.bulge});
  ASSERT_TRUE(arc);
  expectAt(arc->center, {0, 0, 0});
  EXPECT_NEAR(arc->startAngle, 0, kNear);
  EXPECT_NEAR(arc->endAngle, kOdaPi / 2, kNear);
}

TEST(ArcPath, ThreePointsChooseTheSideOfTheSecondOne) {
  const auto ccw = arcThrough({10, 0, 0}, {0, 10, 0}, {0, -10, 0});
  const auto cw =
      arcThrough({10, 0, 0}, {10 * std::sqrt(0.5), -10 * std::sqrt(0.5), 0}, {0, -10, 0});
  ASSERT_TRUE(ccw && cw);
  EXPECT_NEAR(ccw->includedAngle(), 3 * kOdaPi / 2, kNear);
  EXPECT_NEAR(cw->includedAngle(), -kOdaPi / 2, kNear);
}

TEST(ArcPath, NegativeChordAndRadiusGiveTheGreaterArc) {
  const auto byChord = arcAroundByChord({}, {10, 0, 0}, -10 * std::sqrt(2.0));
  const auto byRadius = arcByRadius({10, 0, 0}, {0, 10, 0}, -10);
  ASSERT_TRUE(byChord && byRadius);
  EXPECT_NEAR(byChord->includedAngle(), 3 * kOdaPi / 2, kNear);
  expectAt(byChord->end, {0, -10, 0});
  EXPECT_NEAR(byRadius->includedAngle(), 3 * kOdaPi / 2, kNear);
}

TEST(ArcPath, HalfCircleByRadiusForgivesTheLastDigit) {
  const auto half = arcByRadius({0, 0, 0}, {0.3, 0, 0}, 0.15 * (1 - 1e-15));
  ASSERT_TRUE(half);
  EXPECT_NEAR(half->bulge, 1, 1e-6);
}

TEST(ArcPath, EndDirectionOfStraightAndCurvedPaths) {
  EXPECT_NEAR(endDirectionOf({{0, 0, 0}, {5, 5, 0}, 0}), kOdaPi / 4, kNear);
  EXPECT_NEAR(odgeNormalAngle(endDirectionOf(kQuarter)), kOdaPi, kNear);
}

TEST(ArcPath, KeepsTheHeightOfTheStart) {
  const auto path = arcByAngle({10, 0, 7}, {0, 10, 3}, kOdaPi / 2);
  ASSERT_TRUE(path);
  EXPECT_EQ(path->end.z, 7);
  EXPECT_EQ(circularArcOf(*path)->center.z, 7);
}

TEST(ArcPath, GivenCenterIsKeptToTheLastDigit) {
  const OdGePoint3d center{0.1, 0.2, 0};
  for (const auto& path : {arcAround(center, {7.3, 1.1, 0}, {0.7, 9.9, 0}),
                           arcAroundByAngle(center, {7.3, 1.1, 0}, -2.2),
                           arcAroundByChord(center, {7.3, 1.1, 0}, 3.3)}) {
    ASSERT_TRUE(path);
    EXPECT_EQ(circularArcOf(*path)->center, center);
  }
}

TEST(ArcPath, FullTurnButForRoundingIsTheAngleZero) {
  const auto path = arcByRadius({10, 0, 0}, {0, 10, 0}, 10);
  ASSERT_TRUE(path);
  EXPECT_LT(circularArcOf(*path)->startAngle, 1);
}

TEST(ArcPath, WhatIsNoArcGivesNone) {
  const OdGePoint3d a{0, 0, 0}, b{10, 0, 0}, c{20, 0, 0};
  EXPECT_FALSE(arcThrough(a, b, c));
  EXPECT_FALSE(arcThrough(a, a, c));
  EXPECT_FALSE(arcThrough(a, b, a));
  EXPECT_FALSE(arcAround(a, a, b));
  EXPECT_FALSE(arcAround(a, b, a));
  EXPECT_FALSE(arcAround(a, b, c)) << "no angle at all";
  EXPECT_FALSE(arcAroundByAngle(a, b, 0));
  EXPECT_FALSE(arcAroundByAngle(a, b, 2 * kOdaPi));
  EXPECT_FALSE(arcAroundByChord(a, b, 0));
  EXPECT_FALSE(arcAroundByChord(a, b, 20.1));
  EXPECT_FALSE(arcAroundByChord(a, a, 1));
  EXPECT_FALSE(arcByAngle(a, a, 1));
  EXPECT_FALSE(arcByAngle(a, b, -7));
  EXPECT_FALSE(arcByDirection(a, b, 0)) << "straight ahead";
  EXPECT_FALSE(arcByDirection(a, b, kOdaPi)) << "straight back";
  EXPECT_FALSE(arcByRadius(a, b, 4.9));
  EXPECT_FALSE(arcByRadius(a, b, 0));
  EXPECT_FALSE(arcByRadiusAndAngle(a, 0, 1, 0));
  EXPECT_FALSE(circularArcOf({a, b, 0}));
  EXPECT_FALSE(circularArcOf({a, a, 1}));
}
