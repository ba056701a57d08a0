// Hatches: what they fill, and how they move.
#include "drawing/entities/hatch.h"
#include "drawing/entities/line.h"
#include "drawing/entities/point.h"
#include "drawing/graphics/measure.h"

#include "drawing/contents/support.h"

using namespace oddbtest;
using namespace OdHatchEdge;

namespace {

OdDbHatchLoop square(double x, double y, double size, int flags = OdDbHatchLoop::kExternal) {
  OdDbHatchLoop loop;
  loop.flags = flags | OdDbHatchLoop::kPolyline;
  loop.vertices = {{{x, y}, 0}, {{x + size, y}, 0}, {{x + size, y + size}, 0}, {{x, y + size}, 0}};
  return loop;
}

/// A square of 10 with islands in islands.
OdDbHatchPtr nested(OdDbHatch::HatchStyle style) {
  const auto hatch = odrxMake<OdDbHatch>();
  hatch->appendLoop(square(0, 0, 10));
  hatch->appendLoop(square(2, 2, 6));
  hatch->appendLoop(square(4, 4, 2));
  hatch->setHatchStyle(style);
  return hatch;
}

OdHatchPattern stripes() {
  OdHatchPattern pattern;
  pattern.name = QStringLiteral("STRIPES");
  pattern.lines = {{0, {0, 0}, {0, 1}, {}}};
  return pattern;
}

/// Collects what is shown.
struct Recorder : OdGiMeasure {
  using OdGiMeasure::OdGiMeasure;
  std::vector<OdGePoint3d> ends;
  OdGiRings filled;
  std::optional<OdGiGradient> shade;
  std::vector<std::optional<OdCmColor>> colors;
  void strokes(std::span<const OdGePoint3d> all) override { ends.assign(all.begin(), all.end()); }
  void area(const OdGiRings& rings) override { filled = rings; }
  void gradient(const OdGiRings& rings, const OdGiGradient& g) override {
    filled = rings;
    shade = g;
  }
  void setPieceColor(const std::optional<OdCmColor>& color) override { colors.push_back(color); }
};

} // namespace

TEST(Hatches, FillByTheirStyle) {
  EXPECT_NEAR(nested(OdDbHatch::kNormal)->getArea(), 100 - 36 + 4, 1e-9);
  EXPECT_NEAR(nested(OdDbHatch::kOuter)->getArea(), 100 - 36, 1e-9);
  EXPECT_NEAR(nested(OdDbHatch::kIgnore)->getArea(), 100, 1e-9);
}

TEST(Hatches, KnowEveryKindOfEdge) {
  // A half circle of radius 2 on each of two parallel lines.
  const auto stadium = [](bool forwards) {
    OdDbHatchLoop loop;
    loop.flags = OdDbHatchLoop::kExternal;
    if (forwards)
      loop.edges = {Line{{0, 0}, {10, 0}}, Arc{{10, 2}, 2, -kOdaPi / 2, kOdaPi / 2, true},
                    Line{{10, 4}, {0, 4}}, Arc{{0, 2}, 2, kOdaPi / 2, 3 * kOdaPi / 2, true}};
    else // Angles of clockwise arcs are counted clockwise.
      loop.edges = {Line{{10, 0}, {0, 0}}, Arc{{0, 2}, 2, kOdaPi / 2, 3 * kOdaPi / 2, false},
                    Line{{0, 4}, {10, 4}}, Arc{{10, 2}, 2, -kOdaPi / 2, kOdaPi / 2, false}};
    const auto hatch = odrxMake<OdDbHatch>();
    hatch->appendLoop(loop);
    return hatch;
  };
  EXPECT_NEAR(stadium(true)->getArea(), 40 + 4 * kOdaPi, 1e-2);
  EXPECT_NEAR(stadium(false)->getArea(), 40 + 4 * kOdaPi, 1e-2);

  OdDbHatchLoop oval;
  oval.edges = {Ellipse{{1, 1}, {3, 4}, 0.4, 0, 2 * kOdaPi, true}};
  const auto hatch = odrxMake<OdDbHatch>();
  hatch->appendLoop(oval);
  EXPECT_NEAR(hatch->getArea(), kOdaPi * 5 * 2, 1e-2);

  OdDbHatchLoop curved;
  curved.edges = {Spline{3,
                         false,
                         false,
                         {0, 0, 0, 0, 1, 1, 1, 1},
                         {},
                         {{0, 0}, {0, 6}, {6, 6}, {6, 0}},
                         {},
                         {},
                         {}},
                  Line{{6, 0}, {0, 0}}};
  hatch->setLoops({curved});
  // A cubic over the control points of a square arch encloses six tenths of its box and a bit.
  EXPECT_NEAR(hatch->getArea(), 6 * 6 * 0.6, 1e-2);
}

