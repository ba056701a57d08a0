#include "drafton/previews/picture_tones.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

/// A ground with a spot of a tone a little darker.
QImage faint() {
  QImage image(10, 10, QImage::Format_RGB32);
  image.fill(qRgb(200, 200, 200));
  image.setPixel(5, 5, qRgb(180, 180, 180));
  return image;
}

} // namespace

TEST(PictureTones, WhatWasReducedStandsOutFromItsGroundAsBefore) {
  const QImage strong = strengthenedOnGround(faint(), 3);
  EXPECT_EQ(strong.pixel(0, 0), qRgb(200, 200, 200));
  EXPECT_EQ(strong.pixel(5, 5), qRgb(140, 140, 140));
}

TEST(PictureTones, WhatWasEnlargedStaysAsItIs) {
  for (const double reduction : {0.25, 1.0})
    EXPECT_EQ(strengthenedOnGround(faint(), reduction), faint()) << reduction;
}

TEST(PictureTones, PicturesWithoutAGroundStayAsTheyAre) {
  QImage many(10, 10, QImage::Format_RGB32);
  for (int y = 0; y < 10; ++y)
    for (int x = 0; x < 10; ++x) many.setPixel(x, y, qRgb(20 * x, 20 * y, 100));
  EXPECT_EQ(strengthenedOnGround(many, 3), many);
}
