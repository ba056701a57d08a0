// 3DFACE, XLINE and RAY.
#include "drawing/database.h"
#include "drawing/entities/face.h"
#include "drawing/entities/xline.h"

#include "drawing/entities/recorder.h"

namespace {

const OdGePoint3d kA{0, 0, 0}, kB{4, 0, 1}, kC{4, 3, 2}, kD{0, 3, 3};

Recorder shown(const OdDbEntity& entity) {
  Recorder recorder;
  entity.worldDraw(recorder);
  return recorder;
}

} // namespace

TEST(Faces, ShowTheirEdges) {
  const auto face = odrxMake<OdDbFace>(kA, kB, kC, kD);
  const Recorder whole = shown(*face);
  ASSERT_EQ(whole.lines.size(), 1u);
  EXPECT_TRUE(whole.lines[0].closed);
  EXPECT_EQ(whole.lines[0].points, (std::vector{kA, kB, kC, kD}));
  EXPECT_TRUE(whole.areas.empty());
}

TEST(Faces, OfThreeCornersAreTriangles) {
  const auto face = odrxMake<OdDbFace>(kA, kB, kC, kC);
  EXPECT_EQ(shown(*face).lines.at(0).points, (std::vector{kA, kB, kC}));
}

TEST(Faces, HideTheEdgesThatAreInvisible) {
  const auto face = odrxMake<OdDbFace>(kA, kB, kC, kD);
  face->makeEdgeInvisibleAt(1);
  EXPECT_FALSE(face->isEdgeVisibleAt(1));
  const Recorder two = shown(*face);
  ASSERT_EQ(two.lines.size(), 2u);
  EXPECT_EQ(two.lines[0].points, (std::vector{kA, kB}));
  EXPECT_EQ(two.lines[1].points, (std::vector{kC, kD, kA}));
  for (const unsigned edge : {0u, 2u, 3u}) face->makeEdgeInvisibleAt(edge);
  EXPECT_TRUE(shown(*face).lines.empty());
  face->makeEdgeVisibleAt(3);
  EXPECT_EQ(shown(*face).lines.at(0).points, (std::vector{kD, kA}));
}

TEST(Faces, HaveABoxAndMove) {
  const auto face = odrxMake<OdDbFace>(kA, kB, kC, kD);
  face->makeEdgeInvisibleAt(2);
  ASSERT_TRUE(face->transformBy(OdGeMatrix3d::translation({10, 0, 0}) *
                                OdGeMatrix3d::scaling(2, -1, 3)));
  EXPECT_EQ(face->getVertexAt(1), OdGePoint3d(18, 0, 3));
  EXPECT_FALSE(face->isEdgeVisibleAt(2));
  OdGeExtents3d box;
  ASSERT_TRUE(face->getGeomExtents(box));
  EXPECT_EQ(box.minPoint(), OdGePoint3d(10, -3, 0));
  EXPECT_EQ(box.maxPoint(), OdGePoint3d(18, 0, 9));
  EXPECT_FALSE(face->transformBy(OdGeMatrix3d::scaling(1e308, 1e308, 1e308)));
  EXPECT_EQ(face->getVertexAt(1), OdGePoint3d(18, 0, 3));
}

TEST(Faces, RefuseWhatIsNoCorner) {
  const auto face = odrxMake<OdDbFace>();
  EXPECT_THROW(face->getVertexAt(4), OdError_InvalidIndex);
  EXPECT_THROW(face->setVertexAt(4, kA), OdError_InvalidIndex);
  EXPECT_THROW(face->isEdgeVisibleAt(4), OdError_InvalidIndex);
  EXPECT_THROW(face->makeEdgeInvisibleAt(4), OdError_InvalidIndex);
  EXPECT_THROW(face->setVertexAt(0, {std::nan(""), 0, 0}), OdError);
}

TEST(EndlessLines, RunOneWayOrBoth) {
  const auto xline = odrxMake<OdDbXline>(OdGePoint3d{1, 2, 3}, OdGeVector3d{0, 5, 0});
  const auto ray = odrxMake<OdDbRay>(OdGePoint3d{1, 2, 3}, OdGeVector3d{0, 5, 0});
  for (const OdDbXlinePtr& line : {xline, OdDbXlinePtr(ray)}) {
    const Recorder seen = shown(*line);
    ASSERT_EQ(seen.endlessLines.size(), 1u);
    EXPECT_EQ(seen.endlessLines[0].origin, OdGePoint3d(1, 2, 3));
    EXPECT_EQ(seen.endlessLines[0].direction, OdGeVector3d::yAxis());
    EXPECT_EQ(seen.endlessLines[0].bothWays, line == xline);
    OdGeExtents3d box;
    EXPECT_FALSE(line->getGeomExtents(box));
  }
}

TEST(EndlessLines, KeepALengthOfOneWhereverTheyMove) {
  const auto ray = odrxMake<OdDbRay>(OdGePoint3d{1, 2, 3}, OdGeVector3d{0, 5, 0});
  ASSERT_TRUE(ray->transformBy(OdGeMatrix3d::translation({5, 0, 0}) *
                               OdGeMatrix3d::rotation(kOdaPi / 2, OdGeVector3d::zAxis()) *
                               OdGeMatrix3d::scaling(3, 3, 3)));
  expectNear(ray->basePoint(), {-1, 3, 9});
  expectNear(OdGePoint3d() + ray->unitDir(), {-1, 0, 0});
  const auto flat = odrxMake<OdDbRay>(OdGePoint3d{1, 2, 3}, OdGeVector3d{1, 0, 0});
  EXPECT_FALSE(flat->transformBy(OdGeMatrix3d::scaling(0, 1, 1)));
  expectNear(flat->basePoint(), {1, 2, 3});
  EXPECT_THROW(ray->setUnitDir({}), OdError);
  EXPECT_THROW(ray->setBasePoint({std::nan(""), 0, 0}), OdError);
  const OdDbRayPtr copy = ray->clone();
  expectNear(copy->basePoint(), {-1, 3, 9});
}

TEST(EndlessLines, AreLeftOutOfTheExtents) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  space->appendOdDbEntity(odrxMake<OdDbXline>(OdGePoint3d{9, 9, 9}, OdGeVector3d{1, 0, 0}));
  EXPECT_TRUE(space->extents().isEmpty());
  space->appendOdDbEntity(odrxMake<OdDbFace>(kA, kB, kC, kD));
  EXPECT_EQ(space->extents().maxPoint(), OdGePoint3d(4, 3, 3));
}

TEST(EndlessLines, WithoutADirectionAreMendedAndTold) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  space->appendOdDbEntity(odrxMake<OdDbXline>(OdGePoint3d{9, 9, 9}, OdGeVector3d{1, 0, 0}));
  QByteArray dxf = db->writeDxf();
  const qsizetype at = dxf.indexOf("\n 11\n", dxf.indexOf("AcDbXline"));
  const qsizetype end = dxf.indexOf('\n', at + 5);
  dxf.replace(at, end - at, "\n 11\n0");
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(dxf, QString());
  EXPECT_EQ(back->unknownContent().size(), 1);
  const auto read = back->getModelSpaceId().openAs<OdDbBlockTableRecord>();
  const OdDbXlinePtr line = read->newIterator()->entity();
  EXPECT_EQ(line->unitDir(), OdGeVector3d::xAxis());
}
