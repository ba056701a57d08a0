// Importing a palette of another program, against the bare parser on the same bytes.
#include "bench/foreign_palette.h"
#include "bench/import_fixture.h"
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"

namespace {

constexpr int kTools = 10000;
constexpr qsizetype kFileBytes = 30 << 20;
constexpr int kTreeTools = 1000;

} // namespace

int main(int argc, char** argv) {
  const bench::Classes classes;
  const bench::ImportFixture full(bench::foreignPaletteOfSize(kTools, kFileBytes));
  const bench::ImportFixture few(bench::foreignPaletteText({kTreeTools, 0}));
  const bench::ImportFixture trees(bench::foreignPaletteOfSize(kTreeTools, kFileBytes));
  full.registerAs("");
  few.registerAs(" few");
  trees.registerAs(" trees");
  return bench::run(
      argc, argv,
      {{"importing 10,000 tools in 30 MB, saved / bare parse", "import", "bare parse", 2.0},
       {"only looking at them / bare parse", "dry run", "bare parse", 2.0},
       {"trees of others, parsed or passed over / their bare parse", "import trees",
        "bare parse trees", 2.0, 1.0, "import few", "bare parse few"}},
      {{"peak memory of the import / parsed document", full.peakInDocuments(), 2.0},
       {"the same, nearly all of it trees of others", trees.peakInDocuments(), 2.0}});
}
