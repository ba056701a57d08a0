// Entities as curves: places, lengths, pieces, and other shapes of them.
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/spline.h"

#include "drawing/entities/recorder.h"

namespace {

const OdGeVector3d kZ = OdGeVector3d::zAxis();
const OdGeVector3d kAskew = OdGeVector3d{1, 2, 3}.normal();
const OdGeMatrix3d kSquash = OdGeMatrix3d::rotation(0.4, kZ) * OdGeMatrix3d::scaling(3, 1, 1);

OdDbPolylinePtr stadium() {
  const auto poly = odrxMake<OdDbPolyline>();
  poly->addVertexAt(0, {0, 0});
  poly->addVertexAt(1, {10, 0}, 1);
  poly->addVertexAt(2, {10, 4});
  poly->addVertexAt(3, {0, 4}, 1);
  poly->setClosed(true);
  return poly;
}

/// One of each kind of curve.
std::vector<OdDbCurvePtr> curves() {
  const auto space = odrxMake<OdDb2dPolyline>(OdDb2dPolyline::k3d);
  for (const OdGePoint3d& p : {OdGePoint3d{0, 0, 0}, {4, 0, 1}, {4, 5, 2}, {1, 6, -3}})
    space->addVertexAt(space->numVerts(), p);
  const auto old = odrxMake<OdDb2dPolyline>();
  old->addVertexAt(0, {0, 0, 0}, 0.5);
  old->addVertexAt(1, {6, 0, 0}, -1);
  old->addVertexAt(2, {6, 5, 0});
  old->setNormal(kAskew);
  const OdGeVector3d major = kAskew.crossProduct({1, 0, 0}).normal() * 5;
  return {odrxMake<OdDbLine>(OdGePoint3d{1, 2, 3}, OdGePoint3d{4, 6, 3}),
          odrxMake<OdDbCircle>(OdGePoint3d{1, 2, 3}, kAskew, 2.5),
          odrxMake<OdDbArc>(OdGePoint3d{1, 2, 3}, kAskew, 2.5, 5.5, 1.5),
          odrxMake<OdDbEllipse>(OdGePoint3d{1, 2, 3}, kAskew, major, 0.3),
          odrxMake<OdDbEllipse>(OdGePoint3d{1, 2, 3}, kZ, OdGeVector3d{4, 3, 0}, 0.6, 5.0, 2.0),
          stadium(),
          old,
          space,
          odrxMake<OdDbSpline>(
              std::vector<OdGePoint3d>{{0, 0, 0}, {2, 3, 0}, {5, 1, 1}, {7, 4, 0}, {9, 0, 0}})};
}

} // namespace

TEST(Curves, PlaceLengthAndParameterBelongTogether) {
  for (const OdDbCurvePtr& curve : curves()) {
    SCOPED_TRACE(curve->dxfName());
    const double length = curve->length();
    EXPECT_NEAR(curve->getDistAtParam(curve->getEndParam()), length, 1e-3 * length);
    EXPECT_EQ(curve->getDistAtParam(curve->getStartParam()), 0);
    for (const double part : {0.0, 0.13, 0.5, 0.77, 1.0}) {
      const double t =
          curve->getStartParam() + part * (curve->getEndParam() - curve->getStartParam());
      const OdGePoint3d place = curve->getPointAtParam(t);
      EXPECT_NEAR(curve->getParamAtDist(curve->getDistAtParam(t)), t, 1e-6);
      double found = -1;
      expectNear(curve->getClosestPointTo(place, &found), place, 1e-6);
      // A place beside the curve along its normal is as far as it was moved.
      const OdGeVector3d along = curve->getFirstDeriv(std::clamp(t, 1e-9, curve->getEndParam()));
      const OdGeVector3d aside = along.crossProduct({0.3, -0.5, 0.8}).normal() * 0.05;
      if (part > 0 && part < 1) {
        EXPECT_NEAR(curve->getClosestPointTo(place + aside).distanceTo(place + aside), 0.05, 1e-3);
      }
    }
    EXPECT_THROW(curve->getPointAtParam(std::nan("")), OdError);
  }
}

TEST(Curves, DerivativesAreThoseOfThePlaces) {
  constexpr double kStep = 1e-6;
  for (const OdDbCurvePtr& curve : curves()) {
    SCOPED_TRACE(curve->dxfName());
    const double t =
        curve->getStartParam() + 0.37 * (curve->getEndParam() - curve->getStartParam());
    const OdGeVector3d step =
        (curve->getPointAtParam(t + kStep) - curve->getPointAtParam(t - kStep)) * (0.5 / kStep);
    EXPECT_LE((curve->getFirstDeriv(t) - step).length(), 1e-6 * (1 + step.length()));
  }
}

