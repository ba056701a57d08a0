// What entities show of themselves, and what they fall apart into.
#include "drawing/database.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/attribute.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/solid.h"
#include "drawing/graphics/measure.h"

#include "drawing/entities/recorder.h"

namespace {

OdSmartPtr<OdDbBlockTableRecord> modelSpace(const OdDbDatabasePtr& db) {
  return db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
}

double areaOf(const std::vector<OdGePoint3d>& ring) {
  double sum = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const OdGePoint3d& a = ring[i];
    const OdGePoint3d& b = ring[(i + 1) % ring.size()];
    sum += a.x * b.y - a.y * b.x;
  }
  return std::abs(sum) / 2;
}

const OdGeVector3d kZ = OdGeVector3d::zAxis();

} // namespace

TEST(Shapes, WidePolylinesAreAreasThatMeetInTheirCorners) {
  const auto poly = odrxMake<OdDbPolyline>();
  poly->addVertexAt(0, {0, 0});
  poly->addVertexAt(1, {10, 0});
  poly->addVertexAt(2, {10, 10});
  poly->setConstantWidth(2);
  Recorder draw;
  poly->worldDraw(draw);
  ASSERT_EQ(draw.areas.size(), 2U);
  EXPECT_NEAR(areaOf(draw.areas[0][0]) + areaOf(draw.areas[1][0]), 40, 1e-9);
  OdGeExtents3d box;
  poly->getGeomExtents(box);
  expectNear(box.minPoint(), {0, -1, 0});
  EXPECT_NEAR(box.maxPoint().x, 11, 1e-9);
  // One that tapers, and an arc.
  poly->setWidthsAt(0, 4, 0);
  poly->setBulgeAt(1, 1);
  Recorder again(0.001);
  poly->worldDraw(again);
  ASSERT_EQ(again.areas.size(), 2U);
  EXPECT_NEAR(areaOf(again.areas[0][0]), 20, 1e-9);
  EXPECT_NEAR(areaOf(again.areas[1][0]), kOdaPi * 5 * 2, 0.01);
}

TEST(Shapes, PatternsOfLineTypesRunThroughOnlyWhereTheyShall) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto poly = odrxMake<OdDbPolyline>();
  for (const OdGePoint2d& p : {OdGePoint2d{0, 0}, {5, 0}, {5, 5}})
    poly->addVertexAt(poly->numVerts(), p);
  modelSpace(db)->appendOdDbEntity(poly);
  const auto lines = [&] {
    Recorder draw;
    poly->worldDraw(draw);
    return draw.lines.size();
  };
  // Without gaps nobody sees where a pattern starts.
  EXPECT_EQ(lines(), 1U);
  poly->setLinetype(db->getLinetypeByBlockId());
  EXPECT_EQ(lines(), 2U);
  poly->setPlinegen(true);
  EXPECT_EQ(lines(), 1U);
}

TEST(Shapes, ThicknessIsShownAsBothEndsAndTheEdgesBetween) {
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{5, 0, 0});
  line->setThickness(3);
  Recorder draw;
  line->worldDraw(draw);
  ASSERT_EQ(draw.lines.size(), 4U);
  expectNear(draw.lines[1].points[0], {0, 0, 3});
}

TEST(Shapes, SolidsGoAcrossAndTrianglesHaveThreeCorners) {
  const auto solid = odrxMake<OdDbSolid>(OdGePoint3d{0, 0, 0}, OdGePoint3d{4, 0, 0},
                                         OdGePoint3d{0, 3, 0}, OdGePoint3d{4, 3, 0});
  Recorder draw;
  solid->worldDraw(draw);
  EXPECT_NEAR(areaOf(draw.areas[0][0]), 12, 1e-9);
  EXPECT_TRUE(solid->transformBy(OdGeMatrix3d::scaling(2, 3, 1)));
  OdGeExtents3d box;
  solid->getGeomExtents(box);
  expectNear(box.maxPoint(), {8, 9, 0});
  std::vector<OdDbEntityPtr> edges;
  ASSERT_TRUE(solid->explode(edges));
  EXPECT_EQ(edges.size(), 4U);
  solid->setPointAt(3, solid->getPointAt(2));
  Recorder again;
  solid->worldDraw(again);
  EXPECT_EQ(again.areas[0][0].size(), 3U);
}

