// The shapes of entities under transformations, and their boxes.
#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"

#include <gtest/gtest.h>

namespace {

void expectNear(const OdGePoint3d& a, const OdGePoint3d& b) {
  EXPECT_NEAR(a.x, b.x, 1e-9);
  EXPECT_NEAR(a.y, b.y, 1e-9);
  EXPECT_NEAR(a.z, b.z, 1e-9);
}

void expectBox(const OdDbEntity& entity, const OdGePoint3d& low, const OdGePoint3d& high) {
  OdGeExtents3d box;
  ASSERT_TRUE(entity.getGeomExtents(box));
  expectNear(box.minPoint(), low);
  expectNear(box.maxPoint(), high);
}

const OdGeVector3d kZ = OdGeVector3d::zAxis();
const OdGeMatrix3d kMirrorX = OdGeMatrix3d::mirroring({}, OdGeVector3d::xAxis());
const OdGeMatrix3d kTilt = OdGeMatrix3d::rotation(0.7, {1, 2, 3}, {4, 5, 6});

} // namespace

TEST(Matrix, InverseTakesEverythingBack) {
  const OdGeMatrix3d m = kTilt * OdGeMatrix3d::scaling(2, 3, 4, {1, 1, 1}) * kMirrorX;
  expectNear(m.inverse() * (m * OdGePoint3d{7, -8, 9}), {7, -8, 9});
  EXPECT_NEAR(m.det(), -24, 1e-9);
  EXPECT_FALSE(m.isUniScaledOrtho());
  EXPECT_TRUE(kTilt.isUniScaledOrtho());
  EXPECT_NEAR(OdGeMatrix3d::scaling(2.5).scale(), 2.5, 1e-12);
  EXPECT_THROW(OdGeMatrix3d::scaling(1, 1, 0).inverse(), OdError);
}

TEST(Matrix, PlanesFollowTheArbitraryAxisRule) {
  expectNear(OdGeMatrix3d::planeToWorld({0, 0, -1}) * OdGePoint3d{1, 2, 3}, {-1, 2, -3});
  expectNear(OdGeMatrix3d::planeToWorld({0, 1, 0}) * OdGePoint3d{1, 0, 0}, {-1, 0, 0});
  EXPECT_EQ(OdGeMatrix3d::planeToWorld(kZ), OdGeMatrix3d());
}

TEST(Circle, KeepsItsCentreInTheWorldWhateverItsPlane) {
  const auto circle = odrxMake<OdDbCircle>(OdGePoint3d{1, 2, 3}, OdGeVector3d{0, 0, -1}, 5);
  expectNear(circle->center(), {1, 2, 3});
  expectBox(*circle, {-4, -3, 3}, {6, 7, 3});
  ASSERT_TRUE(circle->transformBy(OdGeMatrix3d::scaling(2)));
  expectNear(circle->center(), {2, 4, 6});
  EXPECT_EQ(circle->radius(), 10);
  EXPECT_THROW(circle->setRadius(0), OdError);
  EXPECT_THROW(circle->setCenter({std::nan(""), 0, 0}), OdError);
}

TEST(Circle, DoesNotBecomeAnEllipse) {
  const auto circle = odrxMake<OdDbCircle>(OdGePoint3d{1, 2, 0}, kZ, 5);
  EXPECT_FALSE(circle->transformBy(OdGeMatrix3d::scaling(1, 2, 1)));
  expectNear(circle->center(), {1, 2, 0});
  EXPECT_TRUE(circle->transformBy(OdGeMatrix3d::scaling(2, 2, 7)));
}

TEST(Arc, EndsGoWhereTheTransformationTakesThem) {
  for (const OdGeMatrix3d& m :
       {kTilt, kMirrorX, OdGeMatrix3d::scaling(-1, -1, 1), OdGeMatrix3d::scaling(3) * kMirrorX,
        kTilt * kMirrorX, OdGeMatrix3d::rotation(kOdaPi, {1, 0, 0})}) {
    const auto arc = odrxMake<OdDbArc>(OdGePoint3d{1, 2, 3}, kZ, 4, 0.3, 2.1);
    const OdGePoint3d start = m * arc->startPoint();
    const OdGePoint3d end = m * arc->endPoint();
    const OdGePoint3d middle = m * arc->pointAt(1.2);
    ASSERT_TRUE(arc->transformBy(m));
    const bool swapped = arc->startPoint().distanceTo(start) > 1e-6;
    expectNear(swapped ? arc->endPoint() : arc->startPoint(), start);
    expectNear(swapped ? arc->startPoint() : arc->endPoint(), end);
    const double half = odgeNormalAngle(arc->endAngle() - arc->startAngle()) / 2;
    expectNear(arc->pointAt(arc->startAngle() + half), middle);
  }
}

TEST(Arc, BoxHasTheQuadrantsThatItPasses) {
  expectBox(*odrxMake<OdDbArc>(OdGePoint3d{}, kZ, 10, kOdaPi / 2, kOdaPi), {-10, 0, 0}, {0, 10, 0});
  expectBox(*odrxMake<OdDbArc>(OdGePoint3d{}, kZ, 10, 1.5 * kOdaPi, kOdaPi / 2), {0, -10, 0},
            {10, 10, 0});
}

