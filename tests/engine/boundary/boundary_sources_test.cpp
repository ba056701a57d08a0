// What of a drawing bounds areas.

#include "drafton/engine/boundary/boundary_search.h"
#include "drafton/engine/boundary/object_loops.h"
#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/spline.h"
#include "drawing/entities/text.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

class Sources : public ::testing::Test {
 protected:
  OdDbObjectId add(OdDbEntity& entity, const OdString& layer = {}) {
    const auto space = m_drawing->getCurrentSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    const OdDbObjectId id = space->appendOdDbEntity(&entity);
    if (!layer.isEmpty()) id.openAs<OdDbEntity>(OdDb::kForWrite)->setLayer(layerNamed(layer));
    return id;
  }
  OdDbObjectId addLine(double x1, double y1, double x2, double y2) {
    return add(*odrxMake<OdDbLine>(OdGePoint3d{x1, y1, 0}, OdGePoint3d{x2, y2, 0}));
  }
  OdDbObjectId addCircle(double x, double y, double r, const OdString& layer = {}) {
    return add(*odrxMake<OdDbCircle>(OdGePoint3d{x, y, 0}, OdGeVector3d::zAxis(), r), layer);
  }
  OdDbObjectId addRoom() {
    const auto room = odrxMake<OdDbPolyline>();
    for (const OdGePoint2d& corner : {OdGePoint2d{0, 0}, {10, 0}, {10, 8}, {0, 8}})
      room->addVertexAt(room->numVerts(), corner);
    room->setClosed(true);
    return add(*room);
  }
  OdDbObjectId layerNamed(const OdString& name) {
    const auto layers = m_drawing->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
    if (layers->has(name)) return layers->getAt(name);
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(name);
    return layers->add(layer);
  }

  BoundarySearch::Result around(double x, double y, IslandStyle style = IslandStyle::kNormal) {
    const OdGePoint3d origin{1, 1, 0};
    const BoundarySources sources = visibleSources(*m_drawing, origin);
    return BoundarySearch(sources.curves, sources.texts, origin, 0)
        .around(flatPoint({x, y, 0}, origin), style);
  }
  double areaAround(double x, double y) { return areaOf(around(x, y).loops); }
  static double areaOf(const BoundaryLoops& loops) {
    double area = 0;
    for (const BoundaryLoop& loop : loops) area += loop.depth % 2 == 0 ? loop.area : -loop.area;
    return area;
  }
  double areaWithin(const std::vector<OdDbObjectId>& objects,
                    IslandStyle style = IslandStyle::kNormal, double gap = 0) {
    return areaOf(loopsWithin(sourcesOf(objects, middleOf(objects)), style, gap));
  }

  OdDbDatabasePtr m_drawing = OdDbDatabase::createDatabase();
};

} // namespace

TEST_F(Sources, CurvesOfAllKindsBoundAreas) {
  addRoom();
  addCircle(2, 2, 1);
  add(*odrxMake<OdDbEllipse>(OdGePoint3d{6, 4, 0}, OdGeVector3d::zAxis(), OdGeVector3d{2, 0, 0},
                             0.5));
  EXPECT_NEAR(areaAround(0.5, 7.5), 80 - kOdaPi - 2 * kOdaPi, 1e-9);
  EXPECT_NEAR(areaAround(6, 4), 2 * kOdaPi, 1e-9);
}

TEST_F(Sources, ASplineBoundsAnAreaByItsChords) {
  const auto spline = odrxMake<OdDbSpline>();
  spline->setFitData({{0, 0, 0}, {5, 3, 0}, {10, 0, 0}});
  const OdDbObjectId id = add(*spline);
  addLine(10, 0, 0, 0);
  const OdDbCurvePtr curve = id.openAs<OdDbCurve>();
  double area = 0;
  for (const OdGeCurveSegment& segment : curve->segments(1e-7)) area -= sweptArea(segment);
  ASSERT_GT(area, 10);
  EXPECT_NEAR(areaAround(5, 1), area, 1e-3 * area);
}

