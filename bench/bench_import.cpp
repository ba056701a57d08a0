// Importing a palette of another program, against the bare parser on the same bytes.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"

#include <QFile>
#include <QTemporaryDir>

#include <tinyxml.h>

namespace {

constexpr int kTools = 10000;
constexpr qsizetype kFileBytes = 30 << 20;

QByteArray property(const QByteArray& name) {
  return "<" + name + "><BasicPropInfo><PropValue unspecified=\"TRUE\"/></BasicPropInfo></" + name +
         ">";
}

/// A block tool with its general properties and, behind them, `tree`.
QByteArray toolText(int number, const QByteArray& tree) {
  const QByteArray name = "Tool " + QByteArray::number(number);
  QByteArray text =
      "<Tool Revision=\"25.1.1\" option=\"0\"><ItemID idValue=\"{" + name +
      "}\"/><Properties><ItemName>" + name +
      "</ItemName><Images option=\"0\"/><Time createdUniversalDateTime=\"2026-01-01T00:"
      "00:00\" modifiedUniversalDateTime=\"2026-01-01T00:00:00\"/></Properties><Source/>"
      "<ToolType>1</ToolType><StockToolRef idValue=\"{S}\"/><Data><GeneralProperties>";
  for (const char* each : {"Color", "Layer", "Linetype", "LinetypeScale", "PlotStyle", "LineWeight",
                           "Transparency", "Textstyle", "Dimstyle", "Tablestyle"})
    text += property(each);
  return text + "</GeneralProperties><Block><BlockType>1</BlockType><BlockName>" + name +
         "</BlockName><SourceFile>D:\\lib\\door.dwg</SourceFile><InsertAs>1</InsertAs><Scale>1"
         "</Scale><Rotation>0</Rotation></Block>" +
         tree + "</Data></Tool>";
}

/// What dynamic blocks carry along, about as many bytes of it.
QByteArray treeOf(qsizetype bytes) {
  QByteArray records;
  for (int i = 0; records.size() < bytes; ++i)
    records +=
        "<Xrecord handle=\"" + QByteArray::number(i) +
        "\"><Resbuf code=\"70\">12</Resbuf><Resbuf><![CDATA[text & more]]></Resbuf></Xrecord>";
  return "<DynamicProperties><ExtensionDictionary><Dictionary>" + records +
         "</Dictionary></ExtensionDictionary></DynamicProperties>";
}

QByteArray paletteText(const QByteArray& tree) {
  QByteArray tools;
  for (int i = 0; i < kTools; ++i) tools += toolText(i, tree);
  return "<ToolPaletteExport><DependentFilesPath>p</"
         "DependentFilesPath><PaletteSets><PaletteSetData>"
         "<PaletteSetContent><Palettes><PaletteData><PaletteContent><Palette><ItemID "
         "idValue=\"{P}\"/><Properties><ItemName>P</ItemName></Properties><Tools>" +
         tools +
         "</Tools></Palette></PaletteContent></PaletteData></Palettes></PaletteSetContent>"
         "</PaletteSetData></PaletteSets></ToolPaletteExport>\r\n";
}

struct Fixture {
  QTemporaryDir folder;
  QByteArray plain = paletteText({});
  QByteArray full = paletteText(treeOf((kFileBytes - plain.size()) / kTools));
  tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();

  Fixture() {
    write(QStringLiteral("plain.xtp"), plain);
    write(QStringLiteral("full.xtp"), full);
  }
  void write(const QString& name, const QByteArray& bytes) const {
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::WriteOnly)) file.write(bytes);
  }
  /// Reads, reviews and adopts the palette of a file; nothing goes to the disk.
  tc::OdTcToolPalettePtr import(const char* name) const {
    tc::OdTcImportOptions options;
    options.dryRun = true;
    tc::OdTcImportReport report;
    return catalog->importPalette(folder.filePath(QLatin1String(name)), options, report);
  }
};

void bareParse(benchmark::State& state, const QByteArray& text) {
  TiXmlBase::SetCondenseWhiteSpace(false);
  for (auto _ : state) {
    TiXmlDocument document;
    document.Parse(text.constData(), nullptr, TIXML_ENCODING_UTF8);
    benchmark::DoNotOptimize(document.RootElement());
  }
}

void import(benchmark::State& state, const Fixture& fixture, const char* name) {
  for (auto _ : state)
    if (!fixture.import(name)) state.SkipWithError("the palette does not come in");
}

/// What the palette takes besides the document that it was read from, in documents.
double memoryInDocuments(const Fixture& fixture) {
  const std::size_t before = bench::allocatedBytes();
  std::size_t parsed = 0;
  {
    TiXmlDocument document;
    document.Parse(fixture.full.constData(), nullptr, TIXML_ENCODING_UTF8);
    parsed = bench::allocatedBytes() - before;
  }
  const std::size_t start = bench::allocatedBytes();
  const tc::OdTcToolPalettePtr palette = fixture.import("full.xtp");
  const std::size_t kept = bench::allocatedBytes() - start;
  return 1.0 + static_cast<double>(kept) / static_cast<double>(parsed);
}

} // namespace

int main(int argc, char** argv) {
  const bench::Classes classes;
  const Fixture fixture;
  benchmark::RegisterBenchmark("bare parse", bareParse, fixture.full)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("import", import, std::cref(fixture), "full.xtp")
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("bare parse without trees", bareParse, fixture.plain)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("import without trees", import, std::cref(fixture), "plain.xtp")
      ->Unit(benchmark::kMillisecond);
  return bench::run(
      argc, argv,
      {{"importing 10,000 tools in 30 MB / bare parse", "import", "bare parse", 2.0},
       {"the same without trees of dynamic blocks / bare parse", "import without trees",
        "bare parse without trees", 2.0}},
      {{"memory of document and palette / document", memoryInDocuments(fixture), 2.0}});
}
