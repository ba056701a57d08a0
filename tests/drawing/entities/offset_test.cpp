// Curves beside curves.
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/spline.h"

#include "drawing/entities/recorder.h"

namespace {

const OdGeVector3d kZ = OdGeVector3d::zAxis();

OdDbPolylinePtr polyline(const std::vector<OdGePoint3d>& cornersWithBulge, bool closed) {
  const auto poly = odrxMake<OdDbPolyline>();
  for (const OdGePoint3d& c : cornersWithBulge)
    poly->addVertexAt(poly->numVerts(), {c.x, c.y}, c.z);
  poly->setClosed(closed);
  return poly;
}

/// Every place of the curves is as far from the original as it has to be.
void expectBeside(const OdDbCurve& original, const std::vector<OdDbEntityPtr>& moved,
                  double distance, double slack = 1e-6) {
  for (const OdDbEntityPtr& entity : moved) {
    const auto* const curve = odrxCast<OdDbCurve>(entity.get());
    ASSERT_TRUE(curve);
    for (int i = 0; i <= 200; ++i) {
      const OdGePoint3d p = curve->getPointAtParam(
          curve->getStartParam() + (curve->getEndParam() - curve->getStartParam()) * i / 200);
      EXPECT_GE(original.getClosestPointTo(p).distanceTo(p), std::abs(distance) - slack);
    }
  }
}

double areaOf(const std::vector<OdDbEntityPtr>& curves) {
  double sum = 0;
  for (const OdDbEntityPtr& c : curves) sum += odrxCast<OdDbCurve>(c.get())->getArea();
  return sum;
}

} // namespace

TEST(Offset, LinesMoveToTheRightAndCirclesGrow) {
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{10, 0, 0});
  const OdDbLinePtr right = line->getOffsetCurves(2)[0];
  expectNear(right->startPoint(), {0, -2, 0});
  expectNear(right->endPoint(), {10, -2, 0});
  const auto circle = odrxMake<OdDbCircle>(OdGePoint3d{}, kZ, 5);
  EXPECT_EQ(OdDbCirclePtr(circle->getOffsetCurves(2)[0])->radius(), 7);
  EXPECT_EQ(OdDbCirclePtr(circle->getOffsetCurves(-2)[0])->radius(), 3);
  EXPECT_TRUE(circle->getOffsetCurves(-5).empty());
  const auto arc = odrxMake<OdDbArc>(OdGePoint3d{}, kZ, 5, 1, 2);
  EXPECT_EQ(OdDbArcPtr(arc->getOffsetCurves(2)[0])->radius(), 7);
  EXPECT_TRUE(arc->getOffsetCurves(-6).empty());
}

