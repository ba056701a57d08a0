// Scripts that nobody in his right mind writes.
#include "batch_run.h"

#include <gtest/gtest.h>

namespace {

TEST(HostileScripts, AnUnknownCommandEndsTheScriptWithItsLine) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const RunResult run = bench.batch(catalog, "LINE 0,0 1,1 \n\nNOSUCHCOMMAND\nLINE 0,0 5,5 \n\n");
  EXPECT_FALSE(run.crashed);
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_TRUE(run.err.contains(QStringLiteral("line 3"))) << qPrintable(run.err);
  EXPECT_TRUE(run.err.contains(QStringLiteral("NOSUCHCOMMAND"))) << qPrintable(run.err);
}

TEST(HostileScripts, AMillionLinesAreRunInOrder) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  QByteArray script;
  for (int i = 0; i < 1000; ++i)
    script +=
        "CIRCLE " + QByteArray::number(i) + ",0 1\n" + QByteArray("# nothing\n").repeated(999);
  const RunResult run = bench.batch(catalog, script);
  EXPECT_FALSE(run.crashed);
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
  const QJsonArray entities = bench.entities();
  ASSERT_EQ(entities.size(), 1000);
  EXPECT_EQ(entities[999][QStringLiteral("center")].toArray(), (QJsonArray{999.0, 0.0, 0.0}));
}

TEST(HostileScripts, AFailureBehindManyLinesIsNamedByItsNumber) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const RunResult run =
      bench.batch(catalog, QByteArray("# nothing\n").repeated(100000) + "NOSUCHCOMMAND\n");
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_TRUE(run.err.contains(QStringLiteral("line 100001"))) << qPrintable(run.err.left(500));
}

TEST(HostileScripts, TextWithoutEndIsRefusedInAFewWords) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  for (const QByteArray& text :
       {QByteArray(20 * 1024 * 1024, 'x'), QByteArray(1024 * 1024, '^'),
        QByteArray(1024 * 1024, '\0'), QByteArray("\xFF\xFE").repeated(512 * 1024),
        QByteArray("TOOL:") + QByteArray(20 * 1024 * 1024, 'x')}) {
    const RunResult run = bench.batch(catalog, text);
    EXPECT_FALSE(run.crashed) << text.left(8).toHex().constData();
    EXPECT_EQ(run.exitCode, 1) << text.left(8).toHex().constData();
    EXPECT_TRUE(run.err.contains(QStringLiteral("line 1"))) << qPrintable(run.err.left(500));
    EXPECT_LT(run.err.size(), 5000) << text.left(8).toHex().constData();
  }
}

TEST(HostileScripts, TheEndInTheMiddleOfACommandIsTold) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const RunResult run = bench.batch(catalog, "LINE 0,0");
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_TRUE(run.err.contains(QStringLiteral("LINE"))) << qPrintable(run.err);
}

TEST(HostileScripts, StandardInputIsAScriptLikeAnyOther) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const RunResult run =
      runProgram(QStringLiteral("drafton"),
                 {QStringLiteral("batch"), QStringLiteral("--profile"), bench.profile(),
                  QStringLiteral("--catalogs"), catalog, QStringLiteral("--out"), bench.drawing()},
                 "CIRCLE 0,0 1\nNOSUCHCOMMAND\n");
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_TRUE(run.err.contains(QStringLiteral("line 2"))) << qPrintable(run.err);
}

TEST(HostileScripts, AFolderOrNoFileIsNamed) {
  const Workbench bench;
  for (const QString& script : {bench.path(QStringLiteral("none.scr")), bench.path(QString())}) {
    const RunResult run = runProgram(QStringLiteral("drafton"),
                                     {QStringLiteral("batch"), QStringLiteral("--profile"),
                                      bench.profile(), QStringLiteral("--script"), script});
    EXPECT_FALSE(run.crashed);
    EXPECT_NE(run.exitCode, 0);
    EXPECT_TRUE(run.err.contains(script)) << qPrintable(run.err);
    const bool isFolder = script == bench.path(QString());
    EXPECT_EQ(run.err.contains(QLatin1String("it is a folder")), isFolder) << qPrintable(run.err);
    EXPECT_FALSE(run.err.contains(QLatin1String("Unknown error"))) << qPrintable(run.err);
  }
}

} // namespace
