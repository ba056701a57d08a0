#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/patterns/linetype_file.h"
#include "drawing/patterns/pattern_file.h"
#include "render/picture_fixture.h"

namespace render_test {
namespace {

class PatternPictures : public PictureTest {
 protected:
  static OdString dataPath(const char* name) {
    return QStringLiteral(SOURCE_DIR "/drafton/engine/data/%1").arg(QLatin1String(name));
  }

  /// Samples of patterns, each with its name below.
  QImage contactSheet(std::size_t first, std::size_t count) {
    const OdHatchPatternFile file = OdHatchPatternFile::read(dataPath("draftoniso.pat"));
    constexpr int kColumns = 8;
    constexpr double kCell = 44;
    const std::size_t last = std::min(first + count, file.patterns().size());
    for (std::size_t i = first; i < last; ++i) {
      const auto column = static_cast<int>((i - first) % kColumns);
      const auto row = static_cast<int>((i - first) / kColumns);
      const double x = column * kCell, y = -row * kCell;
      const OdHatchPattern& pattern = file.patterns()[i];
      auto hatch = hatchOf(x + 2, y + 8, x + kCell - 2, y + kCell - 2);
      hatch->setPattern(OdDbHatch::kPreDefined, pattern.name, pattern);
      add(hatch);
      addText(pattern.name, x + 2, y + 2, 3);
    }
    const int rows = static_cast<int>((last - first + kColumns - 1) / kColumns);
    return picture(0, -(rows - 1) * kCell, kColumns * kCell, kCell, {kColumns * 120, rows * 120});
  }
};

TEST_F(PatternPictures, FirstHalfOfThePatterns) {
  EXPECT_TRUE(looksLike(contactSheet(0, 44), "patterns1", {120, 120}));
}

TEST_F(PatternPictures, SecondHalfOfThePatterns) {
  EXPECT_TRUE(looksLike(contactSheet(44, 100), "patterns2", {120, 120}));
}

TEST_F(PatternPictures, EveryLineType) {
  const OdLinetypeFile file = OdLinetypeFile::read(dataPath("draftoniso.lin"));
  double y = 0;
  for (const OdLinetypeDefinition& linetype : file.linetypes()) {
    auto line = odrxMake<OdDbLine>(OdGePoint3d{80, y, 0}, OdGePoint3d{280, y, 0});
    line->setDatabaseDefaults(database());
    line->setLinetype(linetype.addTo(database()));
    add(line);
    addText(linetype.name, 2, y - 2, 4);
    y -= 10;
  }
  // The names are in the left part, each line is a cell of its own.
  EXPECT_TRUE(looksLike(picture(0, y - 5, 285, 5, {855, static_cast<int>(3 * (10 - y))}),
                        "linetypes", {235, 30}));
}

TEST_F(PatternPictures, LineTypesFollowCurvesAndCorners) {
  const OdLinetypeFile file = OdLinetypeFile::read(dataPath("draftoniso.lin"));
  const auto dashed = [&](OdDbEntity* entity, const char16_t* name, int color) {
    entity->setDatabaseDefaults(database());
    entity->setLinetype(file.find(OdString::fromUtf16(name))->addTo(database()));
    entity->setColor(OdCmColor::fromColorIndex(color));
    add(entity);
  };
  dashed(odrxMake<OdDbCircle>(OdGePoint3d{-60, 30, 0}, OdGeVector3d::zAxis(), 40), u"DASHED", 7);
  dashed(odrxMake<OdDbCircle>(OdGePoint3d{-60, 30, 0}, OdGeVector3d::zAxis(), 30), u"GAS_LINE", 1);
  dashed(odrxMake<OdDbArc>(OdGePoint3d{-60, 30, 0}, OdGeVector3d::zAxis(), 20, 0, 3), u"FENCELINE1",
         3);
  for (const bool through : {false, true}) {
    auto zigzag = odrxMake<OdDbPolyline>();
    for (unsigned i = 0; i < 16; ++i)
      zigzag->addVertexAt(i, {i * 6.0, (i % 2) * 7.0 + (through ? 20 : 50)});
    zigzag->setPlinegen(through);
    dashed(zigzag, u"DASHDOT2", through ? 5 : 6);
  }
  auto half = odrxMake<OdDbLine>(OdGePoint3d{-100, -30, 0}, OdGePoint3d{100, -30, 0});
  dashed(half, u"CENTER", 7);
  half->setLinetypeScale(0.5);
  dashed(odrxMake<OdDbLine>(OdGePoint3d{-100, -40, 0}, OdGePoint3d{100, -40, 0}), u"CENTER", 7);
  auto fine = odrxMake<OdDbLine>(OdGePoint3d{-100, -50, 0}, OdGePoint3d{100, -50, 0});
  dashed(fine, u"DASHED", 7);
  fine->setLinetypeScale(0.05);
  auto wide = odrxMake<OdDbLine>(OdGePoint3d{-100, -60, 0}, OdGePoint3d{100, -60, 0});
  dashed(wide, u"DASHDOT", 4);
  wide->setLineWeight(static_cast<OdDb::LineWeight>(100));
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80, {480, 340}), "linetype_paths"));
}

