#include "drafton/desktop/object_snap.h"

#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/point.h"
#include "drawing/entities/text.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

constexpr int kAll = 1023;

int bit(SnapKind kind) { return static_cast<int>(kind); }

OdDbEntityPtr line(double x1, double y1, double x2, double y2) {
  return odrxMake<OdDbLine>(OdGePoint3d{x1, y1, 0}, OdGePoint3d{x2, y2, 0});
}
OdDbEntityPtr circle(double x, double y, double r) {
  return odrxMake<OdDbCircle>(OdGePoint3d{x, y, 0}, OdGeVector3d::zAxis(), r);
}

struct Row {
  const char* what;
  std::vector<OdDbEntityPtr> entities;
  int kinds;
  OdGePoint3d cursor;
  std::optional<OdGePoint3d> base;
  std::optional<SnapKind> kind; ///< none: no snap
  OdGePoint3d point;
};

TEST(ObjectSnap, EachKindFindsItsPlace) {
  const auto arc =
      odrxMake<OdDbArc>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 10, 0, kOdaPi / 2);
  const auto node = odrxMake<OdDbPoint>(OdGePoint3d{3, 3, 0});
  const auto text = odrxMake<OdDbText>();
  text->setPosition({4, 4, 0});
  const double s = std::sqrt(50);
  const std::vector<Row> rows = {
      {"end", {line(0, 0, 10, 0)}, kAll, {9.7, 0.2, 0}, {}, SnapKind::kEnd, {10, 0, 0}},
      {"middle", {line(0, 0, 10, 0)}, kAll, {5.2, 0.2, 0}, {}, SnapKind::kMiddle, {5, 0, 0}},
      {"middle of an arc",
       {arc},
       bit(SnapKind::kMiddle),
       {s, s, 0},
       {},
       SnapKind::kMiddle,
       {s, s, 0}},
      {"centre from the curve",
       {circle(0, 0, 10)},
       bit(SnapKind::kCenter),
       {s, s, 0},
       {},
       SnapKind::kCenter,
       {0, 0, 0}},
      {"quadrant", {circle(0, 0, 10)}, kAll, {0.2, 9.9, 0}, {}, SnapKind::kQuadrant, {0, 10, 0}},
      {"no quadrant beside the arc", {arc}, bit(SnapKind::kQuadrant), {-10, 0, 0}, {}, {}, {}},
      {"intersection",
       {line(0, 0, 10, 10), line(0, 10, 10, 0)},
       bit(SnapKind::kIntersection),
       {5.2, 5.1, 0},
       {},
       SnapKind::kIntersection,
       {5, 5, 0}},
      {"no intersection where lines end before",
       {line(0, 0, 4, 4), line(0, 10, 10, 0)},
       bit(SnapKind::kIntersection),
       {5, 5, 0},
       {},
       {},
       {}},
      {"perpendicular",
       {line(0, 0, 10, 0)},
       bit(SnapKind::kPerpendicular),
       {3.1, 0.1, 0},
       OdGePoint3d{3, 5, 0},
       SnapKind::kPerpendicular,
       {3, 0, 0}},
      {"perpendicular needs a base",
       {line(0, 0, 10, 0)},
       bit(SnapKind::kPerpendicular),
       {3, 0, 0},
       {},
       {},
       {}},
      {"tangent",
       {circle(0, 0, 5)},
       bit(SnapKind::kTangent),
       {0.2, 5, 0},
       OdGePoint3d{8, 5, 0},
       SnapKind::kTangent,
       {0, 5, 0}},
      {"nearest",
       {line(0, 0, 10, 0)},
       bit(SnapKind::kNearest),
       {7, 0.4, 0},
       {},
       SnapKind::kNearest,
       {7, 0, 0}},
      {"node", {node}, kAll, {3.2, 3, 0}, {}, SnapKind::kNode, {3, 3, 0}},
      {"insertion", {text}, kAll, {4.2, 4, 0}, {}, SnapKind::kInsertion, {4, 4, 0}},
      {"nearest only where nothing else is",
       {line(0, 0, 10, 0)},
       kAll,
       {9.6, 0, 0},
       {},
       SnapKind::kEnd,
       {10, 0, 0}},
      {"too far", {line(0, 0, 10, 0)}, bit(SnapKind::kEnd), {8, 0, 0}, {}, {}, {}},
      {"kinds that are off do not count",
       {line(0, 0, 10, 0)},
       bit(SnapKind::kMiddle),
       {10, 0, 0},
       {},
       {},
       {}},
      {"all off", {line(0, 0, 10, 0)}, kAll | kSnapsOff, {10, 0, 0}, {}, {}, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    const auto snap = findSnap(
        row.entities, {.at = row.cursor, .reach = 0.5, .kinds = row.kinds, .base = row.base});
    ASSERT_EQ(snap.has_value(), row.kind.has_value());
    if (!snap) continue;
    EXPECT_EQ(snap->kind, *row.kind);
    EXPECT_NEAR(snap->point.distanceTo(row.point), 0, 1e-9);
  }
}

TEST(ObjectSnap, LooksIntoBlocksWithTheirPlace) {
  const OdDbDatabasePtr database = OdDbDatabase::createDatabase();
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("b"));
  const OdDbObjectId id =
      database->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  block->appendOdDbEntity(line(0, 0, 1, 0).get());
  const auto insert = odrxMake<OdDbBlockReference>(id, OdGePoint3d{10, 10, 0});
  insert->setScaleFactors({2, 2, 2});
  const std::vector<OdDbEntityPtr> entities{insert};
  const auto snap =
      findSnap(entities, {.at = {12.1, 10, 0}, .reach = 0.5, .kinds = kAll, .base = {}});
  ASSERT_TRUE(snap);
  EXPECT_EQ(snap->kind, SnapKind::kEnd);
  EXPECT_NEAR(snap->point.distanceTo({12, 10, 0}), 0, 1e-9);
}

TEST(ObjectSnap, EachKindHasANameOfItsOwn) {
  QStringList names;
  for (const SnapRow& row : snapKinds()) names << snapName(row.kind);
  EXPECT_EQ(names.size(), 10);
  EXPECT_EQ(names.removeDuplicates(), 0);
}

} // namespace