TEST(Curves, BoxesHoldTheirCurvesTightly) {
  for (const OdDbCurvePtr& curve : curves()) {
    SCOPED_TRACE(curve->dxfName());
    OdGeExtents3d box, seen;
    ASSERT_TRUE(curve->getGeomExtents(box));
    for (int i = 0; i <= 24000; ++i)
      seen.addPoint(curve->getPointAtParam(
          curve->getStartParam() + (curve->getEndParam() - curve->getStartParam()) * i / 24000.0));
    expectNear(box.minPoint(), seen.minPoint(), 1e-5);
    expectNear(box.maxPoint(), seen.maxPoint(), 1e-5);
  }
}

TEST(Curves, TransformedCopiesPassTheTransformedPlaces) {
  const OdGeMatrix3d turns[] = {kSquash, OdGeMatrix3d::mirroring({1, 1, 0}, {1, 0, 0}),
                                OdGeMatrix3d::rotation(0.7, {1, 2, 3}, {4, 5, 6}),
                                kSquash * OdGeMatrix3d::mirroring({}, {1, 1, 0})};
  for (const OdGeMatrix3d& m : turns)
    for (const OdDbCurvePtr& curve : curves()) {
      SCOPED_TRACE(curve->dxfName());
      const OdDbEntityPtr moved = curve->getTransformedCopy(m);
      ASSERT_TRUE(moved);
      auto* const other = odrxCast<OdDbCurve>(moved.get());
      ASSERT_TRUE(other);
      for (int i = 0; i <= 10; ++i) {
        const double t =
            curve->getStartParam() + (curve->getEndParam() - curve->getStartParam()) * i / 10;
        const OdGePoint3d place = m * curve->getPointAtParam(t);
        // Chords of squashed polyline arcs come near, all else is exact.
        EXPECT_LE(other->getClosestPointTo(place).distanceTo(place), 0.02);
      }
      EXPECT_EQ(other->isClosed(), curve->isClosed());
    }
}

TEST(Curves, SplittingGivesThePiecesInTheirOrder) {
  for (const OdDbCurvePtr& curve : curves()) {
    SCOPED_TRACE(curve->dxfName());
    const double first = curve->getStartParam();
    const double range = curve->getEndParam() - first;
    std::vector<OdDbEntityPtr> pieces;
    ASSERT_TRUE(curve->getSplitCurves({first + 0.2 * range, first + 0.55 * range}, pieces));
    ASSERT_EQ(pieces.size(), curve->isClosed() ? 2U : 3U);
    double sum = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      auto* const piece = odrxCast<OdDbCurve>(pieces[i].get());
      sum += piece->length();
      EXPECT_FALSE(piece->isClosed());
      if (i > 0)
        expectNear(piece->getStartPoint(), odrxCast<OdDbCurve>(pieces[i - 1].get())->getEndPoint(),
                   1e-7);
    }
    EXPECT_NEAR(sum, curve->length(), 1e-3 * sum);
  }
}

TEST(Curves, ReversedOnesRunBackFromTheirEnd) {
  for (const OdDbCurvePtr& curve : curves()) {
    SCOPED_TRACE(curve->dxfName());
    const OdGePoint3d end = curve->getEndPoint();
    const OdGePoint3d start = curve->getStartPoint();
    const double length = curve->length();
    const OdGePoint3d later = curve->getPointAtDist(0.3 * length);
    if (!curve->reverseCurve()) continue;
    if (!curve->isClosed()) {
      expectNear(curve->getStartPoint(), end, 1e-9);
      expectNear(curve->getEndPoint(), start, 1e-9);
      expectNear(curve->getPointAtDist(0.7 * length), later, 2e-3);
    } else {
      EXPECT_NEAR(curve->length(), length, 1e-9);
      expectNear(curve->getClosestPointTo(later), later, 1e-6);
    }
  }
}

TEST(Curves, AreasAreExact) {
  EXPECT_NEAR(odrxMake<OdDbCircle>(OdGePoint3d{1, 2, 3}, kAskew, 2)->getArea(), 4 * kOdaPi, 1e-9);
  EXPECT_NEAR(
      odrxMake<OdDbEllipse>(OdGePoint3d{1, 2, 3}, kZ, OdGeVector3d{3, 0, 0}, 0.5)->getArea(),
      4.5 * kOdaPi, 1e-9);
  EXPECT_NEAR(stadium()->getArea(), 40 + 4 * kOdaPi, 1e-9);
  EXPECT_TRUE(stadium()->isCounterClockwise());
  // A half circle is closed by its chord.
  EXPECT_NEAR(odrxMake<OdDbArc>(OdGePoint3d{}, kZ, 2, 0, kOdaPi)->getArea(), 2 * kOdaPi, 1e-9);
}

