// Entities that are kept as the file had them, seen in mirrors.
#include "drawing/objects/raw_object.h"

#include "drawing/contents/audit.h"
#include "drawing/contents/kept_entity.h"
#include "drawing/entities/recorder.h"
#include "drawing/graphics/letter_box.h"

using namespace oddbtest;

namespace {

const OdGeMatrix3d kAcross =
    OdGeMatrix3d::translation({3, -2, 0}) * OdGeMatrix3d::mirroring({}, OdGeVector3d::xAxis());
const OdGeMatrix3d kUpsideDown = OdGeMatrix3d::mirroring({0, 1, 0}, OdGeVector3d::yAxis());
const OdGeMatrix3d kSlanting = OdGeMatrix3d::mirroring({1, 1, 0}, {3, -1, 0});
const OdGeMatrix3d kThroughTheSheet = OdGeMatrix3d::mirroring({}, OdGeVector3d::zAxis());
const OdGeMatrix3d kTilt = OdGeMatrix3d::rotation(0.7, {1, 2, 0.5}, {1, 2, 3});

/// Places that all pieces of an entity's picture stand by.
std::vector<OdGePoint3d> placesOf(const OdDbEntity& entity) {
  Recorder shown;
  entity.worldDraw(shown);
  std::vector<OdGePoint3d> places;
  for (const Recorder::Line& line : shown.lines)
    places.insert(places.end(), line.points.begin(), line.points.end());
  for (const OdGiRings& area : shown.areas)
    for (const auto& ring : area) places.insert(places.end(), ring.begin(), ring.end());
  for (const OdGiTextRun& run : shown.texts)
    places.insert(places.end(), {run.origin, run.origin + run.along, run.origin + run.up});
  for (const auto& [block, transform] : shown.blocks)
    places.insert(places.end(),
                  {transform * OdGePoint3d{0, 0, 0}, transform * OdGePoint3d{1, 0, 0},
                   transform * OdGePoint3d{0, 1, 0}, transform * OdGePoint3d{0, 0, 1}});
  return places;
}

void expectFollows(OdDbEntity& entity, const OdGeMatrix3d& transform) {
  const std::vector<OdGePoint3d> before = placesOf(entity);
  ASSERT_FALSE(before.empty());
  ASSERT_TRUE(entity.transformBy(transform));
  const std::vector<OdGePoint3d> after = placesOf(entity);
  ASSERT_EQ(after.size(), before.size());
  // Arrows are the same from both sides.
  for (const OdGePoint3d& place : before) {
    const OdGePoint3d wanted = transform * place;
    expectNear(*std::ranges::min_element(
                   after, {}, [&](const OdGePoint3d& p) { return p.distanceTo(wanted); }),
               wanted, 1e-6);
  }
}

OdDbRawEntity& rawIn(const OdDbEntityPtr& entity) { return static_cast<OdDbRawEntity&>(*entity); }

OdGiLetterFrame lettersOf(const OdDbEntity& entity, OdGiLetterBox::Of of) {
  OdGiLetterBox box(of);
  entity.worldDraw(box);
  return box.frame().value_or(OdGiLetterFrame());
}

QByteArray tolerance() {
  return head("TOLERANCE") + "100|AcDbFcf|3|Standard|10|1.0|20|2.0|30|0.0|1|{\\Fgdt;j}%%v0.5^JAB|"
                             "11|1.0|21|0.0|31|0.0";
}

/// Two rows, 5 and 7 high, and two columns, 10 and 20 wide.
QByteArray table(const char* more = "") {
  return head("ACAD_TABLE") +
         "100|AcDbBlockReference|2|*T1|10|3.0|20|4.0|30|0.0|100|AcDbTable|342|0|11|1.0|21|0.0|31|"
         "0.0|90|22|91|2|92|2|" +
         more + "141|5.0|141|7.0|142|10.0|142|20.0|171|1|172|0|141|99.0";
}

} // namespace

TEST(RawMirror, MultileadersFollowWhateverMovesThem) {
  for (const OdGeMatrix3d& transform : {kAcross, kSlanting, kThroughTheSheet, kTilt,
                                        kTilt * kAcross, OdGeMatrix3d::scaling(3) * kSlanting}) {
    const OdDbDatabasePtr text = drawingWith(leaderWithText());
    expectFollows(*first(*text), transform);
    expectFollows(*first(*text), kSlanting * kTilt);
    if (transform == kTilt) {
      EXPECT_EQ(auditOf(*text), std::string());
    }
  }
}

TEST(RawMirror, BlocksOfMultileadersFollowToo) {
  for (const OdGeMatrix3d& transform : {kAcross, kSlanting, kThroughTheSheet, kTilt * kAcross}) {
    const OdDbDatabasePtr db = drawingWith(leaderWithBlock(0x1F, 0));
    expectFollows(*first(*db), transform);
    expectFollows(*first(*db), kTilt);
  }
  const OdDbDatabasePtr db = drawingWith(leaderWithBlock(0x1F, 0));
  ASSERT_TRUE(first(*db)->transformBy(kAcross));
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 47), "-1 0 0 -17 0 1 0 8 0 0 1 0 0 0 0 1");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 16), "-1");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 26), "1");
}

