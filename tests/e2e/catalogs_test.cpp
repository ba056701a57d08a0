// Catalog folders of a running host.
#include "batch_run.h"

#include <QSettings>
#include <gtest/gtest.h>

namespace {

TEST(CatalogFolders, AChangeAtRunTimeReloads) {
  const Workbench bench;
  const QString first = bench.writeCatalog(
      QStringLiteral("first"), {{QStringLiteral("Line"), QStringLiteral("_LINE 0,0 1,0;")}});
  const QString second = bench.writeCatalog(
      QStringLiteral("second"), {{QStringLiteral("Dot"), QStringLiteral("_CIRCLE 0,0 1")}});
  const RunResult run =
      bench.batch(first, "SETTING ToolPaletteDir \"" + second.toUtf8() + "\"\nTOOL:Dot\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
}

TEST(CatalogFolders, AFolderWithoutACatalogIsNamedOnTheCommandLine) {
  const Workbench bench;
  const RunResult run = bench.batch(bench.path(QStringLiteral("nowhere")), "");
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_TRUE(run.out.contains(QStringLiteral("Error: cannot find catalog file: ")))
      << qPrintable(run.out);
  EXPECT_TRUE(run.out.contains(QStringLiteral("nowhere")));
}

TEST(CatalogFolders, ABrokenCatalogIsNamedAndTheOthersStillWork) {
  const Workbench bench;
  const QByteArray broken = "<Catalog><Groups>";
  const QString file = bench.write(QStringLiteral("broken/DrfTcCatalog.dtc"), broken);
  const QString good = bench.writeCatalog(
      QStringLiteral("good"), {{QStringLiteral("Dot"), QStringLiteral("_CIRCLE 0,0 1")}});
  const RunResult run =
      bench.batch(bench.path(QStringLiteral("broken")) + u';' + good, "TOOL:Dot\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_TRUE(run.out.contains(QStringLiteral("broken"))) << qPrintable(run.out);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
  QFile untouched(file);
  ASSERT_TRUE(untouched.open(QIODevice::ReadOnly));
  EXPECT_EQ(untouched.readAll(), broken);
}

class PaletteWindow : public testing::TestWithParam<int> {};

TEST_P(PaletteWindow, OpensAtTheNextStartIfItIsOpenNow) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const int times = GetParam();
  const RunResult run = bench.batch(catalog, QByteArray("TOOLPALETTES\n").repeated(times));
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  QSettings profile(bench.profile(), QSettings::IniFormat);
  profile.beginGroup(QStringLiteral("Startup"));
  EXPECT_EQ(profile.contains(QStringLiteral("ToolPalettes")), times % 2 == 1);
}

INSTANTIATE_TEST_SUITE_P(OnceTwiceThreeTimes, PaletteWindow, testing::Values(1, 2, 3));

} // namespace
