#include "bench/import_fixture.h"

#include "bench/ratio_report.h"
#include "catalog/catalog.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFile>

#include <malloc.h>
#include <tinyxml.h>

#include <utility>

namespace bench {
namespace {

/// A line of what the system says of this process, in bytes.
double processBytes(const char* name) {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith(name))
      return line.mid(line.indexOf(':') + 1).trimmed().split(' ')[0].toDouble() * 1024;
  return 0;
}

/// What the process has more of, at most, while `work` is done.
template <class Work>
double peakOf(const Work& work) {
  malloc_trim(0);
  QFile peak(QStringLiteral("/proc/self/clear_refs"));
  if (peak.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) peak.write("5");
  const double before = processBytes("VmRSS:");
  work();
  return processBytes("VmHWM:") - before;
}

} // namespace

ImportFixture::ImportFixture(QByteArray text)
  : m_text(std::move(text)) {
  QFile file(m_folder.filePath(QStringLiteral("p.xtp")));
  if (!file.open(QIODevice::WriteOnly) || file.write(m_text) != m_text.size())
    qFatal("%s", qPrintable(file.errorString()));
}

void ImportFixture::bareParse() const {
  TiXmlDocument document;
  document.Parse(m_text.constData(), nullptr, TIXML_ENCODING_UTF8);
  benchmark::DoNotOptimize(document.RootElement());
}

void ImportFixture::clear() const {
  QDir(m_folder.filePath(QStringLiteral("catalog"))).removeRecursively();
}

bool ImportFixture::import(bool dryRun) const {
  const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
  const QDir folder(m_folder.path());
  folder.mkpath(QStringLiteral("catalog"));
  const OdString file = folder.filePath(QStringLiteral("catalog/DrfTcCatalog.dtc"));
  if (!catalog->save(odpath::fromPlatform(file))) return false;
  tc::OdTcImportOptions options;
  options.dryRun = dryRun;
  tc::OdTcImportReport report;
  return catalog->importPalette(odpath::fromPlatform(folder.filePath(QStringLiteral("p.xtp"))),
                                options, report) != nullptr;
}

void ImportFixture::registerAs(const std::string& ending) const {
  const auto add = [&ending](const std::string& name, auto run) {
    benchmark::RegisterBenchmark((name + ending).c_str(), run)->Unit(benchmark::kMillisecond);
  };
  add("bare parse", [this](benchmark::State& state) {
    TiXmlBase::SetCondenseWhiteSpace(false);
    for (auto _ : state) bareParse();
  });
  for (const bool dryRun : {false, true})
    add(dryRun ? "dry run" : "import", [this, dryRun](benchmark::State& state) {
      for (auto _ : state) {
        if (!import(dryRun)) state.SkipWithError("the palette does not come in");
        state.PauseTiming();
        clear();
        state.ResumeTiming();
      }
    });
}

double ImportFixture::peakInDocuments() const {
  const std::size_t before = allocatedBytes();
  std::size_t parsed = 0;
  {
    TiXmlDocument document;
    document.Parse(m_text.constData(), nullptr, TIXML_ENCODING_UTF8);
    parsed = allocatedBytes() - before;
  }
  const double peak = peakOf([this] {
    if (!import(false)) qFatal("the palette does not come in");
  });
  clear();
  return peak / static_cast<double>(parsed);
}

} // namespace bench
