// Areas around points.

#include "engine/boundary/curve_sketch.h"

#include <gtest/gtest.h>

using namespace drafton;
using Outcome = BoundarySearch::Outcome;

namespace {

constexpr double kPi = kOdaPi;

/// A drawing, a point in it, and what is found.
struct Row {
  const char* name;
  Sketch sketch;
  OdGePoint2d point;
  std::size_t loops; ///< 0: nothing closed
  double area = 0;
  IslandStyle style = IslandStyle::kNormal;
  double gap = 0;
};

Sketch room() { return Sketch().box(0, 0, 10, 8); }

/// A room of double walls with a door opening of 1 in the wall to the right.
Sketch roomWithDoor() {
  return Sketch()
      .path({{10, 4}, {10, 8}, {0, 8}, {0, 0}, {10, 0}, {10, 3}})
      .path({{10.2, 4}, {10.2, 8.2}, {-0.2, 8.2}, {-0.2, -0.2}, {10.2, -0.2}, {10.2, 3}});
}

Sketch nested() {
  return Sketch().box(0, 0, 20, 20).box(2, 2, 18, 18).box(4, 4, 16, 16).box(6, 6, 14, 14);
}

const Row kRows[] = {
    {"Room", room(), {5, 4}, 1, 80},
    {"OutsideOfEverything", room(), {11, 4}, 0},
    {"EmptyDrawing", Sketch(), {0, 0}, 0},
    {"LooseLinesOnly", Sketch().line(0, 0, 10, 0).line(0, 1, 10, 1), {5, 0.5}, 0},
    {"LinesThatCrossBeyondTheirCorners",
     Sketch().line(-1, 0, 11, 0).line(-1, 8, 11, 8).line(0, -1, 0, 9).line(10, -1, 10, 9),
     {5, 4},
     1,
     80},
    {"LooseEndsAreLeftOut", room().line(5, 0, 5, 3).line(5, 3, 6, 4), {2, 2}, 1, 80},
    {"WallInTheMiddle", room().line(5, 0, 5, 8), {2, 2}, 1, 40},
    {"IslandOnALead", room().box(4, 3, 6, 5).line(6, 4, 10, 4), {1, 1}, 2, 76},
    {"IslandAtACorner", room().path({{0, 0}, {2, 1}, {1, 2}}, true), {5, 4}, 2, 78.5},
    {"Circle", Sketch().circle(3, 3, 2), {3, 4}, 1, 4 * kPi},
    {"HalfCircle", Sketch().arc(0, 0, 2, 0, 180).line(-2, 0, 2, 0), {0, 1}, 1, 2 * kPi},
    {"ClockwiseArc", Sketch().arc(0, 0, 2, 180, -180).line(-2, 0, 2, 0), {0, 1}, 1, 2 * kPi},
    {"Ellipse", Sketch().ellipse(1, 1, 5, 2, 30), {1, 1}, 1, 10 * kPi},
    {"LineThroughEllipse", Sketch().ellipse(0, 0, 4, 2).line(-9, 0, 9, 0), {0, 1}, 1, 4 * kPi},
    {"LensOfCircles",
     Sketch().circle(0, 0, 2).circle(2, 0, 2),
     {1, 0},
     1,
     4 * (2 * kPi / 3 - std::sqrt(3) / 2)},
    {"MoonOfCircles",
     Sketch().circle(0, 0, 2).circle(2, 0, 2),
     {-1, 0},
     1,
     4 * kPi - 4 * (2 * kPi / 3 - std::sqrt(3) / 2)},
    {"CrossOfEllipses",
     Sketch().ellipse(0, 0, 2, 1).ellipse(0, 0, 2, 1, 90),
     {0, 0},
     1,
     // Four times the piece of the upright one over x = +-2/sqrt(5), by its angle.
     8 * std::atan(0.5)},
    {"CircleInCircleTouching", Sketch().circle(0, 0, 4).circle(2, 0, 2), {-2, 0}, 2, 12 * kPi},
    {"TangentLine", Sketch().circle(0, 0, 2).box(-4, -2, 4, 4), {3, 3}, 2, 48 - 4 * kPi},
    {"RoundedCorners",
     Sketch()
         .line(1, 0, 9, 0)
         .arc(9, 1, 1, 270, 90)
         .line(10, 1, 10, 7)
         .arc(9, 7, 1, 0, 90)
         .line(9, 8, 1, 8)
         .arc(1, 7, 1, 90, 90)
         .line(0, 7, 0, 1)
         .arc(1, 1, 1, 180, 90),
     {5, 4},
     1,
     76 + kPi},
    {"TwiceTheSame", room().box(0, 0, 10, 8).circle(5, 4, 1).circle(5, 4, 1), {1, 1}, 2, 80 - kPi},
    {"TwiceTheSameTurnedRound",
     room()
         .path({{0, 0}, {0, 8}, {10, 8}, {10, 0}}, true)
         .arc(5, 4, 1, 90, 360)
         .arc(5, 4, 1, 30, -360),
     {1, 1},
     2,
     80 - kPi},
    {"PartlyUponEachOther",
     room().line(-5, 0, 3, 0).line(2, 0, 15, 0).line(5, 0, 6, 0),
     {5, 4},
     1,
     80},
    {"ArcsUponEachOther", Sketch().arc(0, 0, 2, 0, 200).arc(0, 0, 2, 150, 250), {0, 0}, 1, 4 * kPi},
    {"NoLength", room().line(5, 4, 5, 4).line(0, 0, 0, 0).circle(3, 3, 0), {5, 5}, 1, 80},
    {"BowTie", Sketch().path({{0, 0}, {4, 4}, {4, 0}, {0, 4}}, true), {1, 2}, 1, 4},
    {"IslandsNormal", nested(), {1, 1}, 4, 400 - 256 + 144 - 64},
    {"IslandsOuter", nested(), {1, 1}, 2, 400 - 256, IslandStyle::kOuter},
    {"IslandsIgnored", nested(), {1, 1}, 1, 400, IslandStyle::kIgnore},
    {"FromWithinAnIsland", nested(), {5, 5}, 2, 144 - 64},
    {"DividedIsland",
     Sketch().box(0, 0, 20, 20).box(5, 5, 15, 15).line(10, 5, 10, 15).box(6, 6, 8, 8),
     {1, 1},
     3,
     400 - 100 + 4},
    {"NeighbourHoldsIslands",
     room().line(5, 0, 5, 8).circle(7, 4, 1).circle(2, 4, 1),
     {1, 1},
     2,
     40 - kPi},
    {"IslandsThatTouchEachOther",
     Sketch().box(0, 0, 20, 20).box(4, 4, 8, 8).box(8, 8, 12, 12),
     {1, 1},
     3,
     400 - 32},
    {"IslandInATouchingIsland",
     Sketch()
         .box(0, 0, 20, 20)
         .path({{0, 10}, {10, 2}, {18, 10}, {10, 18}}, true)
         .circle(10, 10, 2),
     {1, 1},
     3,
     400 - 18 * 16 / 2.0 + 4 * kPi},
    {"Text", room().text(4, 3, 6, 5), {1, 1}, 2, 76},
    {"TextInAnIsland", room().box(3, 2, 7, 6).text(4, 3, 6, 5), {1, 1}, 2, 64},
    {"TextOverTheEdge", room().text(9, 3, 11, 5), {1, 1}, 1, 78},
    {"TextOverAnIsland", room().box(3, 2, 7, 6).text(6, 3, 8, 5), {1, 1}, 2, 80 - 16 - 2},
    {"TextAcross", room().text(4, -1, 6, 9), {1, 1}, 2, 64},
    {"TextElsewhere", room().text(20, 3, 26, 5), {1, 1}, 1, 80},
    {"TextIgnored", room().text(4, 3, 6, 5), {1, 1}, 1, 80, IslandStyle::kIgnore},
    {"GapWithin",
     Sketch().path({{10, 4}, {10, 8}, {0, 8}, {0, 0}, {10, 0}, {10, 3.5}}),
     {5, 4},
     1,
     80,
     IslandStyle::kNormal,
     0.5},
    {"GapBeyond",
     Sketch().path({{10, 4}, {10, 8}, {0, 8}, {0, 0}, {10, 0}, {10, 3.4}}),
     {5, 4},
     0,
     0,
     IslandStyle::kNormal,
     0.5},
    {"GapWithoutTolerance",
     Sketch().path({{10, 4}, {10, 8}, {0, 8}, {0, 0}, {10, 0}, {10, 3.9999}}),
     {5, 4},
     0},
    {"GapInACircle",
     Sketch().arc(0, 0, 5, 5, 350),
     {0, 0},
     1,
     25 * (350 * kPi / 180 + std::sin(10 * kPi / 180)) / 2,
     IslandStyle::kNormal,
     1},
    {"GapAtACorner",
     Sketch().line(0.1, 0, 10, 0).line(10, 0, 10, 8).line(10, 8, 0, 8).line(0, 8, 0, 0.1),
     {5, 4},
     1,
     80 - 0.005,
     IslandStyle::kNormal,
     0.2},
    {"GapBeforeAWall",
     Sketch().path({{0, 9}, {0, 0}, {10, 0}, {10, 9}}).line(0, 8, 9.8, 8),
     {5, 4},
     1,
     80,
     IslandStyle::kNormal,
     0.3},
    {"DoorInDoubleWalls", roomWithDoor(), {5, 4}, 1, 80, IslandStyle::kNormal, 1},
    {"DoorOpen", roomWithDoor(), {5, 4}, 0, 0, IslandStyle::kNormal, 0.9},
    {"DoorWithItsSwing",
     roomWithDoor().line(10, 3, 9, 3).arc(10, 3, 1, 90, 90),
     {5, 4},
     1,
     80 - kPi / 4},
    {"EdgesUnderTheTolerance",
     Sketch().path({{0, 0}, {10, 0}, {10, 8}, {0, 8}, {1e-9, 1e-9}}),
     {5, 4},
     1,
     80},
};

class Areas : public ::testing::TestWithParam<Row> {
 protected:
  static void expectFound(const BoundarySearch::Result& result, const Row& row) {
    if (row.loops == 0) {
      EXPECT_EQ(result.outcome, Outcome::kOpen);
      EXPECT_TRUE(result.loops.empty());
      return;
    }
    ASSERT_EQ(result.outcome, Outcome::kFound);
    EXPECT_EQ(result.loops.size(), row.loops);
    EXPECT_NEAR(areaOf(result.loops), row.area, 1e-6 * row.area);
  }
};

} // namespace

