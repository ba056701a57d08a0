// Tools made from libraries of blocks, with their pictures: the time of one must not grow with
// their number, and all cores work on the pictures.
#include "bench/ratio_report.h"
#include "drafton/previews/offscreen_application.h"
#include "drafton/previews/preview_service.h"
#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/text.h"
#include "frame/file_path.h"
#include "tpal/command.h"
#include "tpal/console_host.h"

#include <QTemporaryDir>

#include <cmath>

namespace {

/// A part of a library as libraries have them: some lines, a circle, a name.
void fill(OdDbBlockTableRecord& block, int number) {
  for (int i = 0; i < 12; ++i) {
    const double angle = number * 0.7 + i * 0.5;
    block.appendOdDbEntity(odrxMake<OdDbLine>(
        OdGePoint3d{i * 5.0, 0, 0}, OdGePoint3d{80 * std::cos(angle), 80 * std::sin(angle), 0}));
  }
  block.appendOdDbEntity(
      odrxMake<OdDbCircle>(OdGePoint3d(), OdGeVector3d::zAxis(), 10.0 + number % 30));
  const auto text = odrxMake<OdDbText>();
  text->setTextString(OdString::number(number));
  text->setHeight(8);
  block.appendOdDbEntity(text);
}

/// The file of a library with so many blocks.
QString writeLibrary(const QTemporaryDir& folder, int blocks) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  const auto table = drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
  for (int i = 0; i < blocks; ++i) {
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(QStringLiteral("Part %1").arg(i));
    table->add(block);
    fill(*block, i);
  }
  const QString path = folder.filePath(QStringLiteral("%1.dxf").arg(blocks));
  drawing->writeFile(odpath::fromPlatform(path));
  return path;
}

KVPtr<IHostPreviewService> makePreviews() {
  drafton::OffscreenApplication::prepareThread();
  return kvMake<drafton::PreviewService>(
             [](const OdString&, const OdString&) { return std::nullopt; })
      .get();
}

void make(benchmark::State& state, const QString& library, bool onAllCores) {
  tpal::ConsoleHost& host = tpal::ConsoleHost::instance();
  host.setPreviewMaker(onAllCores ? tpal::ConsoleHost::PreviewMaker(&makePreviews) : nullptr);
  for (auto _ : state) {
    const QTemporaryDir folder;
    QString out, err;
    QTextStream outStream(&out), errStream(&err);
    tpal::Console console{outStream, errStream};
    const int code = tpal::runTool({QStringLiteral("make"), folder.path(), QStringLiteral("P"),
                                    library, QStringLiteral("--blocks")},
                                   console);
    if (code != tpal::kOk) state.SkipWithError("tools are missing");
  }
}

} // namespace

int main(int argc, char** argv) {
  const drafton::OffscreenApplication application(argc, argv);
  tpal::ConsoleHost::instance().setPreviews(makePreviews());
  // A test only sees that it runs.
  const bool isQuick = std::any_of(argv, argv + argc,
                                   [](const char* word) { return word == std::string("--quick"); });
  const QTemporaryDir folder;
  const QString few = writeLibrary(folder, isQuick ? 20 : 1000);
  const QString many = writeLibrary(folder, isQuick ? 200 : 10000);
  const auto add = [](const char* name, const QString& library, bool onAllCores) {
    benchmark::RegisterBenchmark(name, make, library, onAllCores)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->UseRealTime();
  };
  add("make 1000", few, true);
  add("make 10000", many, true);
  add("make 10000 on one core", many, false);
  return bench::run(
      argc, argv,
      {{"make: time per tool at 10,000 / at 1,000", "make 10000", "make 1000", 1.3, 0.1},
       {"make: 10,000 tools on all cores / on one", "make 10000", "make 10000 on one core", 0.75}});
}