TEST(Curves, PolylinesExplodeIntoLinesAndArcs) {
  const OdDbPolylinePtr poly = stadium();
  poly->setNormal({0, 0, -1});
  poly->setThickness(2);
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(poly->explode(pieces));
  ASSERT_EQ(pieces.size(), 4U);
  double sum = 0;
  for (const OdDbEntityPtr& piece : pieces) sum += odrxCast<OdDbCurve>(piece.get())->length();
  EXPECT_NEAR(sum, poly->length(), 1e-9);
  auto* const arc = odrxCast<OdDbArc>(pieces[1].get());
  ASSERT_TRUE(arc);
  EXPECT_EQ(arc->thickness(), 2);
  // Its middle is the polyline's place there.
  const OdGePoint3d middle = poly->getPointAtParam(1.5);
  expectNear(arc->getClosestPointTo(middle), middle);
}

TEST(Curves, WidthsGoAlongTheChordsThatArcsBecome) {
  const OdDbPolylinePtr shape = stadium();
  for (unsigned i = 0; i < 4; ++i) shape->setWidthsAt(i, i, i + 1.0);
  const OdDbPolylinePtr chords = shape->getTransformedCopy(OdGeMatrix3d::scaling(4, 1, 1));
  ASSERT_TRUE(chords);
  const unsigned count = chords->numVerts();
  ASSERT_GT(count, 8U);
  // Areas grow fourfold, and widths by the root of it.
  double before = 0;
  for (unsigned i = 0; i < count; ++i) {
    const OdDbPolyline::Vertex corner = chords->vertexAt(i);
    EXPECT_NEAR(corner.startWidth, before, 1e-9) << i;
    EXPECT_GT(corner.endWidth, corner.startWidth);
    EXPECT_EQ(corner.bulge, 0);
    before = corner.endWidth;
  }
  EXPECT_NEAR(before, 8, 1e-9);
}

TEST(Curves, ACircleSeenAskewIsAnEllipseWithItsProperties) {
  const auto circle = odrxMake<OdDbCircle>(OdGePoint3d{5, 0, 0}, kZ, 2);
  circle->setColor(OdCmColor::fromColorIndex(3));
  EXPECT_FALSE(circle->transformBy(kSquash));
  const OdDbEllipsePtr ellipse = circle->getTransformedCopy(OdGeMatrix3d::scaling(3, 1, 1));
  expectNear(ellipse->center(), {15, 0, 0});
  EXPECT_NEAR(ellipse->majorRadius(), 6, 1e-9);
  EXPECT_NEAR(ellipse->minorRadius(), 2, 1e-9);
  EXPECT_TRUE(ellipse->isClosed());
  EXPECT_EQ(ellipse->normal(), kZ);
  EXPECT_EQ(ellipse->color().colorIndex(), 3);
  EXPECT_FALSE(circle->getTransformedCopy(OdGeMatrix3d::scaling(0, 1, 1)));
}

TEST(Curves, AnglesTooLargeToAddATurnToAreTakenWithinOne) {
  for (const double angle : {1e10, -1e17, 1e30, 1e300}) {
    const auto arc = odrxMake<OdDbArc>(OdGePoint3d{}, kZ, 2.0, angle, 1.0);
    EXPECT_EQ(arc->startAngle(), angle) << "kept as the file says";
    const auto oval =
        odrxMake<OdDbEllipse>(OdGePoint3d{}, kZ, OdGeVector3d{4, 0, 0}, 0.5, angle, 1.0);
    for (const OdDbCurve* curve :
         {static_cast<const OdDbCurve*>(arc.get()), static_cast<const OdDbCurve*>(oval.get())}) {
      EXPECT_GE(curve->getStartParam(), 0);
      EXPECT_LT(curve->getStartParam(), 2 * kOdaPi);
      EXPECT_GT(curve->getEndParam(), curve->getStartParam());
      EXPECT_LE(curve->getEndParam(), curve->getStartParam() + 2 * kOdaPi);
      EXPECT_NEAR(std::remainder(curve->getEndParam() - 1.0, 2 * kOdaPi), 0, 1e-9);
      OdGeExtents3d box;
      ASSERT_TRUE(curve->getGeomExtents(box));
      EXPECT_LE(box.maxPoint().x, 4 + 1e-9);
    }
  }
}

TEST(Curves, EmptyOnesHaveNoShapeAndSayNothing) {
  const auto poly = odrxMake<OdDbPolyline>();
  Recorder draw;
  poly->worldDraw(draw);
  EXPECT_TRUE(draw.lines.empty());
  EXPECT_FALSE(poly->hasShape());
  OdGeExtents3d box;
  EXPECT_FALSE(poly->getGeomExtents(box));
  EXPECT_THROW(poly->getStartPoint(), OdError);
  EXPECT_TRUE(poly->getOffsetCurves(1).empty());
  const auto spline = odrxMake<OdDbSpline>();
  EXPECT_FALSE(spline->hasShape());
  spline->worldDraw(draw);
  EXPECT_FALSE(spline->getGeomExtents(box));
  EXPECT_THROW(spline->getClosestPointTo({}), OdError);
}