TEST_P(Areas, AreFound) {
  const Row& row = GetParam();
  expectFound(row.sketch.around(row.point.x, row.point.y, row.style, row.gap), row);
}

TEST_P(Areas, AreFoundFarAway) {
  // As in a drawing in a country's coordinates: the curves are shifted before they are searched.
  const Row& row = GetParam();
  const OdGePoint3d origin{3.5e6, 5.4e6, 0};
  OdGeCurveSegments flat;
  Sketch there = row.sketch;
  there.moved(origin.x, origin.y);
  for (const OdGeCurveSegment& curve : there.curves) appendFlat(curve, origin, flat);
  const BoundarySearch search(flat, row.sketch.texts, origin, row.gap);
  expectFound(search.around({row.point.x, row.point.y, 0}, row.style), row);
}

TEST_P(Areas, AreFoundAmongManyOtherCurves) {
  const Row& row = GetParam();
  Sketch full = row.sketch;
  for (int i = 0; i < 40; ++i)
    for (int k = 0; k < 40; ++k) full.box(100 + 9 * i, 100 + 9 * k, 104 + 9 * i, 105 + 9 * k);
  expectFound(full.around(row.point.x, row.point.y, row.style, row.gap), row);
}

TEST_P(Areas, AreFoundWhateverTheOrder) {
  const Row& row = GetParam();
  Sketch back = row.sketch;
  std::reverse(back.curves.begin(), back.curves.end());
  for (OdGeCurveSegment& curve : back.curves) curve = curve.reversed();
  expectFound(back.around(row.point.x, row.point.y, row.style, row.gap), row);
}

