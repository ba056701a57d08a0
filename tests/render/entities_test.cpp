#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/spline.h"
#include "render/picture_fixture.h"

#include <algorithm>

namespace render_test {
namespace {

class EntityPictures : public PictureTest {};

TEST_F(EntityPictures, Lines) {
  for (int i = 0; i < 24; ++i) {
    const double angle = kOdaPi * i / 12;
    auto line = odrxMake<OdDbLine>(OdGePoint3d{10 * std::cos(angle), 10 * std::sin(angle), 0},
                                   OdGePoint3d{90 * std::cos(angle), 90 * std::sin(angle), 0});
    line->setColor(OdCmColor::fromColorIndex(i % 8));
    add(line);
  }
  EXPECT_TRUE(looksLike(picture(-100, -100, 100, 100), "line"));
}

TEST_F(EntityPictures, CirclesAndArcs) {
  add(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 60));
  add(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 0.3));
  add(odrxMake<OdDbCircle>(OdGePoint3d{40, 0, 0}, OdGeVector3d{1, 0, 1}, 30));
  for (int i = 1; i < 8; ++i)
    add(odrxMake<OdDbArc>(OdGePoint3d{-70, 0, 0}, OdGeVector3d::zAxis(), 5.0 * i, 0.3 * i,
                          0.3 * i + 2));
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "circle_arc"));
}

TEST_F(EntityPictures, ArcsReachTheirEnds) {
  const OdGeExtents3d box = boxOf(-100, -100, 100, 100);
  constexpr QSize kSize{400, 400};
  View view;
  view.size = kSize;
  const Projection project = view.fitted(box).projection();
  for (const double turn : {0.1, 0.7, 2.0, 4.5, 6.2}) {
    const double start = 0.4;
    const OdDbArcPtr arc =
        odrxMake<OdDbArc>(OdGePoint3d{}, OdGeVector3d::zAxis(), 90, start, start + turn);
    const OdDbObjectId id = add(arc);
    const QImage image = modelPicture(database(), scene(), box, kSize);
    const QRgb ground = image.pixel(0, 0);
    // A little before the end there is a line, a little behind it none.
    const auto isDrawn = [&](double angle) {
      const OdGePoint3d point{90 * std::cos(angle), 90 * std::sin(angle), 0};
      const QPoint at = project(point).toPoint();
      bool any = false;
      for (int x = -1; x <= 1; ++x)
        for (int y = -1; y <= 1; ++y) any |= image.pixel(at + QPoint(x, y)) != ground;
      return any;
    };
    constexpr double kLittle = 0.025;
    for (const double inside : {start + kLittle, start + turn - kLittle})
      EXPECT_TRUE(isDrawn(inside)) << turn;
    for (const double outside : {start - kLittle, start + turn + kLittle})
      EXPECT_FALSE(isDrawn(outside)) << turn;
    id.openAs<OdDbEntity>(OdDb::kForWrite)->erase();
  }
}

TEST_F(EntityPictures, PolylinesWithBulgesAndWidths) {
  auto plain = odrxMake<OdDbPolyline>();
  plain->addVertexAt(0, {-90, -50}, 1);
  plain->addVertexAt(1, {-50, -50}, 0);
  plain->addVertexAt(2, {-50, 0}, -0.5);
  plain->addVertexAt(3, {-90, 0}, 0);
  plain->setClosed(true);
  add(plain);
  auto wide = odrxMake<OdDbPolyline>();
  wide->addVertexAt(0, {-30, -50}, 0.6, 2, 10);
  wide->addVertexAt(1, {10, -50}, 0, 10, 0);
  wide->addVertexAt(2, {30, 20}, 0, 4, 4);
  wide->addVertexAt(3, {-30, 40}, 0, 4, 4);
  wide->setColor(OdCmColor::fromColorIndex(5));
  add(wide);
  auto band = odrxMake<OdDbPolyline>();
  band->addVertexAt(0, {50, -40});
  band->addVertexAt(1, {90, -40}, 0.4);
  band->addVertexAt(2, {90, 30});
  band->setConstantWidth(6);
  band->setColor(OdCmColor::fromColorIndex(3));
  add(band);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "polyline"));
}