TEST(Shapes, MeshesAndPolyfacesShowTheirEdges) {
  const auto mesh = odrxMake<OdDb2dPolyline>(OdDb2dPolyline::kMesh);
  for (int m = 0; m < 3; ++m)
    for (int n = 0; n < 4; ++n) mesh->addVertexAt(mesh->numVerts(), {1.0 * m, 1.0 * n, 0});
  mesh->setMeshSize(3, 4);
  Recorder draw;
  mesh->worldDraw(draw);
  EXPECT_EQ(draw.lines.size(), 3U * 3 + 2 * 4);
  const auto faces = odrxMake<OdDb2dPolyline>(OdDb2dPolyline::kPolyface);
  for (const OdGePoint3d& p : {OdGePoint3d{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}})
    faces->addVertexAt(faces->numVerts(), p);
  OdDbVertexData face;
  face.flags = OdDbVertexData::kPolyfaceVertex;
  face.face = {1, 2, -3, 4};
  faces->insertVertexAt(4, face);
  Recorder again;
  faces->worldDraw(again);
  EXPECT_EQ(again.lines.size(), 3U); // one edge is hidden
  // Counts that a file makes up are only believed as far as there are corners.
  mesh->setMeshSize(2'000'000'000, 2'000'000'000);
  Recorder bounded;
  mesh->worldDraw(bounded);
  EXPECT_LE(bounded.lines.size(), 24U);
}

TEST(Shapes, FittedPolylinesHideTheirFrame) {
  const auto poly = odrxMake<OdDb2dPolyline>();
  const int flags[] = {OdDbVertexData::kSplineFrame, OdDbVertexData::kSplineFit,
                       OdDbVertexData::kSplineFit};
  for (int i = 0; i < 3; ++i) {
    OdDbVertexData v;
    v.point = {1.0 * i, i == 0 ? 100.0 : 0.0, 0};
    v.flags = flags[i];
    poly->insertVertexAt(poly->numVerts(), v);
  }
  OdGeExtents3d box;
  ASSERT_TRUE(poly->getGeomExtents(box));
  expectNear(box.maxPoint(), {2, 0, 0});
}

TEST(Shapes, OldPolylinesKeepTheirCornersThroughUndoAndCopies) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto poly = odrxMake<OdDb2dPolyline>();
  for (int i = 0; i < 3; ++i) poly->addVertexAt(poly->numVerts(), {1.0 * i, 0, 0});
  const OdDbObjectId id = modelSpace(db)->appendOdDbEntity(poly);
  const QByteArray before = db->writeDxf();
  EXPECT_EQ(before.count("\nVERTEX\n"), 3);
  EXPECT_EQ(before.count("\nSEQEND\n"), 1);
  db->startUndoRecord(QStringLiteral("PEDIT"));
  const OdDb2dPolylinePtr live = id.safeOpenObject(OdDb::kForWrite);
  live->addVertexAt(3, {9, 9, 0});
  live->removeVertexAt(0);
  ASSERT_TRUE(live->transformBy(OdGeMatrix3d::scaling(2)));
  const QByteArray after = db->writeDxf();
  EXPECT_EQ(after.count("\nVERTEX\n"), 3);
  EXPECT_NE(before, after);
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
  db->redo();
  EXPECT_EQ(db->writeDxf(), after);
  const OdDb2dPolylinePtr copy = live->clone();
  EXPECT_TRUE(copy->vertexAt(0).entry.isNull());
  modelSpace(db)->appendOdDbEntity(copy);
  EXPECT_EQ(db->writeDxf().count("\nVERTEX\n"), 6);
  EXPECT_EQ(db->writeDxf().count("\nSEQEND\n"), 2);
}

TEST(Shapes, LeadersPointWithTheirHeads) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto leader = odrxMake<OdDbLeader>();
  leader->setDatabaseDefaults(*db);
  leader->appendVertex({0, 0, 0});
  leader->appendVertex({20, 0, 0});
  leader->appendVertex({30, 10, 0});
  modelSpace(db)->appendOdDbEntity(leader);
  Recorder draw;
  leader->worldDraw(draw);
  ASSERT_EQ(draw.areas.size(), 1U);
  // The style Standard of a new drawing has arrows of 2.5.
  expectNear(draw.areas[0][0][0], {0, 0, 0});
  EXPECT_NEAR(areaOf(draw.areas[0][0]), 2.5 * 2.5 / 6, 1e-9);
  ASSERT_EQ(draw.lines.size(), 1U);
  expectNear(draw.lines[0].points[0], {2.5, 0, 0});
  leader->setSplined(true);
  Recorder bent;
  leader->worldDraw(bent);
  EXPECT_GT(bent.lines[0].points.size(), 6U);
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(leader->explode(pieces));
  ASSERT_EQ(pieces.size(), 2U);
  EXPECT_STREQ(pieces[0]->dxfName(), "SPLINE");
  EXPECT_STREQ(pieces[1]->dxfName(), "SOLID");
  leader->setHasArrowHead(false);
  Recorder bare;
  leader->worldDraw(bare);
  EXPECT_TRUE(bare.areas.empty());
}