TEST(RawMirror, TextsOfMultileadersStayReadableBesideTheirLines) {
  for (const OdGeMatrix3d& mirror : {kAcross, kUpsideDown, kSlanting}) {
    const OdDbDatabasePtr db = drawingWith(leaderWithText());
    const OdDbEntityPtr leader = first(*db);
    const OdGiLetterFrame before = lettersOf(*leader, OdGiLetterBox::Of::kLetters);
    Recorder was;
    leader->worldDraw(was);
    ASSERT_TRUE(rawIn(leader).mirrorReadably(mirror));
    const OdGiLetterFrame after = lettersOf(*leader, OdGiLetterBox::Of::kLetters);
    expectNear(after.middle, mirror * before.middle);
    EXPECT_NEAR(std::abs(after.along.dotProduct(mirror * before.along)), 1, 1e-9);
    EXPECT_GT(after.along.x, 0);
    EXPECT_NEAR(after.along.crossProduct(after.up).z, 1, 1e-9) << "seen from above";
    Recorder now;
    leader->worldDraw(now);
    ASSERT_EQ(now.lines.size(), was.lines.size());
    for (std::size_t i = 0; i < was.lines.size(); ++i)
      for (std::size_t k = 0; k < was.lines[i].points.size(); ++k)
        expectNear(now.lines[i].points[k], mirror * was.lines[i].points[k]);
    if (mirror == kSlanting) {
      EXPECT_EQ(auditOf(*db), std::string());
    }
  }
}

TEST(RawMirror, TolerancesFollowAndStayReadableIfWanted) {
  for (const OdGeMatrix3d& transform : {kAcross, kSlanting, kThroughTheSheet, kTilt}) {
    const OdDbDatabasePtr db = drawingWith(tolerance());
    expectFollows(*first(*db), transform);
    if (transform == kSlanting) {
      EXPECT_EQ(auditOf(*db), std::string());
    }
  }
  for (const OdGeMatrix3d& mirror : {kAcross, kUpsideDown, kSlanting}) {
    const OdDbDatabasePtr db = drawingWith(tolerance());
    const OdDbEntityPtr frames = first(*db);
    OdGeExtents3d box;
    ASSERT_TRUE(frames->getGeomExtents(box));
    const OdGiLetterFrame before = lettersOf(*frames, OdGiLetterBox::Of::kFrames);
    ASSERT_TRUE(rawIn(frames).mirrorReadably(mirror));
    const OdGiLetterFrame after = lettersOf(*frames, OdGiLetterBox::Of::kFrames);
    expectNear(after.middle, mirror * before.middle);
    EXPECT_GT(after.along.x, 0);
    EXPECT_NEAR(after.along.crossProduct(after.up).z, 1, 1e-9);
  }
}

TEST(RawMirror, WhatAFileLeavesOutIsToldWhenItChanges) {
  const OdDbDatabasePtr db = drawingWith(tolerance());
  ASSERT_TRUE(first(*db)->transformBy(OdGeMatrix3d::translation({1, 1, 1})));
  EXPECT_EQ(valuesOf(*db, "TOLERANCE", 230), "");
  ASSERT_TRUE(first(*db)->transformBy(kAcross));
  EXPECT_EQ(valuesOf(*db, "TOLERANCE", 230), "-1");
}

TEST(RawMirror, TablesAreTurnedIntoTheirMirroredPlace) {
  struct Row {
    OdGeMatrix3d mirror;
    const char* more;
    OdGePoint3d place;
    OdGeVector3d direction;
  };
  const OdGeMatrix3d diagonal = OdGeMatrix3d::mirroring({}, {1, -1, 0});
  const Row rows[] = {
      {OdGeMatrix3d::mirroring({}, OdGeVector3d::xAxis()), "", {-33, 4, 0}, {1, 0, 0}},
      {OdGeMatrix3d::mirroring({}, OdGeVector3d::yAxis()), "", {3, 8, 0}, {1, 0, 0}},
      // Rows that follow each other upwards.
      {OdGeMatrix3d::mirroring({}, OdGeVector3d::yAxis()), "70|1|", {3, -16, 0}, {1, 0, 0}},
      {diagonal, "", {-8, 3, 0}, {0, 1, 0}},
  };
  for (const Row& row : rows)
    for (const bool readably : {false, true}) {
      const OdDbDatabasePtr db = drawingWith(table(row.more));
      const OdDbEntityPtr entity = first(*db);
      ASSERT_TRUE(readably ? rawIn(entity).mirrorReadably(row.mirror)
                           : entity->transformBy(row.mirror));
      EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 10), QString::number(row.place.x).toStdString());
      EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 20), QString::number(row.place.y).toStdString());
      EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 11), QString::number(row.direction.x).toStdString());
      EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 21), QString::number(row.direction.y).toStdString());
    }
}

TEST(RawMirror, ScrewsBecomeThoseOfTheOtherHand) {
  const OdDbDatabasePtr db = drawingWith(
      head("HELIX") + "100|AcDbSpline|70|0|71|3|72|0|73|0|74|0|10|1.0|20|0.0|30|0.0|100|"
                      "AcDbHelix|90|29|91|63|10|0.0|20|0.0|30|0.0|11|1.0|21|0.0|31|0.0|"
                      "12|0.0|22|0.0|32|1.0|40|1.0|41|3.0|42|2.0|290|1|280|1");
  ASSERT_TRUE(first(*db)->transformBy(kAcross));
  EXPECT_EQ(valuesOf(*db, "HELIX", 290), "0");
  EXPECT_EQ(valuesOf(*db, "HELIX", 11), "2");
  ASSERT_TRUE(first(*db)->transformBy(kTilt));
  EXPECT_EQ(valuesOf(*db, "HELIX", 290), "0");
  ASSERT_TRUE(first(*db)->transformBy(kAcross));
  EXPECT_EQ(valuesOf(*db, "HELIX", 290), "1");
}