TEST_F(Sources, BulgesAreArcs) {
  const auto slot = odrxMake<OdDbPolyline>();
  slot->addVertexAt(0, {0, 0});
  slot->addVertexAt(1, {6, 0}, 1);
  slot->addVertexAt(2, {6, 2});
  slot->addVertexAt(3, {0, 2}, 1);
  slot->setClosed(true);
  add(*slot);
  const auto result = around(3, 1);
  ASSERT_EQ(result.loops.size(), 1u);
  EXPECT_NEAR(result.loops[0].area, 12 + kOdaPi, 1e-9);
  EXPECT_EQ(result.loops[0].pieces.size(), 4u);
}

TEST_F(Sources, WhatIsNotSeenBoundsNothing) {
  addRoom();
  addCircle(2, 2, 1, QStringLiteral("Off"));
  addCircle(5, 2, 1, QStringLiteral("Frozen"));
  const OdDbObjectId hidden = addCircle(8, 2, 1);
  addCircle(2, 6, 1, QStringLiteral("Locked"));
  layerNamed(QStringLiteral("Off")).openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsOff(true);
  layerNamed(QStringLiteral("Frozen"))
      .openAs<OdDbLayerTableRecord>(OdDb::kForWrite)
      ->setIsFrozen(true);
  layerNamed(QStringLiteral("Locked"))
      .openAs<OdDbLayerTableRecord>(OdDb::kForWrite)
      ->setIsLocked(true);
  hidden.openAs<OdDbEntity>(OdDb::kForWrite)->setVisibility(false);
  EXPECT_NEAR(areaAround(9, 7), 80 - kOdaPi, 1e-9) << "only the locked circle is seen";
  addCircle(5, 6, 1).openAs<OdDbEntity>(OdDb::kForWrite)->erase();
  EXPECT_NEAR(areaAround(9, 7), 80 - kOdaPi, 1e-9);
}

TEST_F(Sources, HeightsDoNotCount) {
  add(*odrxMake<OdDbLine>(OdGePoint3d{0, 0, 5}, OdGePoint3d{10, 0, -3}));
  add(*odrxMake<OdDbLine>(OdGePoint3d{10, 0, 1}, OdGePoint3d{10, 8, 2}));
  add(*odrxMake<OdDbLine>(OdGePoint3d{10, 8, 0}, OdGePoint3d{0, 0, 100}));
  EXPECT_NEAR(areaAround(9, 2), 40, 1e-9);
}

TEST_F(Sources, ATiltedCircleIsAnEllipse) {
  add(*odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d{0, 1, 1}.normal(), 2));
  EXPECT_NEAR(areaAround(0.5, 0.5), 4 * kOdaPi * std::sqrt(0.5), 1e-9);
}

TEST_F(Sources, SolidsAreIslands) {
  addRoom();
  add(*odrxMake<OdDbSolid>(OdGePoint3d{2, 2, 0}, OdGePoint3d{4, 2, 0}, OdGePoint3d{2, 5, 0},
                           OdGePoint3d{4, 5, 0}));
  EXPECT_NEAR(areaAround(9, 7), 80 - 6, 1e-9);
}

TEST_F(Sources, TextsAreKeptFreeWithSomeRoom) {
  addRoom();
  const auto text = odrxMake<OdDbText>();
  text->setTextString(QStringLiteral("Room"));
  text->setHeight(1);
  text->setPosition({2, 3, 0});
  const OdDbObjectId id = add(*text);
  OdGeExtents3d box;
  id.openAs<OdDbEntity>()->getGeomExtents(box);
  const auto result = around(9, 7);
  ASSERT_EQ(result.loops.size(), 2u);
  const BoundaryLoop& island = result.loops[1];
  EXPECT_TRUE(island.isText);
  EXPECT_TRUE(island.contains({2 - 1, 3.5 - 1, 0})) << "in the coordinates of the search";
  EXPECT_GT(island.area, (box.maxPoint().x - box.minPoint().x) * 1);
  EXPECT_LT(island.area, 12);
  EXPECT_NEAR(areaOf(around(3, 3.5, IslandStyle::kIgnore).loops), 80, 1e-9);
}