TEST_P(Areas, AreFoundTurned) {
  const Row& row = GetParam();
  if (!row.sketch.texts.empty()) return; // their boxes do not turn
  for (const double angle : {0.3, 1.1, kPi / 2, 2.0, kPi}) {
    const OdGeMatrix3d turn = OdGeMatrix3d::rotation(angle, OdGeVector3d::zAxis());
    Sketch turned = row.sketch;
    for (OdGeCurveSegment& curve : turned.curves) curve = curve.transformed(turn);
    const OdGePoint3d point = turn * OdGePoint3d{row.point.x, row.point.y, 0};
    expectFound(turned.around(point.x, point.y, row.style, row.gap), row);
  }
}

INSTANTIATE_TEST_SUITE_P(Boundaries, Areas, ::testing::ValuesIn(kRows),
                         [](const ::testing::TestParamInfo<Row>& row) {
                           return std::string(row.param.name);
                         });

TEST(BoundarySearch, SaysWhenThePointLiesOnACurve) {
  EXPECT_EQ(room().around(0, 4).outcome, Outcome::kOnCurve);
  EXPECT_EQ(room().around(10, 8).outcome, Outcome::kOnCurve);
  EXPECT_EQ(Sketch().circle(0, 0, 5).around(3, 4).outcome, Outcome::kOnCurve);
  EXPECT_EQ(room().around(1e-3, 4).outcome, Outcome::kFound);
}

TEST(BoundarySearch, KeepsArcsAsArcs) {
  const auto result = Sketch().circle(0, 0, 5).line(-9, 0, 9, 0).line(0, 0, 0, -9).around(0, 1);
  ASSERT_EQ(result.loops.size(), 1u);
  const BoundaryLoop& loop = result.loops.front();
  ASSERT_EQ(loop.pieces.size(), 2u) << "what is cut only from outside is whole again";
  EXPECT_EQ(arcsIn(loop), 1u);
  const OdGeCurveSegment& arc = loop.pieces[0].isLine() ? loop.pieces[1] : loop.pieces[0];
  EXPECT_DOUBLE_EQ(arc.radius(), 5);
  EXPECT_NEAR(std::abs(arc.sweep), kPi, 1e-12);
}

