#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"
#include "render/picture_fixture.h"

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
  const auto addText = [&](const char16_t* words, double x, double y, double height, double angle) {
    auto text = odrxMake<OdDbText>();
    text->setDatabaseDefaults(database());
    text->setTextString(OdString::fromUtf16(words));
    text->setPosition({x, y, 0});
    text->setHeight(height);
    text->setRotation(angle);
    add(text);
    return text;
  };
  addText(u"Plain text", -100, 50, 14, 0);
  addText(u"Größe Ø 25 ±0.1", -100, 25, 10, 0);
  addText(u"%%uunderlined%%u %%ooverlined", -100, 5, 10, 0);
  addText(u"Small text is a strip when it cannot be read", -100, -10, 1.2, 0);
  addText(u"Turned", 40, -60, 12, kOdaPi / 3);
  addText(u"Narrow", -100, -35, 12, 0)->setWidthFactor(0.6);
  addText(u"Oblique", -100, -60, 12, 0)->setOblique(0.35);
  EXPECT_TRUE(looksLike(picture(-110, -80, 110, 80), "text"));
}

} // namespace
} // namespace render_test