TEST_F(Sources, AttributesOfInsertsAreKeptFreeUnlessInvisible) {
  const auto blocks = m_drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("LABEL"));
  const OdDbObjectId id = blocks->add(block);
  double y = 0;
  for (const bool isInvisible : {false, false, true}) {
    const auto definition = odrxMake<OdDbAttributeDefinition>();
    definition->setTag(QStringLiteral("TAG%1").arg(y));
    definition->setTextString(QStringLiteral("Bath"));
    definition->setHeight(1);
    definition->setPosition({0, y, 0});
    definition->setInvisible(isInvisible);
    block->appendOdDbEntity(definition);
    y += 3;
  }
  addRoom();
  const auto insert = odrxMake<OdDbBlockReference>(id, OdGePoint3d{2, 1.5, 0});
  add(*insert);
  insert->appendAttributesFromBlock();
  const auto result = around(9, 7);
  ASSERT_EQ(result.loops.size(), 3u) << "the room and two words";
  EXPECT_TRUE(result.loops[1].isText);
  EXPECT_TRUE(result.loops[2].isText);
}

TEST_F(Sources, LoopsNameTheirEntities) {
  const OdDbObjectId room = addRoom();
  const OdDbObjectId wall = addLine(5, 0, 5, 8);
  const OdDbObjectId table = addCircle(2, 2, 1);
  addCircle(8, 2, 1);
  const OdGePoint3d origin;
  const BoundarySources sources = visibleSources(*m_drawing, origin);
  const auto result = BoundarySearch(sources.curves, sources.texts, origin, 0)
                          .around({1, 7, 0}, IslandStyle::kOuter);
  ASSERT_EQ(result.loops.size(), 2u);
  EXPECT_EQ(sources.ownersOf(result.loops[0].curves), (std::vector<OdDbObjectId>{room, wall}));
  EXPECT_EQ(sources.ownersOf(result.loops[1].curves), (std::vector<OdDbObjectId>{table}));
}

TEST_F(Sources, ChosenObjectsEncloseAreas) {
  const OdDbObjectId room = addRoom();
  const OdDbObjectId table = addCircle(2, 2, 1);
  const OdDbObjectId far = addCircle(20, 2, 1);
  EXPECT_NEAR(areaWithin({room, table, far}), 80, 1e-9);
  EXPECT_NEAR(areaWithin({room, table}, IslandStyle::kIgnore), 80, 1e-9);
  EXPECT_NEAR(areaWithin({table}), kOdaPi, 1e-9);
  EXPECT_EQ(areaWithin({}), 0);
}

TEST_F(Sources, ChosenObjectsThatTouchStayIslands) {
  const OdDbObjectId outer = addCircle(0, 0, 4);
  const OdDbObjectId inner = addCircle(2, 0, 2);
  EXPECT_NEAR(areaWithin({outer, inner}), 12 * kOdaPi, 1e-9);
}

TEST_F(Sources, OpenObjectsAreJoined) {
  const OdDbObjectId base = addLine(-2, 0, 2, 0);
  const OdDbObjectId arc =
      add(*odrxMake<OdDbArc>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 2.0, 0.0, kOdaPi));
  EXPECT_NEAR(areaWithin({base, arc}), 2 * kOdaPi, 1e-9);
  EXPECT_EQ(areaWithin({arc}), 0);
  EXPECT_NEAR(areaWithin({arc}, IslandStyle::kNormal, 4.1), 2 * kOdaPi, 1e-9);
}

TEST_F(Sources, ASelfCrossingPolylineGivesItsParts) {
  const auto bow = odrxMake<OdDbPolyline>();
  for (const OdGePoint2d& corner : {OdGePoint2d{0, 0}, {4, 4}, {4, 0}, {0, 4}})
    bow->addVertexAt(bow->numVerts(), corner);
  bow->setClosed(true);
  EXPECT_NEAR(areaWithin({add(*bow)}), 8, 1e-9);
}
