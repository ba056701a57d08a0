// What golden pictures do not let pass.
#include "render/golden_picture.h"

#include <QPainter>

using render_test::faultOf;

namespace {

/// A sheet of forty rows, each with a few dots.
QImage sheet() {
  QImage image(400, 1200, QImage::Format_ARGB32);
  image.fill(Qt::white);
  for (int row = 0; row < 40; ++row)
    for (int x = 5; x < 400; x += 40) image.setPixel(x, row * 30 + 15, qRgb(0, 0, 0));
  return image;
}

} // namespace

TEST(GoldenPictures, LetNoRowOfASheetVanish) {
  const QImage whole = sheet();
  EXPECT_EQ(faultOf(whole, whole, {400, 30}), "");
  for (int row = 0; row < 40; ++row) {
    QImage without = whole;
    QPainter(&without).fillRect(0, row * 30, 400, 30, Qt::white);
    EXPECT_NE(faultOf(without, whole, {400, 30}), "") << row;
    EXPECT_NE(faultOf(whole, without, {400, 30}), "") << "nor come from nowhere";
  }
}

TEST(GoldenPictures, LetLettersBeDrawnALittleDifferently) {
  const QImage whole = sheet();
  QImage other = whole;
  other.setPixel(5, 15, qRgb(40, 40, 40));
  EXPECT_EQ(faultOf(other, whole, {400, 30}), "") << "a shade";
  other.setPixel(45, 15, qRgb(255, 255, 255));
  EXPECT_EQ(faultOf(other, whole, {400, 30}), "") << "one dot of ten";
}

TEST(GoldenPictures, LookAtPartsOfAPictureWithoutCells) {
  QImage whole(400, 400, QImage::Format_ARGB32);
  whole.fill(Qt::white);
  QPainter(&whole).drawLine(10, 10, 60, 60);
  QPainter(&whole).drawLine(210, 210, 390, 390);
  QImage without = whole;
  QPainter(&without).fillRect(0, 0, 100, 100, Qt::white);
  EXPECT_NE(faultOf(without, whole, {}), "");
}
