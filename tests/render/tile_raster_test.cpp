#include "drafton/render/tile_raster.h"

#include <QPainter>
#include <QPainterPath>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace render_test {
namespace {

using namespace drafton;

QImage white(const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

/// The ink of a picture in pixels.
double inkOf(const QImage& image) {
  double ink = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ink += (255 - qGray(image.pixel(x, y))) / 255.0;
  return ink;
}

QImage filled(std::span<const QPolygonF> rings, bool isOddEven, const QRect& clip = {}) {
  QImage image = white({60, 60});
  TileRaster raster(image.bits(), image.bytesPerLine(), image.size());
  raster.setColor(qRgb(0, 0, 0));
  if (!clip.isNull()) raster.setClip(clip);
  QRectF box;
  for (const QPolygonF& ring : rings) box |= ring.boundingRect();
  raster.area(rings, box, isOddEven);
  raster.flush();
  return image;
}

QPolygonF star(const QPointF& middle, double radius) {
  QPolygonF ring;
  for (int i = 0; i < 5; ++i) {
    const double angle = 4 * std::numbers::pi * i / 5 + 0.1;
    ring << middle + QPointF(std::cos(angle), std::sin(angle)) * radius;
  }
  return ring;
}

TEST(SmallAreas, HaveAsMuchInkAsTheirSize) {
  const QPolygonF triangle({{10.3, 7.8}, {48.1, 20.2}, {22.6, 51.9}});
  const double area = std::abs((48.1 - 10.3) * (51.9 - 7.8) - (22.6 - 10.3) * (20.2 - 7.8)) / 2;
  EXPECT_NEAR(inkOf(filled({&triangle, 1}, false)), area, 1);
  const QPolygonF sliver({{10.2, 10.3}, {10.6, 10.3}, {10.6, 50.3}, {10.2, 50.3}});
  EXPECT_NEAR(inkOf(filled({&sliver, 1}, false)), 0.4 * 40, 0.5);
}

TEST(SmallAreas, LookLikeThoseOfThePainter) {
  for (const bool isOddEven : {false, true}) {
    const QPolygonF rings[] = {star({28.4, 30.7}, 26), QPolygonF(QRectF(30.5, 4.2, 20, 9.6))};
    QImage expected = white({60, 60});
    {
      QPainter painter(&expected);
      painter.setRenderHint(QPainter::Antialiasing);
      QPainterPath path;
      path.setFillRule(isOddEven ? Qt::OddEvenFill : Qt::WindingFill);
      for (const QPolygonF& ring : rings) {
        path.addPolygon(ring);
        path.closeSubpath();
      }
      painter.fillPath(path, Qt::black);
    }
    const QImage actual = filled(rings, isOddEven);
    int off = 0;
    for (int y = 0; y < 60; ++y)
      for (int x = 0; x < 60; ++x)
        off += std::abs(qGray(actual.pixel(x, y)) - qGray(expected.pixel(x, y))) > 24;
    // The points of a star cross in one pixel, which is where methods differ.
    EXPECT_LE(off, 12) << isOddEven;
  }
}

TEST(SmallAreas, StayInTheClip) {
  const QPolygonF square(QRectF(5, 5, 50, 50));
  const QImage image = filled({&square, 1}, false, QRect(20, 20, 10, 10));
  EXPECT_NEAR(inkOf(image), 100, 0.5);
  EXPECT_EQ(image.pixel(25, 25), qRgb(0, 0, 0));
}

TEST(TileRaster, DrawsLinesAsIfThereWereNoTiles) {
  const QSize size(700, 600);
  QImage direct = white(size), tiled = white(size);
  ThinLines lines(direct.bits(), direct.bytesPerLine(), size);
  TileRaster raster(tiled.bits(), tiled.bytesPerLine(), size);
  std::mt19937 random(5);
  std::uniform_real_distribution<double> place(-100, 800), near(-40, 40);
  // More than are gathered at once, so that several threads take part.
  for (unsigned i = 0; i < 80000; ++i) {
    const QPointF from(place(random), place(random));
    const QPointF to = i % 50 == 0 ? QPointF(place(random), place(random))
                                   : from + QPointF(near(random), near(random));
    const QRgb color =
        qRgba(int(i % 251), int(i % 13) * 19, int(i % 7) * 36, i % 3 == 0 ? 90 : 255);
    lines.setColor(color);
    raster.setColor(color);
    raster.line(from, to);
    if (ThinLine rounded; roundLine(from, to, rounded)) lines.draw(rounded);
  }
  raster.flush();
  EXPECT_EQ(direct, tiled);
}

TEST(TileRaster, KeepsTheOrderOfLinesAndAreas) {
  QImage image = white({300, 20});
  TileRaster raster(image.bits(), image.bytesPerLine(), image.size());
  const QPolygonF square(QRectF(240, 0, 30, 20));
  for (int i = 0; i < 3; ++i) {
    raster.setColor(qRgb(255, 0, 0));
    raster.area({&square, 1}, square.boundingRect(), false);
    raster.setColor(qRgb(0, 0, 255));
    raster.line({0, 10.5}, {300, 10.5});
  }
  raster.flush();
  // On both sides of a tile's border.
  for (const int x : {244, 255, 256, 265}) {
    EXPECT_EQ(image.pixel(x, 10), qRgb(0, 0, 255)) << x;
    EXPECT_EQ(image.pixel(x, 5), qRgb(255, 0, 0)) << x;
  }
}

} // namespace
} // namespace render_test
