// Loading a catalog and saving a palette, against the bare parser on the same bytes.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "catalog/database.h"

#include <QDir>
#include <QFile>

#include <tinyxml.h>

#include <memory>

namespace {

constexpr int kPalettes = 100;
constexpr int kTools = 100;

struct Fixture {
  QTemporaryDir folder;
  OdString file = bench::writeCatalog(folder.path(), kPalettes, kTools);
  QList<QByteArray> bytes;
  qsizetype total = 0;

  Fixture() {
    for (const QString& path : bench::catalogFiles(folder.path())) {
      QFile f(path);
      if (f.open(QIODevice::ReadOnly)) bytes << f.readAll();
      total += bytes.last().size();
    }
  }
};

void bareParse(benchmark::State& state, const Fixture& fixture) {
  TiXmlBase::SetCondenseWhiteSpace(false);
  for (auto _ : state)
    for (const QByteArray& text : fixture.bytes) {
      TiXmlDocument document;
      document.Parse(text.constData(), nullptr, TIXML_ENCODING_UTF8);
      benchmark::DoNotOptimize(document.RootElement());
    }
}

void loadCatalog(benchmark::State& state, const Fixture& fixture) {
  for (auto _ : state) {
    const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
    if (!catalog->load(fixture.file)) state.SkipWithError("the catalog does not load");
  }
}

void bareSave(benchmark::State& state, const QByteArray& text, const QString& target) {
  TiXmlDocument original;
  original.Parse(text.constData(), nullptr, TIXML_ENCODING_UTF8);
  for (auto _ : state) {
    const TiXmlDocument built(original); // builds every node anew
    TiXmlPrinter printer;
    built.Accept(&printer);
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly)) state.SkipWithError("the file does not open");
    file.write(printer.CStr(), static_cast<qint64>(printer.Size()));
  }
}

void savePalette(benchmark::State& state, tc::OdTcToolPalette* palette) {
  for (auto _ : state)
    if (!palette->save()) state.SkipWithError("the palette does not save");
}

double memoryPerByte(const Fixture& fixture) {
  const std::size_t before = bench::allocatedBytes();
  const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
  catalog->load(fixture.file);
  const std::size_t after = bench::allocatedBytes();
  return static_cast<double>(after - before) / static_cast<double>(fixture.total);
}

} // namespace

int main(int argc, char** argv) {
  const bench::Classes classes;
  const Fixture fixture;
  const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
  catalog->load(fixture.file);
  const tc::OdTcToolPalettePtr palette = bench::makePalette(QStringLiteral("Saved"), 1000);
  catalog->addPalette(palette);
  if (!palette->save()) qFatal("%s", qPrintable(palette->getDatabase()->saveProblem()));
  QByteArray saved;
  for (const QString& path : bench::catalogFiles(fixture.folder.path()))
    if (path.contains(QStringLiteral("Saved"))) {
      QFile f(path);
      if (f.open(QIODevice::ReadOnly)) saved = f.readAll();
    }

  benchmark::RegisterBenchmark("bare parse", bareParse, std::cref(fixture))
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("load", loadCatalog, std::cref(fixture))
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("bare save", bareSave, saved, fixture.folder.filePath("bare.xml"))
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("save", savePalette, palette.get())->Unit(benchmark::kMillisecond);
  return bench::run(
      argc, argv,
      {{"loading 100 palettes of 100 tools / bare parse", "load", "bare parse", 1.5},
       {"saving a palette of 1,000 tools / bare build and print", "save", "bare save", 1.5}},
      {{"memory after loading / bytes read", memoryPerByte(fixture), 1.5}});
}
