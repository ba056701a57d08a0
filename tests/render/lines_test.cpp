#include "drafton/render/dash_walker.h"
#include "drafton/render/image_cache.h"
#include "drafton/render/surface.h"
#include "frame/file_path.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>

namespace render_test {
namespace {

using namespace drafton;

QImage white(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
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

ThinLines linesOn(QImage& image) {
  ThinLines lines(image.bits(), image.bytesPerLine(), image.size());
  lines.setColor(qRgb(0, 0, 0));
  return lines;
}

void draw(ThinLines lines, const QPointF& from, const QPointF& to) {
  if (ThinLine rounded; roundLine(from, to, rounded)) lines.draw(rounded);
}

TEST(ThinLines, HaveAsMuchInkAsTheyAreLongAlongTheirAxis) {
  for (const QPointF to : {QPointF(80, 10), QPointF(80, 45), QPointF(10, 80), QPointF(80, 80)}) {
    QImage image = white(100, 100);
    draw(linesOn(image), {10, 10}, to);
    const double longest = std::max(to.x() - 10, to.y() - 10);
    EXPECT_NEAR(inkOf(image), longest, 2) << to.x() << ',' << to.y();
    QImage back = white(100, 100);
    draw(linesOn(back), to, {10, 10});
    EXPECT_EQ(image, back);
  }
}

TEST(ThinLines, StayInTheClipHoweverFarTheyGo) {
  QImage image = white(100, 100);
  ThinLines lines = linesOn(image);
  lines.setClip(QRect(20, 20, 60, 60));
  draw(lines, {-1e9, -1e9}, {1e9, 1e9});
  draw(lines, {50, -1e15}, {50, 1e15});
  EXPECT_EQ(image.pixel(10, 10), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(90, 90), qRgb(255, 255, 255));
  EXPECT_LT(qGray(image.pixel(40, 40)), 255);
}

TEST(ThinLines, MixTheirColourByItsAlpha) {
  QImage image = white(10, 10);
  ThinLines lines = linesOn(image);
  lines.setColor(qRgba(255, 0, 0, 128));
  draw(lines, {0, 5.5}, {10, 5.5});
  const QColor mixed = image.pixelColor(5, 5);
  EXPECT_NEAR(mixed.red(), 255, 3);
  EXPECT_NEAR(mixed.green(), 127, 4);
}

TEST(ThinLines, AClippedLineIsTheSameWhereItIsSeen) {
  double enters = 0, leaves = 0;
  EXPECT_TRUE(clipLine(QRectF(0, 0, 10, 10), {-10, 5}, {30, 5}, enters, leaves));
  EXPECT_DOUBLE_EQ(enters, 0.25);
  EXPECT_DOUBLE_EQ(leaves, 0.5);
  EXPECT_FALSE(clipLine(QRectF(0, 0, 10, 10), {-10, 11}, {30, 11}, enters, leaves));
  EXPECT_FALSE(clipLine(QRectF(0, 0, 10, 10), {-5, 4}, {4, -6}, enters, leaves));
}

/// The drawn parts of a path along x, as runs of dark pixels.
std::vector<std::pair<int, int>> dashesOf(const DashPattern& pattern,
                                          std::span<const OdGePoint3d> points) {
  QImage image = white(200, 5);
  {
    QPainter painter(&image);
    Surface surface(painter, QRectF(image.rect()));
    surface.setPen(qRgb(0, 0, 0), 1);
    const Projection projection({1, 0, 0, 0}, {0, -1, 0, 2.5});
    DashWalker walker(surface, projection, pattern, 1, 10, {});
    walker.draw(points, false);
  }
  std::vector<std::pair<int, int>> runs;
  for (int x = 0; x < 200; ++x) {
    if (qGray(image.pixel(x, 2)) > 128) continue;
    if (!runs.empty() && runs.back().second == x)
      ++runs.back().second;
    else
      runs.emplace_back(x, x + 1);
  }
  return runs;
}

std::vector<std::pair<int, int>> dashesOf(const DashPattern& pattern, double length,
                                          double away = 0) {
  const OdGePoint3d points[] = {{0, 0, 0}, {length / 3, 0, away / 3}, {length, 0, away}};
  return dashesOf(pattern, points);
}

TEST(DashWalker, BothEndsOfALineShowTheFirstDash) {
  const DashPattern pattern({{10, -1}, {-5, -1}});
  // Two whole patterns and what is left: 7 and a half at each end.
  EXPECT_EQ(dashesOf(pattern, 30), (std::vector<std::pair<int, int>>{{0, 5}, {10, 20}, {25, 30}}));
  EXPECT_EQ(dashesOf(pattern, 40), (std::vector<std::pair<int, int>>{{0, 10}, {15, 25}, {30, 40}}));
}

TEST(DashWalker, ALineShorterThanThePatternIsContinuous) {
  const DashPattern pattern({{10, -1}, {-5, -1}});
  EXPECT_EQ(dashesOf(pattern, 14), (std::vector<std::pair<int, int>>{{0, 14}}));
}

TEST(DashWalker, ALineThatRunsAwayFromWhoLooksIsContinuous) {
  const DashPattern pattern({{10, -1}, {-5, -1}});
  for (const double away : {1e4, 1e9, 1e17, 1e300})
    EXPECT_EQ(dashesOf(pattern, 60, away), (std::vector<std::pair<int, int>>{{0, 60}})) << away;
  EXPECT_EQ(dashesOf(pattern, 60, 20).size(), 5U);
}

TEST(DashWalker, GoesOnInThePatternBehindWhatIsTooFine) {
  const DashPattern pattern({{10, -1}, {-5, -1}});
  // The first part is 2001 patterns and half a dash long, and seen from its end.
  const double away = std::sqrt(30020.0 * 30020 - 20 * 20);
  const OdGePoint3d points[] = {{0, 0, 0}, {20, 0, away}, {85, 0, away}};
  EXPECT_EQ(dashesOf(pattern, points),
            (std::vector<std::pair<int, int>>{{0, 25}, {30, 40}, {45, 55}, {60, 70}, {75, 85}}));
}

TEST(DashWalker, ALineWithoutAnEndIsDrawn) {
  EXPECT_FALSE(dashesOf(DashPattern({{10, -1}, {-5, -1}}), 1e308).empty());
}

TEST(DashPattern, WithoutInkOrLengthIsContinuous) {
  EXPECT_TRUE(DashPattern().isContinuous());
  EXPECT_TRUE(DashPattern({{-5, -1}, {-3, -1}}).isContinuous());
  EXPECT_TRUE(DashPattern({{0, -1}, {0, -1}}).isContinuous());
  EXPECT_TRUE(DashPattern({{std::numeric_limits<double>::infinity(), -1}}).isContinuous());
  EXPECT_FALSE(DashPattern({{0, -1}, {-3, -1}}).isContinuous());
}

TEST(Surface, CutsWhatIsFarAwayAndKeepsTheRest) {
  QImage image = white(50, 50);
  QPainter painter(&image);
  Surface surface(painter, QRectF(image.rect()));
  QPainterPath path;
  path.addRect(QRectF(-1e9, 10, 2e9, 20));
  const QRectF cut = surface.cut(path).boundingRect();
  EXPECT_LT(cut.width(), 1e5);
  EXPECT_EQ(cut.top(), 10);
  EXPECT_EQ(cut.bottom(), 30);
  surface.setPen(qRgb(0, 0, 0), 1);
  surface.fill(surface.cut(path));
  painter.end();
  EXPECT_EQ(image.pixel(25, 20), qRgb(0, 0, 0));
  EXPECT_EQ(image.pixel(25, 40), qRgb(255, 255, 255));
}

TEST(ImageCache, KeepsWithinItsBoundAndSeesChangedFiles) {
  QTemporaryDir folder;
  const auto file = [&](int i) { return folder.filePath(QStringLiteral("%1.png").arg(i)); };
  QImage picture(100, 100, QImage::Format_RGB32);
  ImageCache cache;
  cache.setLimit(3 * 100 * 100 * 4);
  for (int i = 0; i < 6; ++i) {
    picture.fill(QColor::fromHsv(i * 40, 255, 255));
    ASSERT_TRUE(picture.save(file(i)));
    EXPECT_FALSE(cache.find(odpath::fromPlatform(file(i)), 100, {}, 0).isNull());
    EXPECT_LE(cache.size(), 3 * 100 * 100 * 4);
  }
  // Half the width needs half the pixels.
  EXPECT_EQ(cache.find(odpath::fromPlatform(file(0)), 40, {}, 0).width(), 50);
  EXPECT_TRUE(cache.find(QStringLiteral("nowhere.png"), 10, {}, 0).isNull());
  picture.fill(Qt::black);
  ASSERT_TRUE(picture.save(file(0)));
  QFile touched(file(0));
  ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
  touched.setFileTime(QDateTime::currentDateTime().addSecs(10), QFileDevice::FileModificationTime);
  touched.close();
  EXPECT_EQ(cache.find(odpath::fromPlatform(file(0)), 100, {}, 0).pixel(5, 5), qRgb(0, 0, 0));
}

TEST(ImageCache, ShowsPixelsAsTheyLieInTheFile) {
  // A camera has marked the picture as turned; drawings count the file's own pixels.
  ImageCache cache;
  const QImage picture = cache.find(
      odpath::fromPlatform(QStringLiteral(TEST_DATA_DIR "/pictures/turned.jpg")), 16, {}, 0);
  ASSERT_EQ(picture.size(), QSize(16, 8));
  EXPECT_GT(qRed(picture.pixel(2, 4)), 150);
  EXPECT_GT(qBlue(picture.pixel(13, 4)), 150);
}

TEST(ImageCache, TriesAFileThatCannotBeShownOnlyOnce) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("a.png"));
  QImage picture(100, 100, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(file));
  const QDateTime start = QDateTime::currentDateTime().addSecs(-100);
  const auto change = [&](const std::function<void(QFile&)>& write, int seconds) {
    QFile changed(file);
    ASSERT_TRUE(changed.open(QIODevice::ReadWrite));
    write(changed);
    changed.flush();
    changed.setFileTime(start.addSecs(seconds), QFileDevice::FileModificationTime);
  };
  QFile whole(file);
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray bytes = whole.readAll();
  ImageCache cache;
  const auto isShown = [&] { return !cache.find(odpath::fromPlatform(file), 100, {}, 0).isNull(); };
  change([&](QFile& changed) { changed.resize(bytes.size() / 2); }, 0);
  EXPECT_FALSE(isShown());
  const qsizetype size = cache.size();
  EXPECT_GT(size, 0);
  change([&](QFile& changed) { changed.write(bytes); }, 0);
  EXPECT_EQ(cache.takeUnshown(), QStringList(odpath::fromPlatform(file)));
  EXPECT_FALSE(isShown()) << "by its time it is the same file";
  EXPECT_EQ(cache.takeUnshown(), QStringList()) << "told once";
  EXPECT_EQ(cache.size(), size);
  change([](QFile&) {}, 1);
  EXPECT_TRUE(isShown());
}

/// As PNG has it.
quint32 crcOf(const QByteArray& bytes) {
  quint32 crc = 0xFFFFFFFF;
  for (const char c : bytes) {
    crc ^= static_cast<uchar>(c);
    for (int bit = 0; bit < 8; ++bit) crc = crc & 1 ? 0xEDB88320 ^ (crc >> 1) : crc >> 1;
  }
  return ~crc;
}

TEST(ImageCache, ShowsScansLargerThanQtDecodesByItself) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("scan.png"));
  QImage picture(6000, 6000, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(file));
  const OdString scan = odpath::fromPlatform(file);
  const int limit = QImageReader::allocationLimit();
  ASSERT_LT(limit, 6000 * 6000 * 4 / 1'048'576);
  ImageCache cache;
  EXPECT_EQ(cache.find(scan, 6000, {}, 0).size(), QSize(6000, 6000));
  const QImage small = cache.find(scan, 300, {}, 0);
  EXPECT_EQ(small.size(), QSize(375, 375));
  EXPECT_EQ(small.pixel(200, 200), qRgb(255, 0, 0));
  EXPECT_EQ(QImageReader::allocationLimit(), limit) << "for everybody else";
  EXPECT_EQ(cache.takeUnshown(), QStringList());
}

TEST(ImageCache, RefusesWhatNobodyHasTheMemoryFor) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("bomb.png")));
  QImage one(1, 1, QImage::Format_RGB32);
  one.fill(Qt::white);
  ASSERT_TRUE(one.save(file.fileName(), "png"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  // The size is told before a single pixel.
  QByteArray bytes = file.readAll();
  const qsizetype header = bytes.indexOf("IHDR");
  const auto setNumber = [&](qsizetype at, quint32 value) {
    qToBigEndian(value, bytes.data() + at);
  };
  setNumber(header + 4, 40'000);
  setNumber(header + 8, 30'000);
  setNumber(header + 17, crcOf(bytes.mid(header, 17)));
  file.seek(0);
  file.write(bytes);
  file.close();
  const OdString path = odpath::fromPlatform(file.fileName());
  ImageCache cache;
  EXPECT_TRUE(cache.find(path, 100, {}, 0).isNull());
  EXPECT_EQ(cache.takeUnshown(), QStringList(path));
}

} // namespace
} // namespace render_test
