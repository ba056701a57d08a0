#include "render/golden_picture.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <cstdlib>

namespace render_test {
namespace {

/// A channel may be off by this much anywhere.
constexpr int kLittle = 48;
/// So many pixels of a thousand may be off by more.
constexpr int kMostOfThousand = 3;
/// In a cell, that part of what is drawn there may be off by more.
constexpr int kPartOfInk = 4;

int distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

/// The colour of most pixels.
QRgb groundOf(const QImage& image) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  return std::max_element(counts.cbegin(), counts.cend()).key();
}

/// The first cell in which too much is wrong; an empty one if there is none.
QRect worstCell(const QImage& actual, const QImage& expected, const QSize& cell) {
  const QRgb ground = groundOf(expected);
  for (int top = 0; top < actual.height(); top += cell.height())
    for (int left = 0; left < actual.width(); left += cell.width()) {
      const QRect one = QRect(QPoint(left, top), cell).intersected(actual.rect());
      int ink = 0, wrong = 0;
      for (int y = one.top(); y <= one.bottom(); ++y)
        for (int x = one.left(); x <= one.right(); ++x) {
          const QRgb now = actual.pixel(x, y), then = expected.pixel(x, y);
          ink += distance(now, ground) > kLittle || distance(then, ground) > kLittle ? 1 : 0;
          wrong += distance(now, then) > kLittle ? 1 : 0;
        }
      if (wrong * kPartOfInk > ink) return one;
    }
  return {};
}

} // namespace

std::string faultOf(const QImage& actual, const QImage& expected, QSize cell) {
  qint64 wrong = 0;
  for (int y = 0; y < actual.height(); ++y)
    for (int x = 0; x < actual.width(); ++x)
      wrong += distance(actual.pixel(x, y), expected.pixel(x, y)) > kLittle ? 1 : 0;
  const qint64 most = qint64{actual.width()} * actual.height() * kMostOfThousand / 1000;
  if (wrong > most)
    return std::to_string(wrong) + " pixels differ, " + std::to_string(most) + " may";
  constexpr int kCells = 4;
  if (cell.isEmpty())
    cell = {(actual.width() + kCells - 1) / kCells, (actual.height() + kCells - 1) / kCells};
  const QRect bad = wrong > 0 ? worstCell(actual, expected, cell) : QRect();
  if (bad.isEmpty()) return {};
  return "too much of what is drawn in the cell at " + std::to_string(bad.left()) + "," +
         std::to_string(bad.top()) + " differs";
}

testing::AssertionResult looksLike(const QImage& picture, const char* name, QSize cell) {
  const QString golden =
      QStringLiteral(TEST_DATA_DIR "/golden/render/%1.png").arg(QLatin1String(name));
  if (picture.isNull()) return testing::AssertionFailure() << "there is no picture";
  const QImage actual = picture.convertToFormat(QImage::Format_ARGB32);
  if (qEnvironmentVariableIsSet("DRAFTON_WRITE_GOLDEN")) {
    if (actual.save(golden)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "cannot write " << golden.toStdString();
  }
  const QString folder = QStringLiteral(BINARY_DIR "/../render-differences");
  QDir().mkpath(folder);
  const QString actualPath = folder + u'/' + QLatin1String(name) + QLatin1String(".png");
  const QString differencePath =
      folder + u'/' + QLatin1String(name) + QLatin1String("-difference.png");
  QFile::remove(actualPath);
  QFile::remove(differencePath);

  const QImage expected = QImage(golden).convertToFormat(QImage::Format_ARGB32);
  if (expected.isNull() || expected.size() != actual.size()) {
    actual.save(actualPath);
    return testing::AssertionFailure()
           << golden.toStdString() << (expected.isNull() ? " cannot be read" : " has another size")
           << "; the picture is " << actualPath.toStdString();
  }
  const std::string fault = faultOf(actual, expected, cell);
  if (fault.empty()) return testing::AssertionSuccess();
  QImage difference =
      expected.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < actual.height(); ++y)
    for (int x = 0; x < actual.width(); ++x)
      if (distance(actual.pixel(x, y), expected.pixel(x, y)) > kLittle)
        difference.setPixel(x, y, qRgb(255, 0, 0));
  actual.save(actualPath);
  difference.save(differencePath);
  return testing::AssertionFailure()
         << fault << "; " << golden.toStdString() << " is what is wanted, the picture is "
         << actualPath.toStdString() << ", the differences are in " << differencePath.toStdString();
}

} // namespace render_test
