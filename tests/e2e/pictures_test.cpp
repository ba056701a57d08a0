// Pictures that a run without a window draws.
#include "batch_run.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace {

constexpr const char* kLine = "LINE 0,0 100,100 \n";

int darkPixels(const QImage& picture) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) count += qGray(picture.pixel(x, y)) < 200;
  return count;
}

TEST(Pictures, ShowWhatTheScriptDrewWithoutADisplay) {
  qunsetenv("DISPLAY");
  const Workbench bench;
  const QString file = bench.path(QStringLiteral("a.png"));
  const RunResult run = bench.batch(
      {}, kLine,
      {QStringLiteral("--png"), file, QStringLiteral("--size"), QStringLiteral("200x100")});
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QImage picture(file);
  EXPECT_EQ(picture.size(), QSize(200, 100));
  EXPECT_GT(darkPixels(picture), 50);
}

TEST(Pictures, ComeAsPagesAndAsVectorsByTheirNames) {
  const Workbench bench;
  for (const auto& [name, start] : {std::pair("a.pdf", "%PDF-"), std::pair("a.svg", "<?xml")}) {
    const QString path = bench.path(QLatin1String(name));
    const RunResult run = bench.batch({}, kLine, {QStringLiteral("--png"), path});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith(start)) << name;
  }
}

TEST(Pictures, AreNotDrawnWhenTheScriptFails) {
  const Workbench bench;
  const QString path = bench.path(QStringLiteral("a.png"));
  const RunResult run = bench.batch({}, "NOSUCHCOMMAND\n", {QStringLiteral("--png"), path});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_FALSE(QFile::exists(path));
}

TEST(Pictures, OfALayoutThatIsNotThereSayWhichAre) {
  const Workbench bench;
  const QString path = bench.path(QStringLiteral("a.png"));
  const RunResult run = bench.batch(
      {}, kLine, {QStringLiteral("--png"), path, QStringLiteral("--layout"), QStringLiteral("X")});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_TRUE(run.err.contains(QStringLiteral("there is no layout \"X\""))) << qPrintable(run.err);
  EXPECT_TRUE(run.err.contains(QStringLiteral("Model"))) << qPrintable(run.err);
  EXPECT_FALSE(QFile::exists(path));
}

TEST(Pictures, InAFolderThatIsNotThereAreAnError) {
  const Workbench bench;
  const RunResult run =
      bench.batch({}, kLine, {QStringLiteral("--png"), bench.path(QStringLiteral("none/a.png"))});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_TRUE(run.err.contains(QStringLiteral("is not drawn"))) << qPrintable(run.err);
}

} // namespace