TEST_F(PatternPictures, TextsOfLinesStandUprightWhereTheyAreAskedTo) {
  const OdLinetypeFile own =
      OdLinetypeFile::parse("*UPRIGHT,\nA,8,-4,[\"up\",STANDARD,s=3,u=0,x=-2.4,y=-1.5],-4\n"
                            "*ALONG,\nA,8,-4,[\"along\",STANDARD,s=3,r=0,x=-4,y=-1.5],-6\n"
                            "*LEVEL,\nA,8,-4,[\"level\",STANDARD,s=3,a=0,x=-4,y=-1.5],-6\n");
  double x = 0;
  for (const char16_t* name : {u"UPRIGHT", u"ALONG", u"LEVEL"}) {
    const OdDbObjectId linetype = own.find(OdString::fromUtf16(name))->addTo(database());
    for (int i = 0; i < 8; ++i) {
      const OdGeVector3d way{std::cos(kOdaPi * i / 4), std::sin(kOdaPi * i / 4), 0};
      const OdGePoint3d middle{x, 0, 0};
      auto line = odrxMake<OdDbLine>(middle + way * 8, middle + way * 48);
      line->setLinetype(linetype);
      add(line);
    }
    x += 110;
  }
  EXPECT_TRUE(looksLike(picture(-55, -55, 275, 55, {990, 330}), "linetype_texts"));
}

TEST_F(PatternPictures, Gradients) {
  const char16_t* const names[] = {u"LINEAR",           u"CYLINDER",     u"INVCYLINDER",
                                   u"SPHERICAL",        u"INVSPHERICAL", u"HEMISPHERICAL",
                                   u"INVHEMISPHERICAL", u"CURVED",       u"INVCURVED"};
  int column = 0;
  for (const char16_t* name : names) {
    for (int row = 0; row < 4; ++row) {
      auto hatch = hatchOf(column * 50 + 2, row * 50 + 2, column * 50 + 48, row * 50 + 48);
      hatch->setGradient(true);
      hatch->setGradientName(OdString::fromUtf16(name));
      hatch->setGradientColors(OdCmColor::fromRgb(0, 40, 160), OdCmColor::fromRgb(255, 240, 120));
      if (row == 1) hatch->setGradientShift(1);
      if (row == 2) hatch->setGradientAngle(kOdaPi / 4);
      if (row == 3) {
        hatch->setGradientOneColorMode(true);
        hatch->setShadeTintValue(1);
      }
      add(hatch);
    }
    ++column;
  }
  EXPECT_TRUE(looksLike(picture(0, 0, 450, 200, {900, 400}), "gradients"));
}

TEST_F(PatternPictures, IslandsByStyle) {
  const OdHatchPatternFile file = OdHatchPatternFile::read(dataPath("draftoniso.pat"));
  double x = 0;
  for (const auto style : {OdDbHatch::kNormal, OdDbHatch::kOuter, OdDbHatch::kIgnore}) {
    auto hatch = hatchOf(x, 0, x + 90, 90);
    hatch->appendLoop(rectangle(x + 15, 15, x + 75, 75));
    OdDbHatchLoop circle;
    circle.flags = OdDbHatchLoop::kPolyline;
    circle.vertices = {{{x + 30, 45}, 1}, {{x + 60, 45}, 1}};
    hatch->appendLoop(circle);
    hatch->setHatchStyle(style);
    hatch->setPattern(OdDbHatch::kPreDefined, QStringLiteral("ANSI31"),
                      *file.find(QStringLiteral("ANSI31")));
    hatch->setBackgroundColor(OdCmColor::fromRgb(255, 240, 200));
    add(hatch);
    x += 100;
  }
  EXPECT_TRUE(looksLike(picture(-5, -5, 295, 95, {600, 200}), "islands"));
}

TEST_F(PatternPictures, DensePatternsBecomeATint) {
  const OdHatchPatternFile file = OdHatchPatternFile::read(dataPath("draftoniso.pat"));
  auto hatch = hatchOf(0, 0, 100000, 100000);
  hatch->setPattern(OdDbHatch::kPreDefined, QStringLiteral("BRICK"),
                    *file.find(QStringLiteral("BRICK")));
  add(hatch);
  const QRgb far = picture(0, 0, 100000, 100000).pixel(160, 120);
  EXPECT_GT(qGray(far), 20);
  EXPECT_LT(qGray(far), 230);
  // From near the bricks are there, however large the area is.
  EXPECT_TRUE(looksLike(picture(50000, 50000, 50080, 50060), "near_bricks"));
}

} // namespace
} // namespace render_test