TEST(Hatches, GiveTheSameLoopFromItsPieces) {
  OdDbHatchLoop loop;
  loop.flags = OdDbHatchLoop::kExternal;
  loop.edges = {Line{{0, 0}, {10, 0}}, Arc{{10, 2}, 2, -kOdaPi / 2, kOdaPi / 2, true},
                Line{{10, 4}, {0, 4}}, Arc{{0, 2}, 2, kOdaPi / 2, 3 * kOdaPi / 2, true}};
  const OdDbHatchLoop made = OdDbHatchLoop::fromSegments(loop.segments(0));
  ASSERT_TRUE(made.isPolyline());
  ASSERT_EQ(made.vertices.size(), 4u);
  EXPECT_NEAR(made.vertices[1].bulge, 1, 1e-9);
  OdDbHatchLoop oval;
  oval.edges = {Ellipse{{1, 1}, {3, 4}, 0.4, 0.5, 2.5, true},
                Ellipse{{1, 1}, {3, 4}, 0.4, 0.5, 2.5, false}};
  const OdDbHatchLoop back = OdDbHatchLoop::fromSegments(oval.segments(0));
  ASSERT_EQ(back.edges.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) {
    const auto& e = std::get<Ellipse>(back.edges[i]);
    const auto& was = std::get<Ellipse>(oval.edges[i]);
    EXPECT_NEAR(e.majorAxis.x, 3, 1e-9);
    EXPECT_NEAR(e.ratio, 0.4, 1e-9);
    EXPECT_NEAR(e.startAngle, was.startAngle, 1e-9);
    EXPECT_NEAR(e.endAngle, was.endAngle, 1e-9);
    EXPECT_EQ(e.counterclockwise, was.counterclockwise);
  }
}

TEST(Hatches, KeepTheirShapeThroughEveryTransformation) {
  OdDbHatchLoop loop;
  loop.edges = {Line{{0, 0}, {10, 0}}, Arc{{10, 2}, 2, -kOdaPi / 2, kOdaPi / 2, true},
                Ellipse{{5, 4}, {5, 0}, 0.4, 0, kOdaPi, true},
                Spline{3,
                       false,
                       false,
                       {0, 0, 0, 0, 1, 1, 1, 1},
                       {},
                       {{0, 4}, {-2, 3}, {-2, 1}, {0, 0}},
                       {},
                       {},
                       {}}};
  OdDbHatchLoop bulged;
  bulged.flags = OdDbHatchLoop::kPolyline;
  bulged.vertices = {{{2, 1}, 1}, {{4, 1}, 0.5}};
  const OdGeMatrix3d all[] = {
      OdGeMatrix3d::rotation(0.7, OdGeVector3d::zAxis(), {1, 2, 0}),
      OdGeMatrix3d::rotation(1.1, OdGeVector3d{0.36, 0.48, 0.8}, {1, 2, 3}),
      OdGeMatrix3d::scaling(2.5),
      OdGeMatrix3d::scaling(2, 0.5, 1),
      OdGeMatrix3d::rotation(0.4, OdGeVector3d::zAxis()) * OdGeMatrix3d::scaling(3, 1, 1),
      OdGeMatrix3d::mirroring({2, 1, 0}, OdGeVector3d{0.6, 0.8, 0}),
  };
  for (const OdGeMatrix3d& transform : all) {
    const auto hatch = odrxMake<OdDbHatch>();
    hatch->setElevation(1.5);
    hatch->appendLoop(loop);
    hatch->appendLoop(bulged);
    // Between the corners, where rounding decides nothing.
    hatch->setOriginPoint({0, 0.37});
    hatch->setPattern(OdDbHatch::kPreDefined, QStringLiteral("STRIPES"), stripes());
    const OdDbHatchPtr moved = hatch->clone();
    ASSERT_TRUE(moved->transformBy(transform));
    Recorder before(1e-4);
    Recorder after(1e-4);
    hatch->worldDraw(before);
    moved->worldDraw(after);
    SCOPED_TRACE(&transform - all);
    ASSERT_EQ(before.ends.size(), after.ends.size());
    // Strokes may run the other way, but lie on each other.
    for (const OdGePoint3d& end : before.ends) {
      const OdGePoint3d wanted = transform * end;
      const double nearest = [&] {
        double best = 1e9;
        for (const OdGePoint3d& p : after.ends) best = std::min(best, p.distanceTo(wanted));
        return best;
      }();
      EXPECT_LT(nearest, 2e-2);
    }
  }
}

TEST(Hatches, DrawTheirPatternAtItsScaleAngleAndOrigin) {
  const auto hatch = odrxMake<OdDbHatch>();
  hatch->appendLoop(square(0, 0, 10));
  hatch->setPattern(OdDbHatch::kPreDefined, QStringLiteral("STRIPES"), stripes());
  hatch->setOriginPoint({0, 0.5});
  hatch->setPatternScale(2);
  Recorder seen;
  hatch->worldDraw(seen);
  // 0.5, 2.5, 4.5, 6.5, 8.5
  EXPECT_EQ(seen.ends.size(), 10u);
  hatch->setPatternAngle(kOdaPi / 2);
  Recorder turned;
  hatch->worldDraw(turned);
  ASSERT_GE(turned.ends.size(), 10u);
  EXPECT_NEAR(turned.ends[0].x, turned.ends[1].x, 1e-9);
  EXPECT_THROW(hatch->setPatternScale(0), OdError);
}

