// Loading, saving and looking up: the time of one tool must not grow with their number.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "catalog/database.h"
#include "catalog/tool.h"

#include <memory>

namespace {

/// A palette of one size, saved in a folder of its own.
struct Size {
  explicit Size(int count)
    : tools(count)
    , palette(bench::makePalette(QStringLiteral("P"), count)) {
    path = folder.path() + QStringLiteral("/palette.dtc");
    if (!palette->saveAs(path)) qFatal("%s", qPrintable(palette->getDatabase()->saveProblem()));
    const auto all = palette->enumTools();
    while (const tc::OdTcTool* tool = all->next()) ids << tool->id();
  }

  int tools;
  QTemporaryDir folder;
  tc::OdTcToolPalettePtr palette;
  OdString path;
  QStringList ids;
};

void load(benchmark::State& state, const Size& size) {
  for (auto _ : state) {
    const tc::OdTcToolPalettePtr palette = tc::OdTcToolPalette::createObject();
    if (!palette->load(size.path)) state.SkipWithError("the palette does not load");
  }
}

void save(benchmark::State& state, Size& size) {
  for (auto _ : state)
    if (!size.palette->save()) state.SkipWithError("the palette does not save");
}

void lookUp(benchmark::State& state, const Size& size) {
  // The same number of lookups for every size, spread over all tools.
  constexpr int kLookups = 1000;
  const int step = size.tools / kLookups;
  for (auto _ : state)
    for (int i = 0; i < kLookups; ++i)
      benchmark::DoNotOptimize(size.palette->findItem(size.ids[i * step]));
}

} // namespace

int main(int argc, char** argv) {
  const bench::Classes classes;
  Size small(1000);
  Size large(100000);
  for (Size* size : {&small, &large}) {
    const std::string n = std::to_string(size->tools);
    benchmark::RegisterBenchmark(("load " + n).c_str(), load, std::cref(*size))
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("save " + n).c_str(), save, std::ref(*size))
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("lookup " + n).c_str(), lookUp, std::cref(*size))
        ->Unit(benchmark::kMicrosecond);
  }
  constexpr double kPerTool = 1000.0 / 100000.0;
  return bench::run(
      argc, argv,
      {{"load: time per tool at 100,000 / at 1,000", "load 100000", "load 1000", 1.3, kPerTool},
       {"save: time per tool at 100,000 / at 1,000", "save 100000", "save 1000", 1.3, kPerTool},
       {"lookup by id at 100,000 / at 1,000", "lookup 100000", "lookup 1000", 1.3}});
}
