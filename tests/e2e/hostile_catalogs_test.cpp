// Catalog folders that break every measure, as a running program meets them: each is named with
// the reason, the file stays as it was, and the tools of the others work on.
#include "batch_run.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace {

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return file.readAll();
}

QDir hostileFiles() { return QDir(QStringLiteral(SOURCE_DIR "/tests/data/hostile")); }

struct Catalogs {
  explicit Catalogs(const Workbench& bench) {
    // As they stand these files are palettes; those that can be read hold no catalog.
    const QStringList names = hostileFiles().entryList(QDir::Files);
    for (const QString& name : names) {
      const QString folder = name.section(u'.', 0, 0);
      files << bench.write(folder + QStringLiteral("/DrfTcCatalog.dtc"),
                           bytesOf(hostileFiles().filePath(name)));
      folders << bench.path(folder);
    }
    folders << bench.writeCatalog(QStringLiteral("good"),
                                  {{QStringLiteral("Dot"), QStringLiteral("_CIRCLE 0,0 1")}});
  }
  QStringList files;
  QStringList folders;
};

TEST(HostileCatalogs, AreNamedOnTheCommandLineAndTheOthersWork) {
  const Workbench bench;
  const Catalogs catalogs(bench);
  ASSERT_GE(catalogs.files.size(), 20);
  const RunResult run = bench.batch(catalogs.folders.join(u';'), "TOOL:Dot\n");
  EXPECT_FALSE(run.crashed);
  EXPECT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
  for (const QString& file : catalogs.files) {
    const QString folder = QFileInfo(file).dir().dirName();
    EXPECT_TRUE(run.out.contains(u'\\' + folder + QStringLiteral("\\DrfTcCatalog.dtc")))
        << qPrintable(folder) << " is not named:\n"
        << qPrintable(run.out);
    const QByteArray original = bytesOf(hostileFiles().filePath(folder + QStringLiteral(".dtc")));
    EXPECT_EQ(bytesOf(file), original) << qPrintable(folder) << " was changed";
  }
}

TEST(HostileCatalogs, AreFoundByTheCheckWithTheReason) {
  const Workbench bench;
  const Catalogs catalogs(bench);
  const RunResult run =
      runProgram(QStringLiteral("tpal"), QStringList(QStringLiteral("check")) + catalogs.folders);
  EXPECT_FALSE(run.crashed);
  EXPECT_NE(run.exitCode, 0);
  for (const QString& file : catalogs.files)
    EXPECT_TRUE((run.out + run.err).contains(QFileInfo(file).dir().dirName()))
        << qPrintable(file) << "\n"
        << qPrintable(run.out);
}

TEST(HostileCatalogs, TakeMemoryInProportionToTheirFile) {
  const Workbench bench;
  constexpr qint64 kMegabyte = 1024 * 1024;
  constexpr qint64 kSize = 50 * kMegabyte;
  bench.write(QStringLiteral("c/Palettes/huge.dtc"),
              "<Palette><ItemID idValue=\"P\"/><Tools><Tool><ItemID idValue=\"T\"/><Data>"
              "<Command Macro=\"" +
                  QByteArray(kSize, 'x') + "\"/></Data></Tool></Tools></Palette>");
  bench.write(QStringLiteral("c/DrfTcCatalog.dtc"),
              "<Catalog><Palettes><Palette><ItemID idValue=\"P\"/><Url "
              "href=\"Palettes\\huge.dtc\"/></Palette></Palettes></Catalog>");
  // Under the address sanitizer what is freed has to be free at once: it would otherwise be kept
  // back, up to 256 MB of it, and counted here as if the program held it.
  const QByteArray sanitizer = qgetenv("ASAN_OPTIONS");
  qputenv("ASAN_OPTIONS", sanitizer + ":quarantine_size_mb=0");
  const RunResult run = runProgram(QStringLiteral("tpal"),
                                   {QStringLiteral("check"), bench.path(QStringLiteral("c"))});
  qputenv("ASAN_OPTIONS", sanitizer);
  EXPECT_FALSE(run.crashed);
  EXPECT_LT(run.out.size(), 100000) << "what is said of it stays readable";
  struct rusage usage = {};
  ASSERT_EQ(getrusage(RUSAGE_CHILDREN, &usage), 0);
  // In kilobytes, the greatest of all programs that this one started.
  EXPECT_LT(usage.ru_maxrss, (6 * kSize + 100 * kMegabyte) / 1024);
}

TEST(HostileCatalogs, PalettesThatLeadOutOfTheFolderAreNeverWritten) {
  const Workbench bench;
  const QByteArray outside = "<Palette><ItemID idValue=\"P\"/><Tools/></Palette>";
  const QString file = bench.write(QStringLiteral("outside.dtc"), outside);
  const QByteArray catalog = "<Catalog><Palettes><Palette><ItemID idValue=\"P\"/><Url "
                             "href=\"..\\outside.dtc\"/></Palette></Palettes></Catalog>";
  bench.write(QStringLiteral("c/DrfTcCatalog.dtc"), catalog);
  const RunResult run = runProgram(QStringLiteral("tpal"),
                                   {QStringLiteral("resave"), bench.path(QStringLiteral("c")),
                                    QStringLiteral("--to"), bench.path(QStringLiteral("to/d"))});
  EXPECT_FALSE(run.crashed);
  EXPECT_EQ(bytesOf(file), outside);
  EXPECT_FALSE(QFile::exists(bench.path(QStringLiteral("to/outside.dtc"))))
      << "a copy goes nowhere but below its own folder";
}

} // namespace
