// Pictures that a run without a window draws.
#include "batch_run.h"

#include "drafton/previews/stored_preview.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>
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

TEST(Pictures, ShowWhatExternalReferencesHave) {
  const Workbench bench;
  const QString part = bench.path(QStringLiteral("part.dxf"));
  const QString sheet = bench.path(QStringLiteral("sheet.dxf"));
  const QString picture = bench.path(QStringLiteral("a.png"));
  const auto run = [&](const QByteArray& script, const QStringList& more) {
    const RunResult result = runProgram(
        QStringLiteral("drafton"),
        QStringList{QStringLiteral("batch"), QStringLiteral("--profile"), bench.profile()} + more,
        script);
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.out + result.err);
    return result.out;
  };
  run("CIRCLE 50,50 40\n", {QStringLiteral("--out"), part});
  run("XATTACH \"" + part.toLocal8Bit() + "\"\n\n0,0\n\n\n\n", {QStringLiteral("--out"), sheet});
  const auto inkOf = [&] {
    QFile::remove(picture);
    const QString told = run({}, {QStringLiteral("--png"), picture, QStringLiteral("--size"),
                                  QStringLiteral("200x200"), QStringLiteral("--window"),
                                  QStringLiteral("0,0,100,100"), sheet});
    return std::pair(darkPixels(QImage(picture)), told);
  };
  const auto [shown, quiet] = inkOf();
  EXPECT_GT(shown, 300);
  EXPECT_FALSE(quiet.contains(QStringLiteral("part"))) << qPrintable(quiet);
  ASSERT_TRUE(QFile::rename(part, part + QStringLiteral(".away")));
  const auto [missing, told] = inkOf();
  EXPECT_EQ(missing, 0);
  EXPECT_TRUE(told.contains(QStringLiteral("The file of \"part\" was not found")))
      << qPrintable(told);
}

constexpr const char* kPreview = "SETVAR RASTERPREVIEW 1\n";

QImage previewOf(const QString& file) {
  return drafton::readStoredPreview(odpath::fromPlatform(file));
}

TEST(Pictures, AreKeptInDrawingsOnDemand) {
  const Workbench bench;
  const RunResult run =
      bench.batch({}, QByteArray(kPreview) + "CIRCLE 50,50 40\nRECTANG 0,0 100,100\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QImage picture = previewOf(bench.drawing());
  ASSERT_EQ(picture.size(), QSize(128, 128));
  EXPECT_EQ(picture.pixel(20, 20), qRgb(255, 255, 255));
  EXPECT_GT(darkPixels(picture), 500);
  EXPECT_LT(QFileInfo(bench.drawing()).size(), 60'000);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
}

TEST(Pictures, AreNotKeptInDrawingsOtherwiseAndStayWhereTheyAre) {
  const Workbench bench;
  ASSERT_EQ(bench.batch({}, kLine).exitCode, 0);
  EXPECT_TRUE(previewOf(bench.drawing()).isNull());
  ASSERT_EQ(bench.batch({}, QByteArray(kPreview) + kLine).exitCode, 0);
  const QImage before = previewOf(bench.drawing());
  ASSERT_FALSE(before.isNull());
  ASSERT_EQ(bench.batch({}, "CIRCLE 0,0 5\n", {bench.drawing()}).exitCode, 0);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
  EXPECT_EQ(previewOf(bench.drawing()), before);
}

TEST(Pictures, OfNothingAreNotKept) {
  const Workbench bench;
  ASSERT_EQ(bench.batch({}, kPreview).exitCode, 0);
  EXPECT_TRUE(previewOf(bench.drawing()).isNull());
}

} // namespace
