// Starting the host: what the module and an empty catalog folder add.
#include "bench/ratio_report.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

QString programIn(const QString& folder) { return folder + QStringLiteral("/drafton"); }

/// A folder with the program in it and, perhaps, the module beside it.
void setUp(const QString& folder, bool withModule) {
  const QString bin = QStringLiteral(BINARY_DIR);
  QStringList names{QStringLiteral("drafton"), QStringLiteral("libodframe.so"),
                    QStringLiteral("liboddrawing.so")};
  if (withModule) names << QStringLiteral("ToolPaletteManager.so");
  for (const QString& name : names) QFile::copy(bin + u'/' + name, folder + u'/' + name);
}

void start(benchmark::State& state, const QString& folder) {
  const QStringList arguments{QStringLiteral("batch"), QStringLiteral("--profile"),
                              folder + QStringLiteral("/profile.ini"), QStringLiteral("--catalogs"),
                              folder + QStringLiteral("/catalogs")};
  for (auto _ : state) {
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(programIn(folder), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
      state.SkipWithError("the program does not run");
  }
}

} // namespace

int main(int argc, char** argv) {
  QTemporaryDir bare;
  QTemporaryDir loaded;
  setUp(bare.path(), false);
  setUp(loaded.path(), true);
  for (const QTemporaryDir* folder : {&bare, &loaded})
    QDir(folder->path()).mkdir(QStringLiteral("catalogs"));
  benchmark::RegisterBenchmark("bare host", start, bare.path())->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("with module", start, loaded.path())->Unit(benchmark::kMillisecond);
  const int result = bench::run(
      argc, argv, {{"start with the module / bare host", "with module", "bare host", 3.0}});
  std::printf("The target is 20 ms more than the bare host.\n");
  return result;
}