TEST(Hatches, DrawLinesOfTheirOwn) {
  const auto hatch = odrxMake<OdDbHatch>();
  hatch->appendLoop(square(0.25, 0.25, 10));
  hatch->setPatternSpace(2);
  hatch->setPattern(OdDbHatch::kUserDefined, QStringLiteral("_USER"));
  EXPECT_EQ(hatch->patternLines().size(), 1u);
  hatch->setPatternDouble(true);
  EXPECT_EQ(hatch->patternLines().size(), 2u);
  Recorder seen;
  hatch->worldDraw(seen);
  EXPECT_EQ(seen.ends.size(), 20u);
}

TEST(Hatches, ShowFillingsGradientsAndGrounds) {
  const auto hatch = nested(OdDbHatch::kNormal);
  Recorder solid;
  hatch->worldDraw(solid);
  EXPECT_EQ(solid.filled.size(), 3u);
  hatch->setGradient(true);
  hatch->setGradientName(QStringLiteral("invcurved"));
  hatch->setGradientAngle(0.5);
  hatch->setGradientShift(1);
  hatch->setGradientColors(OdCmColor::fromRgb(200, 100, 0), OdCmColor::fromRgb(1, 2, 3));
  Recorder shaded;
  hatch->worldDraw(shaded);
  ASSERT_TRUE(shaded.shade);
  EXPECT_EQ(shaded.shade->name, QStringLiteral("INVCURVED"));
  EXPECT_EQ(shaded.shade->second, OdCmColor::fromRgb(1, 2, 3));
  hatch->setGradientOneColorMode(true);
  hatch->setShadeTintValue(1);
  EXPECT_EQ(hatch->gradientColor2(), OdCmColor::fromRgb(255, 255, 255));
  hatch->setShadeTintValue(0);
  EXPECT_EQ(hatch->gradientColor2(), OdCmColor::fromRgb(0, 0, 0));
  hatch->setShadeTintValue(0.5);
  EXPECT_EQ(hatch->gradientColor2(), OdCmColor::fromRgb(200, 100, 0));
  hatch->setPattern(OdDbHatch::kPreDefined, QStringLiteral("STRIPES"), stripes());
  EXPECT_FALSE(hatch->isGradient());
  hatch->setBackgroundColor(OdCmColor::fromColorIndex(3));
  Recorder grounded;
  hatch->worldDraw(grounded);
  EXPECT_EQ(grounded.filled.size(), 3u);
  ASSERT_EQ(grounded.colors.size(), 2u);
  EXPECT_EQ(grounded.colors[0], OdCmColor::fromColorIndex(3));
  EXPECT_FALSE(grounded.ends.empty());
}

TEST(Hatches, FallIntoLinesAndPoints) {
  const auto hatch = odrxMake<OdDbHatch>();
  hatch->appendLoop(square(0.5, 0.5, 4));
  hatch->setElevation(3);
  hatch->setColor(OdCmColor::fromColorIndex(2));
  OdHatchPattern pattern = stripes();
  pattern.lines.push_back({0, {0, 0.5}, {0, 1}, {0, -1}});
  hatch->setPattern(OdDbHatch::kPreDefined, pattern.name, pattern);
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(hatch->explode(pieces));
  int points = 0;
  for (const OdDbEntityPtr& piece : pieces) {
    EXPECT_EQ(piece->color(), OdCmColor::fromColorIndex(2));
    if (const auto* point = odrxCast<OdDbPoint>(piece.get())) {
      ++points;
      EXPECT_EQ(point->position().z, 3);
    } else {
      EXPECT_TRUE(odrxCast<OdDbLine>(piece.get()));
    }
  }
  EXPECT_GT(points, 0);
  pieces.clear();
  EXPECT_FALSE(nested(OdDbHatch::kNormal)->explode(pieces));
  EXPECT_TRUE(pieces.empty());
}

TEST(Hatches, AreAsTheyWereAfterUndo) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbHatchPtr hatch = nested(OdDbHatch::kOuter);
  addTo(*db, hatch);
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("CHANGE"));
  hatch->upgradeOpen();
  hatch->setPattern(OdDbHatch::kPreDefined, QStringLiteral("STRIPES"), stripes());
  hatch->setOriginPoint({1, 2});
  hatch->setBackgroundColor(OdCmColor::fromColorIndex(3));
  hatch->removeLoopAt(1);
  hatch->transformBy(OdGeMatrix3d::scaling(2));
  db->endUndoRecord();
  EXPECT_NE(db->writeDxf(), before);
  db->undo();
  const QByteArray after = db->writeDxf();
  EXPECT_EQ(after, before);
}