TEST_F(EntityPictures, Texts) {
  addText(QStringLiteral(u"Plain text"), -100, 50, 14);
  addText(QStringLiteral(u"Größe Ø 25 ±0.1"), -100, 25, 10);
  addText(QStringLiteral(u"%%uunderlined%%u %%ooverlined"), -100, 5, 10);
  addText(QStringLiteral(u"Small text is a strip when it cannot be read"), -100, -10, 1.2);
  addText(QStringLiteral(u"Turned"), 40, -60, 12)->setRotation(kOdaPi / 3);
  addText(QStringLiteral(u"Narrow"), -100, -35, 12)->setWidthFactor(0.6);
  addText(QStringLiteral(u"Oblique"), -100, -60, 12)->setOblique(0.35);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "text"));
}

TEST_F(EntityPictures, EllipsesAndSplines) {
  add(odrxMake<OdDbEllipse>(OdGePoint3d{-60, 20, 0}, OdGeVector3d::zAxis(), OdGeVector3d{40, 15, 0},
                            0.5));
  add(odrxMake<OdDbEllipse>(OdGePoint3d{-60, -50, 0}, OdGeVector3d::zAxis(), OdGeVector3d{40, 0, 0},
                            0.4, 0.5, 4));
  auto fitted = odrxMake<OdDbSpline>(
      std::vector<OdGePoint3d>{{0, -60, 0}, {20, 40, 0}, {40, -40, 0}, {60, 50, 0}, {100, 0, 0}});
  fitted->setColor(OdCmColor::fromColorIndex(1));
  add(fitted);
  auto controlled = odrxMake<OdDbSpline>(
      3, std::vector<OdGePoint3d>{{0, -70, 0}, {30, 0, 0}, {70, 0, 0}, {100, -70, 0}},
      std::vector<double>{0, 0, 0, 0, 1, 1, 1, 1});
  controlled->setColor(OdCmColor::fromColorIndex(5));
  add(controlled);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "ellipse_spline"));
}

TEST_F(EntityPictures, PointsInEveryMode) {
  database().setSysVar(QStringLiteral("PDSIZE"), 12.0);
  const int forms[] = {0, 1, 2, 3, 4};
  QImage sheet(320, 240, QImage::Format_RGB32);
  sheet.fill(Qt::white);
  add(odrxMake<OdDbPoint>(OdGePoint3d{0, 0, 0}));
  for (int row = 0; row < 4; ++row) {
    for (int form : forms) {
      database().setSysVar(QStringLiteral("PDMODE"), std::int64_t{form + 32 * row});
      const QImage one = picture(-20, -20, 20, 20, {64, 60});
      for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
          sheet.setPixel(form * 64 + x, row * 60 + y, one.pixel(x, y));
    }
  }
  EXPECT_TRUE(looksLike(sheet, "point"));
}

/// The columns of pixels in which something is drawn, from the first to the last.
int inkWidth(const QImage& image) {
  const QRgb ground = image.pixel(0, 0);
  int first = image.width(), last = -1;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) == ground) continue;
      first = std::min(first, x);
      last = std::max(last, x);
    }
  return last - first + 1;
}

TEST_F(EntityPictures, PointsWithoutASizeArePartsOfThePicture) {
  constexpr std::int64_t kCircleAlone = 33;
  database().setSysVar(QStringLiteral("PDMODE"), kCircleAlone);
  add(odrxMake<OdDbPoint>(OdGePoint3d{0, 0, 0}));
  struct Row {
    double size;
    int pixels; ///< of 240
  };
  // Below 0 it is a percentage; 0 stands for a twentieth.
  for (const Row& row : {Row{0, 12}, Row{-5, 12}, Row{-20, 48}, Row{-50, 120}}) {
    database().setSysVar(QStringLiteral("PDSIZE"), row.size);
    EXPECT_NEAR(inkWidth(picture(-2, -2, 2, 2)), row.pixels, 2) << row.size;
  }
}

TEST_F(EntityPictures, LargeCirclesShowTheEdgeOfTheirLineWhereTheirMiddleIsOutside) {
  // The circle itself passes three pixels below the picture.
  const auto circle =
      odrxMake<OdDbCircle>(OdGePoint3d{160, -1e6 - 3, 0}, OdGeVector3d::zAxis(), 1e6);
  circle->setLineWeight(OdDb::kLnWt211);
  add(circle);
  RenderOptions options;
  options.pixelsPerMillimetre = 6;
  const QImage image = picture(0, 0, 320, 240, {320, 240}, options);
  EXPECT_NE(image.pixel(160, 238), image.pixel(160, 0));
  EXPECT_EQ(image.pixel(160, 230), image.pixel(160, 0));
}