TEST(Polyline, CornersAndBulgesFollowAMirror) {
  const auto poly = odrxMake<OdDbPolyline>();
  poly->addVertexAt(0, {0, 0}, 1);
  poly->addVertexAt(1, {10, 0});
  poly->setElevation(2);
  expectBox(*poly, {0, -5, 2}, {10, 0, 2});
  ASSERT_TRUE(poly->transformBy(kMirrorX));
  expectNear(poly->worldPointAt(1), {-10, 0, 2});
  EXPECT_EQ(poly->getBulgeAt(0), -1);
  expectBox(*poly, {-10, -5, 2}, {0, 0, 2});
}

TEST(Polyline, IndicesAreChecked) {
  const auto poly = odrxMake<OdDbPolyline>();
  EXPECT_THROW(poly->getPointAt(0), OdError_InvalidIndex);
  EXPECT_THROW(poly->addVertexAt(1, {0, 0}), OdError_InvalidIndex);
  poly->addVertexAt(0, {0, 0});
  poly->removeVertexAt(0);
  EXPECT_EQ(poly->numVerts(), 0u);
  EXPECT_THROW(poly->removeVertexAt(0), OdError_InvalidIndex);
  OdGeExtents3d box;
  EXPECT_FALSE(poly->getGeomExtents(box));
}

TEST(Text, MirroredTextRunsBackwardsTheOtherWay) {
  const auto text = odrxMake<OdDbText>();
  text->setTextString(QStringLiteral("abc"));
  text->setPosition({5, 1, 0});
  text->setHeight(2);
  text->transformBy(kMirrorX);
  expectNear(text->position(), {-5, 1, 0});
  EXPECT_TRUE(text->isMirroredInX());
  EXPECT_NEAR(text->rotation(), 0, 1e-9);
  OdGeExtents3d box;
  ASSERT_TRUE(text->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().x, -5, 1e-9);
  text->transformBy(OdGeMatrix3d::scaling(3));
  EXPECT_NEAR(text->height(), 6, 1e-9);
}

TEST(Entity, CopyHasTheDataButNoPlaceInADrawing) {
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{1, 2, 3}, OdGePoint3d{4, 5, 6});
  line->setColor(OdCmColor::fromColorIndex(3));
  const OdDbLinePtr copy = line->clone();
  EXPECT_FALSE(copy->isDBRO());
  EXPECT_EQ(copy->endPoint(), line->endPoint());
  EXPECT_EQ(copy->color(), line->color());
  copy->setEndPoint({});
  EXPECT_EQ(line->endPoint(), (OdGePoint3d{4, 5, 6}));
}

TEST(Entity, LineTransformsWithItsThickness) {
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{1, 0, 0});
  line->setThickness(2);
  line->transformBy(OdGeMatrix3d::scaling(3));
  EXPECT_EQ(line->thickness(), 6);
  expectBox(*line, {0, 0, 0}, {3, 0, 6});
}

TEST(Entity, TransformationBeyondNumbersIsRefusedAndChangesNothing) {
  const auto db = OdDbDatabase::createDatabase();
  const auto polyline = odrxMake<OdDbPolyline>();
  polyline->addVertexAt(0, {1e300, 0});
  polyline->addVertexAt(1, {0, 1});
  const auto text = odrxMake<OdDbText>();
  text->setTextString(QStringLiteral("abc"));
  text->setPosition({1e300, 0, 0});
  const OdDbEntityPtr entities[] = {
      odrxMake<OdDbLine>(OdGePoint3d{1e300, 0, 0}, OdGePoint3d{}),
      odrxMake<OdDbCircle>(OdGePoint3d{1e300, 0, 0}, kZ, 1.0),
      odrxMake<OdDbArc>(OdGePoint3d{1e300, 0, 0}, kZ, 1.0, 0.0, 1.0),
      polyline,
      text,
  };
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  for (const OdDbEntityPtr& entity : entities) space->appendOdDbEntity(entity);
  const QByteArray before = db->writeDxf();

  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const OdGeMatrix3d beyond[] = {
      OdGeMatrix3d::translation({std::numeric_limits<double>::infinity(), 0, 0}),
      OdGeMatrix3d::translation({0, kNan, 0}),
      OdGeMatrix3d::scaling(1e20),
      OdGeMatrix3d::scaling(1e200),
      OdGeMatrix3d::scaling(kNan),
      OdGeMatrix3d::rotation(kNan, kZ),
  };
  for (const OdDbEntityPtr& entity : entities)
    for (const OdGeMatrix3d& transform : beyond)
      EXPECT_FALSE(entity->transformBy(transform)) << entity->dxfName();
  EXPECT_TRUE(db->writeDxf() == before);
}

TEST(Entity, FlatShapesAreNotScaledToNothing) {
  const auto circle = odrxMake<OdDbCircle>(OdGePoint3d{}, kZ, 1e-300);
  EXPECT_FALSE(circle->transformBy(OdGeMatrix3d::scaling(1e-50)));
  EXPECT_FALSE(circle->transformBy(OdGeMatrix3d::scaling(1e-100)));
  EXPECT_EQ(circle->radius(), 1e-300);
}
