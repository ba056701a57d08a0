// Palettes beyond what anybody should have: one of 200 MB, and one of 100,000 tools.
#include "bench/foreign_palette.h"
#include "bench/import_fixture.h"
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"

#include <cstring>

int main(int argc, char** argv) {
  const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
  // A quick run only shows that it goes.
  const int part = quick ? 50 : 1;
  const bench::Classes classes;
  const bench::ImportFixture large(
      bench::foreignPaletteOfSize(10000 / part, (qsizetype{200} << 20) / part));
  const bench::ImportFixture many(bench::foreignPaletteText({100000 / part, 0}));
  large.registerAs(" of 200 MB");
  many.registerAs(" of 100,000 tools");
  return bench::run(
      argc, argv,
      {{"importing 200 MB / bare parse", "import of 200 MB", "bare parse of 200 MB", 2.0},
       {"importing 100,000 tools / bare parse", "import of 100,000 tools",
        "bare parse of 100,000 tools", 2.0}},
      {{"peak memory of importing 200 MB / parsed document", large.peakInDocuments(), 2.0},
       {"peak memory of importing 100,000 tools / parsed document", many.peakInDocuments(), 2.0}});
}