TEST_F(EntityPictures, AreasThinnerThanAPixelAreLines) {
  add(odrxMake<OdDbSolid>(OdGePoint3d{-100, 0, 0}, OdGePoint3d{100, 0, 0},
                          OdGePoint3d{-100, 0.02, 0}, OdGePoint3d{100, 0.02, 0},
                          OdGeVector3d::zAxis()));
  const QImage image = picture(-110, -80, 110, 80);
  int darkest = 255;
  for (int y = 110; y < 130; ++y) darkest = std::min(darkest, qGray(image.pixel(160, y)));
  EXPECT_LT(darkest, 140);
}

TEST_F(EntityPictures, SolidsAndOldPolylines) {
  auto solid = odrxMake<OdDbSolid>(OdGePoint3d{-100, 0, 0}, OdGePoint3d{-50, 10, 0},
                                   OdGePoint3d{-90, 50, 0}, OdGePoint3d{-40, 40, 0});
  solid->setColor(OdCmColor::fromColorIndex(30));
  add(solid);
  auto flat = odrxMake<OdDb2dPolyline>();
  flat->addVertexAt(0, {-20, 0, 0}, 0.5, 3, 8);
  flat->addVertexAt(1, {30, 0, 0}, 0, 3, 3);
  flat->addVertexAt(2, {60, 50, 0});
  add(flat);
  auto space = odrxMake<OdDb2dPolyline>(OdDb2dPolyline::k3d);
  space->addVertexAt(0, {-100, -60, 0});
  space->addVertexAt(1, {0, -20, 40});
  space->addVertexAt(2, {90, -60, -20});
  space->setColor(OdCmColor::fromColorIndex(6));
  add(space);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "solid_polyline2d"));
}

TEST_F(EntityPictures, TextsOfSeveralLines) {
  auto text = odrxMake<OdDbMText>();
  text->setDatabaseDefaults(database());
  text->setContents(QStringLiteral(
      "Plain, {\\C1;red} and {\\fDejaVu Serif|b1|i0;serif bold}\\P"
      "{\\H1.6x;Larger} \\Lunder\\l \\Oover\\o \\Kstruck\\k\\P"
      "Fractions \\S1/2; \\S+0.1^-0.2; \\S3#4; and a line that is too long for the width"));
  text->setLocation({-100, 70, 0});
  text->setTextHeight(9);
  text->setWidth(200);
  add(text);
  auto turned = odrxMake<OdDbMText>();
  turned->setDatabaseDefaults(database());
  turned->setContents(QStringLiteral("Middle\\Pof a turned\\Ptext"));
  turned->setLocation({60, -40, 0});
  turned->setAttachment(OdDbMText::kMiddleCenter);
  turned->setTextHeight(8);
  turned->setRotation(0.4);
  add(turned);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "mtext"));
}

TEST_F(EntityPictures, Leaders) {
  auto straight = odrxMake<OdDbLeader>();
  straight->setDatabaseDefaults(database());
  for (const OdGePoint3d& p : {OdGePoint3d{-20, -12, 0}, {-5, 5, 0}, {5, 5, 0}})
    straight->appendVertex(p);
  add(straight);
  auto curved = odrxMake<OdDbLeader>();
  curved->setDatabaseDefaults(database());
  for (const OdGePoint3d& p : {OdGePoint3d{0, -12, 0}, {8, 0, 0}, {18, -6, 0}, {22, 8, 0}})
    curved->appendVertex(p);
  curved->setSplined(true);
  add(curved);
  EXPECT_TRUE(looksLike(picture(-25, -18, 25, 18), "leader"));
}

TEST_F(EntityPictures, Dimensions) {
  const auto dimension = [&](OdDbDimension* made) {
    made->setDatabaseDefaults(database());
    add(made);
    made->recomputeDimBlock();
  };
  add(odrxMake<OdDbCircle>(OdGePoint3d{60, 10, 0}, OdGeVector3d::zAxis(), 20));
  dimension(odrxMake<OdDbRotatedDimension>(0, OdGePoint3d{-50, -20, 0}, OdGePoint3d{20, -10, 0},
                                           OdGePoint3d{-50, -35, 0}));
  dimension(odrxMake<OdDbAlignedDimension>(OdGePoint3d{-50, -10, 0}, OdGePoint3d{10, 30, 0},
                                           OdGePoint3d{-55, 0, 0}));
  dimension(odrxMake<OdDbRadialDimension>(OdGePoint3d{60, 10, 0}, OdGePoint3d{74, 24, 0}, 5));
  EXPECT_TRUE(looksLike(picture(-75, -50, 95, 60, {480, 320}), "dimension"));
}

} // namespace
} // namespace render_test
