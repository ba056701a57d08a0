// From a click to the typed command, in a small and in a large catalog.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "catalog/tool.h"
#include "support/test_host.h"

#include <cstdio>

namespace {

/// A tool in the middle of a palette of that many tools.
struct Size {
  explicit Size(int tools)
    : palette(bench::makePalette(QStringLiteral("P"), tools)) {
    const auto all = palette->enumTools();
    for (int i = 0; i <= tools / 2; ++i) tool = all->next();
  }
  tc::OdTcToolPalettePtr palette;
  tc::OdTcTool* tool = nullptr;
};

/// An empty host still logs: what it keeps is thrown away outside the measured time.
void click(benchmark::State& state, const Size& size) {
  testhost::TestHost& host = testhost::host();
  testhost::TestDocument& document = host.documents.open(QStringLiteral("A.dxf"));
  int clicks = 0;
  for (auto _ : state) {
    size.tool->execute(&document);
    size.tool->finish();
    if (++clicks % 1000 == 0) {
      state.PauseTiming();
      host.log.clear();
      host.documents.locks.clear();
      document.sent.clear();
      state.ResumeTiming();
    }
  }
  host.reset();
}

} // namespace

int main(int argc, char** argv) {
  const bench::Classes classes;
  const Size small(100);
  const Size large(100000);
  benchmark::RegisterBenchmark("click 100", click, std::cref(small))->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("click 100000", click, std::cref(large))
      ->Unit(benchmark::kMicrosecond);
  const int result = bench::run(
      argc, argv,
      {{"click to typed command in 100,000 tools / in 100", "click 100000", "click 100", 1.3}});
  std::printf("The target is 50 microseconds a click; they stand in the rows above.\n");
  return result;
}
