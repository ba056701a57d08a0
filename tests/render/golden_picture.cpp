#include "render/golden_picture.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdlib>

namespace render_test {
namespace {

/// A channel may be off by this much anywhere.
constexpr int kLittle = 48;
/// So many pixels of a thousand may be off by more.
constexpr int kMostOfThousand = 3;

int distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

} // namespace

testing::AssertionResult looksLike(const QImage& picture, const char* name) {
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
  QImage difference =
      expected.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
  qint64 wrong = 0;
  for (int y = 0; y < actual.height(); ++y) {
    for (int x = 0; x < actual.width(); ++x) {
      if (distance(actual.pixel(x, y), expected.pixel(x, y)) <= kLittle) continue;
      ++wrong;
      difference.setPixel(x, y, qRgb(255, 0, 0));
    }
  }
  const qint64 most = qint64{actual.width()} * actual.height() * kMostOfThousand / 1000;
  if (wrong <= most) return testing::AssertionSuccess();
  actual.save(actualPath);
  difference.save(differencePath);
  return testing::AssertionFailure()
         << wrong << " pixels differ from " << golden.toStdString() << ", " << most
         << " may; the picture is " << actualPath.toStdString() << ", the differences are in "
         << differencePath.toStdString();
}

} // namespace render_test
