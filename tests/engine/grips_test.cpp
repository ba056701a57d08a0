#include "drafton/engine/grips.h"

#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/line.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/solid.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

const Grip* gripAt(const std::vector<Grip>& grips, const OdGePoint3d& point) {
  for (const Grip& grip : grips)
    if (grip.at.distanceTo(point) < 1e-9) return &grip;
  return nullptr;
}

/// Moves the grip at one place to another.
bool moved(OdDbEntity& entity, const OdGePoint3d& from, const OdGePoint3d& to) {
  const std::vector<Grip> grips = gripsOf(entity);
  const Grip* const grip = gripAt(grips, from);
  EXPECT_TRUE(grip);
  return grip && moveGrip(entity, grip->number, to);
}

TEST(Grips, ACirclesCentreMovesAndItsQuadrantsSizeIt) {
  const auto circle = odrxMake<OdDbCircle>(OdGePoint3d{1, 1, 0}, OdGeVector3d::zAxis(), 2);
  EXPECT_EQ(gripsOf(*circle).size(), 5u);
  EXPECT_TRUE(moved(*circle, {3, 1, 0}, {6, 1, 0}));
  EXPECT_EQ(circle->radius(), 5);
  EXPECT_TRUE(moved(*circle, {1, 1, 0}, {0, 0, 0}));
  EXPECT_EQ(circle->center(), OdGePoint3d(0, 0, 0));
  EXPECT_FALSE(moved(*circle, {5, 0, 0}, {0, 0, 0})) << "no circle has no radius";
  EXPECT_EQ(circle->radius(), 5);
}

TEST(Grips, AnArcGoesThroughItsOtherGripsAndTheNewPlace) {
  const auto arc = odrxMake<OdDbArc>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 1, 0, kOdaPi);
  EXPECT_TRUE(moved(*arc, {0, 1, 0}, {0, 0.5, 0}));
  EXPECT_NEAR(arc->startPoint().distanceTo({1, 0, 0}), 0, 1e-9);
  EXPECT_NEAR(arc->endPoint().distanceTo({-1, 0, 0}), 0, 1e-9);
  EXPECT_NEAR(arc->radius(), 1.25, 1e-9);
  EXPECT_FALSE(moved(*arc, {0, 0.5, 0}, {0, 0, 0})) << "three points in a line";
}

TEST(Grips, APolylinesCornersMoveAlone) {
  const auto polyline = odrxMake<OdDbPolyline>();
  for (const OdGePoint2d& p : {OdGePoint2d{0, 0}, OdGePoint2d{4, 0}, OdGePoint2d{4, 4}})
    polyline->addVertexAt(polyline->numVerts(), p);
  EXPECT_TRUE(moved(*polyline, {4, 0, 0}, {5, -1, 0}));
  EXPECT_EQ(polyline->getPointAt(1), OdGePoint2d(5, -1));
  EXPECT_EQ(polyline->getPointAt(0), OdGePoint2d(0, 0));
}

TEST(Grips, KindsWithoutGripsHaveNoneAndDoNotMove) {
  const auto solid = odrxMake<OdDbSolid>();
  EXPECT_TRUE(gripsOf(*solid).empty());
  EXPECT_FALSE(moveGrip(*solid, 0, {1, 1, 0}));
}

TEST(Grips, OfADimensionAreItsPoints) {
  const auto dimension = odrxMake<OdDbRotatedDimension>(
      0.0, OdGePoint3d{0, 0, 0}, OdGePoint3d{10, 0, 0}, OdGePoint3d{10, 4, 0});
  EXPECT_EQ(gripsOf(*dimension).size(), 3u);
  EXPECT_TRUE(moved(*dimension, {10, 0, 0}, {12, 0, 0}));
  EXPECT_EQ(dimension->xLine2Point(), OdGePoint3d(12, 0, 0));
  EXPECT_TRUE(moved(*dimension, {10, 4, 0}, {10, 7, 0}));
  EXPECT_EQ(dimension->dimLinePoint(), OdGePoint3d(10, 7, 0));
}

} // namespace