TEST(Shapes, LeadersTakeTheBlockOfTheirStyleForAHead) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto dot = odrxMake<OdDbBlockTableRecord>();
  dot->setName(QStringLiteral("_DOT"));
  const OdDbObjectId block =
      db->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(dot);
  dot->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{-1, 0, 0}, OdGePoint3d{0, 0, 0}));
  const auto leader = odrxMake<OdDbLeader>();
  leader->setDatabaseDefaults(*db);
  leader->appendVertex({0, 0, 0});
  leader->appendVertex({20, 0, 0});
  modelSpace(db)->appendOdDbEntity(leader);
  // As files have it: the value of the style for this one leader.
  const QByteArray handle = block.getHandle().ascii().toLatin1();
  leader->editResidue().xdata = "1001\nACAD\n1000\nDSTYLE\n1002\n{\n1070\n341\n1005\n" + handle +
                                "\n1070\n41\n1040\n4.0\n1002\n}\n";
  Recorder draw;
  leader->worldDraw(draw);
  ASSERT_EQ(draw.blocks.size(), 1U);
  EXPECT_EQ(draw.blocks[0].first, block);
  // The block's x axis points to the tip.
  expectNear(draw.blocks[0].second * OdGePoint3d{-1, 0, 0}, {4, 0, 0});
  OdGeExtents3d box;
  ASSERT_TRUE(leader->getGeomExtents(box));
  expectNear(box.maxPoint(), {20, 0, 0});
}

TEST(Shapes, AttributesFillInTheTextOfTheirDefinition) {
  const FixedWidth metrics;
  const auto definition = odrxMake<OdDbAttributeDefinition>();
  definition->setTag(QStringLiteral("NUMBER"));
  definition->setPrompt(QStringLiteral("Which?"));
  definition->setTextString(QStringLiteral("0"));
  definition->setPosition({1, 2, 0});
  definition->setHeight(2);
  EXPECT_THROW(definition->setTag(QStringLiteral("two words")), OdError);
  Recorder draw;
  definition->worldDraw(draw);
  EXPECT_EQ(draw.texts[0].text, QStringLiteral("NUMBER"));
  const auto attribute = odrxMake<OdDbAttribute>();
  EXPECT_TRUE(attribute->setAttributeFromBlock(*definition, OdGeMatrix3d::scaling(3)));
  EXPECT_EQ(attribute->tag(), QStringLiteral("NUMBER"));
  EXPECT_EQ(attribute->height(), 6);
  expectNear(attribute->position(), {3, 6, 0});
  attribute->setTextString(QStringLiteral("12"));
  Recorder shown;
  attribute->worldDraw(shown);
  EXPECT_EQ(shown.texts[0].text, QStringLiteral("12"));
  // Unequal scales bend the letters.
  EXPECT_FALSE(attribute->setAttributeFromBlock(*definition, OdGeMatrix3d::scaling(4, 1, 1)));
  EXPECT_NEAR(attribute->widthFactor(), 4, 1e-9);
  attribute->setInvisible(true);
  Recorder hidden;
  attribute->worldDraw(hidden);
  EXPECT_TRUE(hidden.texts.empty());
}

TEST(Shapes, AttributesOfSeveralLinesShowAllOfThem) {
  const FixedWidth metrics;
  const auto attribute = odrxMake<OdDbAttribute>();
  const auto text = odrxMake<OdDbMText>();
  text->setContents(QStringLiteral("one\\Ptwo"));
  attribute->setMTextAttribute(text);
  Recorder draw;
  attribute->worldDraw(draw);
  EXPECT_EQ(draw.texts.size(), 2U);
  const OdDbAttributePtr copy = attribute->clone();
  copy->setTextString(QStringLiteral("only"));
  ASSERT_TRUE(copy->transformBy(OdGeMatrix3d::translation({5, 0, 0})));
  EXPECT_EQ(attribute->getMTextAttribute()->contents(), QStringLiteral("one\\Ptwo"));
  EXPECT_EQ(copy->getMTextAttribute()->contents(), QStringLiteral("only"));
  expectNear(copy->getMTextAttribute()->location(), {5, 0, 0});
  expectNear(attribute->getMTextAttribute()->location(), {0, 0, 0});
}

TEST(Shapes, MeasuringFollowsBlocksButNotInCircles) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto record = odrxMake<OdDbBlockTableRecord>();
  record->setName(QStringLiteral("B"));
  const OdDbObjectId id =
      db->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(record);
  const auto line = odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{1, 0, 0});
  record->appendOdDbEntity(line);
  OdGiMeasure measure;
  measure.block(id, OdGeMatrix3d::rotation(kOdaPi / 2, kZ) * OdGeMatrix3d::scaling(3), *line);
  expectNear(measure.extents().maxPoint(), {0, 3, 0});
}

TEST(Shapes, PointsAreWhereTheyAre) {
  const auto point = odrxMake<OdDbPoint>(OdGePoint3d{1, 2, 3});
  point->setEcsRotation(0.5);
  ASSERT_TRUE(point->transformBy(OdGeMatrix3d::scaling(2)));
  Recorder draw;
  point->worldDraw(draw);
  expectNear(draw.points[0], {2, 4, 6});
  EXPECT_NEAR(point->ecsRotation(), 0.5, 1e-9);
}
