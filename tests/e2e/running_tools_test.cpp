// Tools that run through the command line of a real host.
#include "batch_run.h"

#include <gtest/gtest.h>

namespace {

TEST(RunningATool, ItsMacroDraws) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(
      QStringLiteral("c"), {{QStringLiteral("Line"), QStringLiteral("^C^C_LINE 0,0 100,0 ^M")}});
  const RunResult run = bench.batch(catalog, "TOOL:Line\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QJsonArray entities = bench.entities();
  ASSERT_EQ(entities.size(), 1);
  EXPECT_EQ(entities[0][QStringLiteral("type")].toString(), QStringLiteral("LINE"));
  EXPECT_EQ(entities[0][QStringLiteral("end")].toArray(), (QJsonArray{100.0, 0.0, 0.0}));
}

TEST(RunningATool, PausesForTheUserWhereTheMacroSaysSo) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(
      QStringLiteral("c"), {{QStringLiteral("Circle"), QStringLiteral("^C^C_CIRCLE \\5")}});
  const RunResult run = bench.batch(catalog, "TOOL:Circle\n7,8\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QJsonArray entities = bench.entities();
  ASSERT_EQ(entities.size(), 1);
  EXPECT_EQ(entities[0][QStringLiteral("center")].toArray(), (QJsonArray{7.0, 8.0, 0.0}));
  EXPECT_EQ(entities[0][QStringLiteral("radius")].toDouble(), 5.0);
}

TEST(RunningATool, ASecondOneInTheDocumentCancelsTheFirstAndRunsOn) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(
      QStringLiteral("c"), {{QStringLiteral("First"), QStringLiteral("^C^C_LINE 0,0 \\")},
                            {QStringLiteral("Second"), QStringLiteral("_CIRCLE \\3")}});
  const RunResult run = bench.batch(catalog, "TOOL:First\nTOOL:Second\n1,2\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_EQ(bench.count(QStringLiteral("LINE")), 0);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
}

TEST(RunningATool, IsRefusedWhileAnotherDocumentRunsOne) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(
      QStringLiteral("c"), {{QStringLiteral("First"), QStringLiteral("_LINE 0,0 \\")},
                            {QStringLiteral("Second"), QStringLiteral("_CIRCLE 1,2 3")}});
  const RunResult run = bench.batch(catalog, "NewDocument\n"
                                             "DOCUMENT:Drawing1.dxf\n"
                                             "TOOL:First\n"
                                             "DOCUMENT:Drawing2.dxf\n"
                                             "TOOL:Second\n"
                                             "DOCUMENT:Drawing1.dxf\n"
                                             "5,0\n\n"
                                             "DOCUMENT:Drawing2.dxf\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_TRUE(run.out.contains(QStringLiteral(
      "Execution canceled. Tool \"First\" is already running in document \"Drawing1.dxf\"")))
      << qPrintable(run.out);
  EXPECT_EQ(bench.entities().size(), 0) << "the second document stays as it was";
  EXPECT_FALSE(run.out.contains(QStringLiteral("_CIRCLE")));
}

TEST(RunningATool, PutsItsColourInForceAndTheDrawingsOwnBack) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(
      QStringLiteral("c"),
      {{QStringLiteral("Red"), QStringLiteral("_LINE 0,0 1,0;"),
        QStringLiteral(
            "<Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
            "<ColorCreateInfo><AcCmColor mRGB=\"3271557121\"/></ColorCreateInfo></Color>")}});
  const RunResult run = bench.batch(catalog, "TOOL:Red\nLINE 0,0 0,1 \n\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QJsonArray entities = bench.entities();
  ASSERT_EQ(entities.size(), 2);
  EXPECT_EQ(entities[0][QStringLiteral("color")].toInt(), 1);
  EXPECT_EQ(entities[1][QStringLiteral("color")].toInt(), 256);
}

TEST(RunningATool, AnUnknownOneFailsTheScriptAndIsNamed) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const RunResult run = bench.batch(catalog, "LINE 0,0 1,1 \nTOOL:Nothing\n");
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_TRUE(run.err.contains(QStringLiteral("Nothing"))) << qPrintable(run.err);
  EXPECT_TRUE(run.err.contains(QStringLiteral("2"))) << "the line's number";
}

} // namespace
