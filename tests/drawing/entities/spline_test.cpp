// Splines are evaluated as their numbers say.
#include "drawing/entities/spline.h"

#include "drawing/entities/recorder.h"

namespace {

/// A circle of radius 2 as a rational spline of degree 2.
OdSmartPtr<OdDbSpline> circle() {
  const double w = std::sqrt(0.5);
  return odrxMake<OdDbSpline>(2,
                              std::vector<OdGePoint3d>{{2, 0, 0},
                                                       {2, 2, 0},
                                                       {0, 2, 0},
                                                       {-2, 2, 0},
                                                       {-2, 0, 0},
                                                       {-2, -2, 0},
                                                       {0, -2, 0},
                                                       {2, -2, 0},
                                                       {2, 0, 0}},
                              std::vector<double>{0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4},
                              std::vector<double>{1, w, 1, w, 1, w, 1, w, 1});
}

const std::vector<OdGePoint3d> kFit = {{0, 0, 0}, {1, 2, 1}, {3, 1, -1}, {4, 4, 0}, {6, 5, 2}};

} // namespace

TEST(Spline, ARationalOneCanBeACircle) {
  const auto spline = circle();
  for (int i = 0; i <= 100; ++i)
    EXPECT_NEAR(spline->getPointAtParam(0.04 * i).distanceTo({}), 2, 1e-12);
  EXPECT_TRUE(spline->isClosed());
  EXPECT_TRUE(spline->isRational());
  EXPECT_NEAR(spline->getDistAtParam(4), 4 * kOdaPi, 1e-6);
  EXPECT_NEAR(spline->getParamAtDist(kOdaPi), 1, 1e-6);
  OdGeExtents3d box;
  ASSERT_TRUE(spline->getGeomExtents(box));
  expectNear(box.minPoint(), {-2, -2, 0}, 1e-9);
  expectNear(box.maxPoint(), {2, 2, 0}, 1e-9);
  EXPECT_NEAR(spline->getArea(), 4 * kOdaPi, 1e-2);
}

TEST(Spline, DegreeThreeOverOneSpanIsABezierCurve) {
  const std::vector<OdGePoint3d> p = {{0, 0, 0}, {1, 3, 0}, {4, 3, 1}, {5, 0, 2}};
  const auto spline = odrxMake<OdDbSpline>(3, p, std::vector<double>{0, 0, 0, 0, 1, 1, 1, 1});
  for (const double t : {0.0, 0.2, 0.5, 0.9, 1.0}) {
    const double s = 1 - t;
    const OdGeVector3d wanted = p[0].asVector() * (s * s * s) + p[1].asVector() * (3 * s * s * t) +
                                p[2].asVector() * (3 * s * t * t) + p[3].asVector() * (t * t * t);
    expectNear(spline->getPointAtParam(t), {wanted.x, wanted.y, wanted.z}, 1e-12);
  }
  OdGeVector3d second;
  spline->curve().derivAt(0, &second);
  const OdGeVector3d bend = (p[2] - p[1]) * 6 - (p[1] - p[0]) * 6;
  EXPECT_LE((second - bend).length(), 1e-9);
}

TEST(Spline, PassesItsFitPointsWithTheGivenDirections) {
  const auto spline = odrxMake<OdDbSpline>(kFit, OdGeVector3d{1, 0, 0}, OdGeVector3d{0, 1, 0});
  for (const OdGePoint3d& p : kFit) expectNear(spline->getClosestPointTo(p), p, 1e-9);
  expectNear(spline->getStartPoint(), kFit.front(), 1e-12);
  EXPECT_LE(
      (spline->getFirstDeriv(spline->getStartParam()).normal() - OdGeVector3d{1, 0, 0}).length(),
      1e-9);
  EXPECT_LE(
      (spline->getFirstDeriv(spline->getEndParam()).normal() - OdGeVector3d{0, 1, 0}).length(),
      1e-9);
  // The bend goes on smoothly over the points.
  const auto breaks = spline->curve().breaks();
  ASSERT_EQ(breaks.size(), kFit.size());
  for (std::size_t i = 1; i + 1 < breaks.size(); ++i) {
    OdGeVector3d before, behind;
    spline->curve().derivAt(breaks[i] - 1e-9, &before);
    spline->curve().derivAt(breaks[i] + 1e-9, &behind);
    EXPECT_LE((before - behind).length(), 1e-4);
  }
}

TEST(Spline, ClosedOnesGoOnSmoothlyOverTheirStart) {
  const OdGeNurbs curve =
      OdGeNurbs::through({{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}}, {}, {}, true);
  ASSERT_TRUE(curve.isValid());
  EXPECT_TRUE(curve.isClosed());
  EXPECT_LE((curve.derivAt(curve.start()) - curve.derivAt(curve.end())).length(), 1e-9);
}

TEST(Spline, PiecesAreTheSameCurve) {
  const auto whole = circle();
  const OdGeNurbs part = whole->curve().between(0.5, 2.25);
  ASSERT_TRUE(part.isValid());
  for (const double t : {0.5, 0.9, 1.5, 2.0, 2.25})
    expectNear(part.pointAt(t), whole->getPointAtParam(t), 1e-12);
  const OdGeNurbs back = whole->curve().reversed();
  expectNear(back.pointAt(1), whole->getPointAtParam(3), 1e-12);
}

TEST(Spline, ChordsKeepToTheDeviation) {
  const auto spline = circle();
  for (const double deviation : {0.1, 0.001}) {
    Recorder draw(deviation);
    spline->worldDraw(draw);
    ASSERT_EQ(draw.lines.size(), 1U);
    for (std::size_t i = 0; i + 1 < draw.lines[0].points.size(); ++i) {
      const OdGePoint3d& a = draw.lines[0].points[i];
      const OdGePoint3d middle = a + (draw.lines[0].points[i + 1] - a) * 0.5;
      EXPECT_GE(middle.distanceTo({}), 2 - 1.5 * deviation);
    }
  }
}

TEST(Spline, RefusesNumbersThatDoNotFit) {
  const std::vector<OdGePoint3d> p = {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}};
  EXPECT_THROW(odrxMake<OdDbSpline>(2, p, std::vector<double>{0, 0, 0, 1, 1}), OdError);
  EXPECT_THROW(odrxMake<OdDbSpline>(3, p, std::vector<double>{0, 0, 0, 0, 1, 1, 1}), OdError);
  EXPECT_THROW(odrxMake<OdDbSpline>(2, p, std::vector<double>{0, 0, 1, 0, 1, 1}), OdError);
  EXPECT_THROW(odrxMake<OdDbSpline>(2, p, std::vector<double>{0, 0, 0, 1, 1, 1},
                                    std::vector<double>{1, 0, 1}),
               OdError);
  EXPECT_THROW(odrxMake<OdDbSpline>(std::vector<OdGePoint3d>{{1, 1, 1}, {1, 1, 1}}), OdError);
  const auto spline = odrxMake<OdDbSpline>(kFit);
  EXPECT_THROW(spline->setControlPointAt(99, {}), OdError_InvalidIndex);
  spline->setControlPointAt(1, {0, 9, 0});
  EXPECT_EQ(spline->numFitPoints(), 0U);
}