TEST(Offset, ASquareKeepsItsCornersOnBothSides) {
  const OdDbPolylinePtr square = polyline({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, true);
  square->setConstantWidth(0.5);
  const auto outer = square->getOffsetCurves(2);
  ASSERT_EQ(outer.size(), 1U);
  const OdDbPolylinePtr big = outer[0];
  EXPECT_EQ(big->numVerts(), 4U);
  EXPECT_TRUE(big->isClosed());
  EXPECT_EQ(big->constantWidth(), 0.5);
  EXPECT_NEAR(big->getArea(), 14 * 14, 1e-9);
  const auto inner = square->getOffsetCurves(-2);
  ASSERT_EQ(inner.size(), 1U);
  EXPECT_NEAR(areaOf(inner), 36, 1e-9);
  EXPECT_EQ(OdDbPolylinePtr(inner[0])->numVerts(), 4U);
  EXPECT_TRUE(square->getOffsetCurves(-6).empty());
}

TEST(Offset, WhatIsTooNarrowFallsApart) {
  // Two rooms with a narrow passage between them.
  const OdDbPolylinePtr rooms = polyline({{0, 0, 0},
                                          {10, 0, 0},
                                          {10, 4, 0},
                                          {14, 4, 0},
                                          {14, 0, 0},
                                          {24, 0, 0},
                                          {24, 10, 0},
                                          {14, 10, 0},
                                          {14, 6, 0},
                                          {10, 6, 0},
                                          {10, 10, 0},
                                          {0, 10, 0}},
                                         true);
  const auto inner = rooms->getOffsetCurves(-1.5);
  ASSERT_EQ(inner.size(), 2U);
  EXPECT_NEAR(areaOf(inner), 2 * 49, 1e-6);
  expectBeside(*rooms, inner, 1.5);
  const auto wide = rooms->getOffsetCurves(-0.5);
  ASSERT_EQ(wide.size(), 1U);
  EXPECT_NEAR(areaOf(wide), 81 * 2 + 5 * 1, 1e-6);
}

TEST(Offset, ArcsStayArcsAndRoundOnesVanish) {
  const OdDbPolylinePtr stadium = polyline({{0, 0, 0}, {10, 0, 1}, {10, 4, 0}, {0, 4, 1}}, true);
  const auto outer = stadium->getOffsetCurves(1);
  ASSERT_EQ(outer.size(), 1U);
  EXPECT_EQ(OdDbPolylinePtr(outer[0])->numVerts(), 4U);
  EXPECT_NEAR(areaOf(outer), 60 + 9 * kOdaPi, 1e-6);
  const auto inner = stadium->getOffsetCurves(-1);
  EXPECT_NEAR(areaOf(inner), 20 + kOdaPi, 1e-6);
  EXPECT_TRUE(stadium->getOffsetCurves(-2.5).empty());
  // A small notch in a long edge: its arc has no room inside, the edges meet without it.
  const OdDbPolylinePtr notched =
      polyline({{0, 0, 0}, {9, 0, -1}, {11, 0, 0}, {20, 0, 0}, {20, 20, 0}, {0, 20, 0}}, true);
  const auto beside = notched->getOffsetCurves(3);
  ASSERT_EQ(beside.size(), 1U);
  expectBeside(*notched, beside, 3);
  // Between its ends the way follows the circles around them.
  const double dip = 2 * (3 - (std::sqrt(8) + 9 * std::asin(1.0 / 3)) / 2);
  EXPECT_NEAR(areaOf(beside), 26 * 26 - dip, 1e-6);
}

TEST(Offset, OpenPathsAreTrimmedWhereTheyComeTooNear) {
  // A hairpin: the inner side has no room at its end.
  const OdDbPolylinePtr pin = polyline({{0, 0, 0}, {10, 0, 0}, {10, 3, 0}, {0, 3, 0}}, false);
  const auto inner = pin->getOffsetCurves(-1);
  ASSERT_EQ(inner.size(), 1U);
  expectBeside(*pin, inner, 1);
  const OdDbPolylinePtr left = inner[0];
  expectNear(left->getStartPoint(), {0, 1, 0}, 1e-6);
  expectNear(left->getEndPoint(), {0, 2, 0}, 1e-6);
  EXPECT_TRUE(pin->getOffsetCurves(-2).empty());
  const auto outer = pin->getOffsetCurves(1);
  ASSERT_EQ(outer.size(), 1U);
  EXPECT_EQ(OdDbPolylinePtr(outer[0])->numVerts(), 4U);
  // One that crosses itself stays on its side of every piece.
  const OdDbPolylinePtr loop =
      polyline({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {5, 10, 0}, {5, -5, 0}}, false);
  for (const double d : {0.5, -0.5, 1.5, -1.5}) expectBeside(*loop, loop->getOffsetCurves(d), d);
}

TEST(Offset, OpenPathsStayAwayFromTheirOwnEnds) {
  // The last piece passes the start, and crosses nothing there.
  const OdDbPolylinePtr hook =
      polyline({{5, 3.5, 0}, {5, 20, 0}, {-20, 20, 0}, {-20, 0, 0}, {30, 0, 0}}, false);
  const auto inner = hook->getOffsetCurves(-2);
  ASSERT_EQ(inner.size(), 2U);
  expectBeside(*hook, inner, 2);
  const double reach = std::sqrt(4 - 1.5 * 1.5);
  expectNear(OdDbPolylinePtr(inner[0])->getEndPoint(), {5 - reach, 2, 0}, 1e-6);
  expectNear(OdDbPolylinePtr(inner[1])->getStartPoint(), {5 + reach, 2, 0}, 1e-6);
}

TEST(Offset, AStartWithinAnEdgeLeavesNoCorner) {
  const OdDbPolylinePtr square =
      polyline({{5, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}, {0, 0, 0}}, true);
  for (const double distance : {2, -2}) {
    const auto beside = square->getOffsetCurves(distance);
    ASSERT_EQ(beside.size(), 1U);
    EXPECT_EQ(OdDbPolylinePtr(beside[0])->numVerts(), 4U);
  }
}

TEST(Offset, NeedlesAreCutOff) {
  const OdDbPolylinePtr needle = polyline({{0, 0, 0}, {100, 0, 0}, {0, 1, 0}}, false);
  const auto outer = needle->getOffsetCurves(1);
  ASSERT_EQ(outer.size(), 1U);
  OdGeExtents3d box;
  ASSERT_TRUE(outer[0]->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().x, 101, 0.01);
}

TEST(Offset, CirclesOfTwoArcsStayTwoArcs) {
  const OdDbPolylinePtr round = polyline({{0, 0, 1}, {10, 0, 1}}, true);
  for (const double distance : {1, -1}) {
    const auto beside = round->getOffsetCurves(distance);
    ASSERT_EQ(beside.size(), 1U);
    EXPECT_EQ(OdDbPolylinePtr(beside[0])->numVerts(), 2U);
    EXPECT_NEAR(areaOf(beside), kOdaPi * (5 + distance) * (5 + distance), 1e-6);
  }
}

TEST(Offset, RandomPathsKeepTheirDistance) {
  unsigned state = 12345;
  const auto random = [&] { return (state = state * 1103515245U + 12345U) % 1000 / 1000.0; };
  for (int round = 0; round < 30; ++round) {
    std::vector<OdGePoint3d> corners;
    for (int i = 0; i < 8; ++i)
      corners.push_back({random() * 20, random() * 20, i % 3 == 0 ? random() * 2 - 1 : 0});
    const OdDbPolylinePtr path = polyline(corners, round % 2 == 0);
    for (const double d : {0.3, -0.3, 1.1, -2.0}) {
      SCOPED_TRACE(testing::Message() << "round " << round << " distance " << d);
      expectBeside(*path, path->getOffsetCurves(d), d, 1e-4);
    }
  }
}

TEST(Offset, EllipsesAndSplinesStaySmoothAsLongAsTheyCan) {
  const auto ellipse = odrxMake<OdDbEllipse>(OdGePoint3d{1, 2, 0}, kZ, OdGeVector3d{8, 0, 0}, 0.5);
  for (const double d : {1.0, -1.0}) {
    const auto moved = ellipse->getOffsetCurves(d);
    ASSERT_EQ(moved.size(), 1U);
    ASSERT_TRUE(odrxCast<OdDbSpline>(moved[0].get()));
    expectBeside(*ellipse, moved, d, 1e-3);
  }
  EXPECT_GT(areaOf(ellipse->getOffsetCurves(1)), ellipse->getArea());
  // Sharper than its ends are round: chords that meet at corners.
  const auto sharp = ellipse->getOffsetCurves(-3);
  ASSERT_EQ(sharp.size(), 1U);
  EXPECT_TRUE(odrxCast<OdDbPolyline>(sharp[0].get()));
  expectBeside(*ellipse, sharp, 3, 0.01);
  EXPECT_TRUE(ellipse->getOffsetCurves(-5).empty());
  const auto spline =
      odrxMake<OdDbSpline>(std::vector<OdGePoint3d>{{0, 0, 0}, {5, 3, 0}, {10, 0, 0}, {15, 4, 0}});
  for (const double d : {0.5, -0.5}) {
    const auto moved = spline->getOffsetCurves(d);
    ASSERT_EQ(moved.size(), 1U);
    expectBeside(*spline, moved, d, 1e-2);
  }
  // Not flat: nothing lies beside it.
  EXPECT_TRUE(
      odrxMake<OdDbSpline>(std::vector<OdGePoint3d>{{0, 0, 0}, {5, 3, 4}, {10, 0, -2}, {15, 4, 9}})
          ->getOffsetCurves(1)
          .empty());
}