TEST(BoundarySearch, AWholeCircleStaysOnePiece) {
  // Loose lines cut it in three places.
  const auto result =
      Sketch().circle(0, 0, 5).line(5, 0, 7, 0).line(0, 5, 0, 7).line(-5, 0, -7, 0).around(1, 1);
  ASSERT_EQ(result.loops.size(), 1u);
  ASSERT_EQ(result.loops.front().pieces.size(), 1u);
  EXPECT_NEAR(std::abs(result.loops.front().pieces.front().sweep), 2 * kPi, 1e-12);
}

TEST(BoundarySearch, NamesTheCurvesThatBoundTheArea) {
  const auto result = room().line(5, 0, 5, 8).line(7, 1, 8, 1).circle(2, 4, 1).around(1, 1);
  ASSERT_EQ(result.loops.size(), 2u);
  EXPECT_EQ(result.loops[0].curves, (std::vector<PlanarGraph::Index>{0, 2, 3, 4}));
  EXPECT_EQ(result.loops[1].curves, (std::vector<PlanarGraph::Index>{6}));
}

TEST(BoundarySearch, BridgesHaveNoSource) {
  const auto result = Sketch()
                          .path({{10, 4}, {10, 8}, {0, 8}, {0, 0}, {10, 0}, {10, 3.5}})
                          .around(5, 4, IslandStyle::kNormal, 0.5);
  ASSERT_EQ(result.loops.size(), 1u);
  EXPECT_EQ(result.loops[0].curves, (std::vector<PlanarGraph::Index>{0, 1, 2, 3, 4}));
  EXPECT_EQ(result.loops[0].pieces.size(), 6u);
}

TEST(BoundarySearch, LoopsAreClosedAndCounterclockwise) {
  for (const Row& row : kRows) {
    for (const BoundaryLoop& loop :
         row.sketch.around(row.point.x, row.point.y, row.style, row.gap).loops) {
      double area = 0;
      for (std::size_t i = 0; i < loop.pieces.size(); ++i) {
        area += sweptArea(loop.pieces[i]);
        EXPECT_EQ(loop.pieces[i].end, loop.pieces[(i + 1) % loop.pieces.size()].start) << row.name;
      }
      EXPECT_NEAR(area, loop.area, 1e-9 * loop.area) << row.name;
    }
  }
}

TEST(BoundarySearch, GivesUpOnNumbersThatCannotBeCalculatedWith) {
  OdGeCurveSegments flat;
  const double far = 1e200, none = std::nan("");
  appendFlat(OdGeCurveSegment::line({0, 0, 0}, {far, 0, 0}), {}, flat);
  appendFlat(OdGeCurveSegment::line({none, 0, 0}, {1, 0, 0}), {}, flat);
  EXPECT_TRUE(flat.empty());
  Sketch wide = room();
  wide.line(-1e50, -1e50, 1e50, -1e50);
  EXPECT_EQ(wide.around(1e49, 1e49).outcome, Outcome::kOpen);
  EXPECT_NEAR(areaOf(wide.around(5, 4).loops), 80, 1e-6);
}

TEST(BoundarySearch, ACircleSeenFromItsEdgeIsALine) {
  OdGeCurveSegments flat;
  appendFlat(OdGeCurveSegment::arc({5, 0, 3}, {5, 0, 0}, {0, 0, 5}, 0.5, 2 * kPi), {}, flat);
  double length = 0;
  for (const OdGeCurveSegment& piece : flat) {
    EXPECT_TRUE(piece.isLine());
    length += piece.length();
  }
  EXPECT_NEAR(length, 20, 1e-9);
  Sketch sketch;
  sketch.curves = flat;
  sketch.path({{10, 0}, {10, 8}, {0, 8}, {0, 0}});
  EXPECT_NEAR(areaOf(sketch.around(5, 4).loops), 80, 1e-9);
}

TEST(ClosedOutlines, AreFoundWithWhatStandsInThem) {
  const Sketch sketch = nested().line(20, 20, 30, 30).box(40, 0, 42, 2);
  const BoundaryLoops loops = closedOutlines(sketch.curves, {}, 0);
  EXPECT_EQ(loops.size(), 5u);
  EXPECT_NEAR(areaOf(loops), 400 - 256 + 144 - 64 + 4, 1e-9);
}

TEST(ClosedOutlines, CloseGaps) {
  const Sketch sketch = Sketch().path({{10, 4}, {10, 8}, {0, 8}, {0, 0}, {10, 0}, {10, 3.5}});
  EXPECT_TRUE(closedOutlines(sketch.curves, {}, 0.4).empty());
  EXPECT_NEAR(areaOf(closedOutlines(sketch.curves, {}, 0.5)), 80, 1e-9);
}
