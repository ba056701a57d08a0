// General properties: the walk before a run in small and large drawings, and palettes whose tools
// have snapshots of whole dimension styles.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "catalog/database.h"
#include "catalog/tool.h"
#include "drawing/database.h"
#include "properties/database_property_impl.h"
#include "properties/property_bag.h"

#include <QFile>

#include <tinyxml.h>

namespace {

OdDbDatabasePtr drawingWithLayers(int count) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  const auto layers = drawing->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  for (int i = 0; i < count; ++i) {
    auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(QStringLiteral("Layer %1").arg(i));
    layers->add(layer);
  }
  return drawing;
}

template <class Act>
void eachProperty(const tc::OdTcTool& tool, Act act) {
  const auto properties = tool.getGeneralProperties()->enumProperties();
  while (tc::OdTcProperty* const property = properties->next())
    act(dynamic_cast<tc::OdTcDatabasePropertyImpl&>(*property));
}

/// Snapshots of what is usual in a drawing, and of one of its layers.
void takeSnapshots(const tc::OdTcTool& tool, const OdDbDatabase& drawing) {
  eachProperty(tool, [&](tc::OdTcDatabasePropertyImpl& property) {
    const OdString element = property.elementName();
    if (element == QLatin1String("Dimstyle")) property.takeRecord(drawing.currentDimStyle());
    if (element == QLatin1String("Textstyle")) property.takeRecord(drawing.currentTextStyle());
    if (element == QLatin1String("Linetype"))
      property.takeRecord(drawing.getLinetypeContinuousId());
    if (element == QLatin1String("Layer"))
      property.takeRecord(
          drawing.getLayerTableId().openAs<OdDbLayerTable>()->getAt(QStringLiteral("Layer 7")));
    if (element == QLatin1String("Color")) property.setColor(OdCmColor::fromColorIndex(3));
    if (element == QLatin1String("LineWeight")) property.setText(QStringLiteral("35"));
  });
}

void walk(benchmark::State& state, int layers) {
  const OdDbDatabasePtr drawing = drawingWithLayers(layers);
  const tc::OdTcToolPtr tool = tc::OdTcTool::createObject();
  takeSnapshots(*tool, *drawing);
  for (auto _ : state) {
    eachProperty(*tool, [&](auto& property) { property.applyToDatabase(drawing); });
    eachProperty(*tool, [&](auto& property) { property.restoreToDatabase(drawing); });
  }
}

struct Saved {
  QTemporaryDir folder;
  OdString file = bench::writeCatalog(folder.path(), 0, 0);
  QByteArray bytes;

  explicit Saved(int tools) {
    const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
    catalog->load(file);
    const tc::OdTcToolPalettePtr palette = bench::makePalette(QStringLiteral("Styles"), tools);
    const OdDbDatabasePtr drawing = drawingWithLayers(10);
    const auto all = palette->enumTools();
    while (tc::OdTcTool* const tool = all->next())
      eachProperty(*tool, [&](tc::OdTcDatabasePropertyImpl& property) {
        if (property.elementName() == QLatin1String("Dimstyle"))
          property.takeRecord(drawing->currentDimStyle());
      });
    catalog->addPalette(palette);
    if (!palette->save()) qFatal("%s", qPrintable(palette->getDatabase()->saveProblem()));
    catalog->save(file);
    for (const QString& path : bench::catalogFiles(folder.path()))
      if (path.contains(QStringLiteral("Styles"))) {
        QFile in(path);
        if (in.open(QIODevice::ReadOnly)) bytes = in.readAll();
      }
  }
};

void bareParse(benchmark::State& state, const QByteArray& bytes) {
  TiXmlBase::SetCondenseWhiteSpace(false);
  for (auto _ : state) {
    TiXmlDocument document;
    document.Parse(bytes.constData(), nullptr, TIXML_ENCODING_UTF8);
    benchmark::DoNotOptimize(document.RootElement());
  }
}

void loadStyles(benchmark::State& state, const OdString& file) {
  for (auto _ : state) {
    const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
    if (!catalog->load(file)) state.SkipWithError("the catalog does not load");
  }
}

} // namespace

int main(int argc, char** argv) {
  const bench::Classes classes;
  const Saved saved(1000);
  if (!saved.bytes.contains("DimstyleTableRecord")) qFatal("the palette has no snapshots");
  benchmark::RegisterBenchmark("walk, 10 layers", walk, 10)->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("walk, 100,000 layers", walk, 100'000)
      ->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("bare parse", bareParse, std::cref(saved.bytes))
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("load", loadStyles, saved.file)->Unit(benchmark::kMillisecond);
  return bench::run(
      argc, argv,
      {{"properties before and after a run, 100,000 layers / 10 layers", "walk, 100,000 layers",
        "walk, 10 layers", 1.3},
       {"loading 1,000 tools with dimension styles / bare parse", "load", "bare parse", 1.5}});
}
