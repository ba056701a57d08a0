// Pictures of tools: palettes that have them, photographs, previews of blocks.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "catalog/database.h"
#include "catalog/tool.h"
#include "catalog/tool_palette.h"
#include "drafton/previews/offscreen_application.h"
#include "drafton/previews/preview_service.h"
#include "drawing/database.h"
#include "drawing/entities/line.h"
#include "frame/file_path.h"
#include "images/image_list.h"
#include "images/picture_cache.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kTools = 1000;

/// What the palettes that are compared have of pictures.
enum class Pictures { kNone, kNamed, kThere };

/// A palette's file as the program itself writes it: tools with their general properties, and with
/// pictures, which lie beside it or are missing there.
QString writePalette(const QTemporaryDir& folder, const QString& name, Pictures pictures) {
  const OdString place = odpath::fromPlatform(folder.filePath(name));
  QDir().mkpath(folder.filePath(name));
  const tc::OdTcToolPalettePtr palette = bench::makePalette(name, kTools);
  palette->getDatabase()->setPath(place + QLatin1String("\\palette.dtc"));
  const auto tools = palette->enumTools();
  while (tc::OdTcTool* const tool = pictures == Pictures::kNone ? nullptr : tools->next()) {
    tool->setImages(tc::OdTcImageList::createObject());
    const OdCmColor color = OdCmColor::fromRgb(9, 9, 9);
    tool->images()->setFrom([&](tc::OdTcImage& image) {
      return image.makeFromGradient(QStringLiteral("LINEAR"), color, color);
    });
  }
  palette->save();
  if (pictures == Pictures::kNamed)
    QDir(folder.filePath(name + QStringLiteral("/Images"))).removeRecursively();
  return folder.filePath(name + QStringLiteral("/palette.dtc"));
}

void load(benchmark::State& state, const QString& file) {
  for (auto _ : state) {
    const tc::OdTcToolPalettePtr palette = tc::OdTcToolPalette::createObject();
    palette->load(odpath::fromPlatform(file));
    benchmark::DoNotOptimize(palette->enumTools()->next());
  }
}

void threePictures(benchmark::State& state, const OdString& photo) {
  for (auto _ : state) {
    const tc::OdTcImageListPtr images = tc::OdTcImageList::createObject();
    if (!images->setFromFile(photo)) state.SkipWithError("no pictures");
  }
}

void onePicture(benchmark::State& state, const QString& photo) {
  for (auto _ : state)
    benchmark::DoNotOptimize(
        QImage(photo).scaled(64, 64, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// A block of a thousand lines.
OdDbObjectId bigBlock(OdDbDatabase& drawing) {
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(QStringLiteral("Big"));
  const OdDbObjectId id =
      drawing.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  for (int i = 0; i < 1000; ++i)
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{i % 37 * 1.0, i % 41 * 1.0, 0},
                                               OdGePoint3d{i % 43 * 1.0, i % 47 * 1.0, 0}));
  return id;
}

/// Shows every picture of a palette ten times over, as somebody does who scrolls to and fro, and
/// tells what stays in memory.
void tellMemory(const QString& file) {
  const tc::OdTcToolPalettePtr palette = tc::OdTcToolPalette::createObject();
  palette->load(odpath::fromPlatform(file));
  qsizetype shown = 0, most = 0;
  for (int round = 0; round < 10; ++round) {
    const tc::OdTcEnumPtr<tc::OdTcTool> tools = palette->enumTools();
    while (tc::OdTcTool* const tool = tools->next()) {
      const auto images = tool->images()->enumImages();
      while (tc::OdTcImage* const image = images->next()) shown += image->getBitmap().sizeInBytes();
      most = std::max(most, tc::PictureCache::instance().size());
    }
  }
  std::printf(
      "Pictures of %.1f MB were shown; at most %.1f MB of them were in memory, the bound is "
      "%.1f MB.\n",
      static_cast<double>(shown) / (1 << 20), static_cast<double>(most) / (1 << 20),
      static_cast<double>(tc::PictureCache::instance().limit()) / (1 << 20));
}

void preview(benchmark::State& state, OdDbObjectId block) {
  const auto service = kvMake<drafton::PreviewService>(
      [](const OdString&, const OdString&) { return std::nullopt; });
  const OdGeExtents3d box = block.openAs<OdDbBlockTableRecord>()->extents();
  const OdDbObjectId objects[] = {block};
  for (auto _ : state) benchmark::DoNotOptimize(service->renderObjects(objects, box, 64));
}

} // namespace

int main(int argc, char** argv) {
  const drafton::OffscreenApplication application(argc, argv);
  const bench::Classes classes;
  const QTemporaryDir folder;
  const QString with = writePalette(folder, QStringLiteral("with"), Pictures::kThere);
  const QString named = writePalette(folder, QStringLiteral("named"), Pictures::kNamed);
  const QString without = writePalette(folder, QStringLiteral("without"), Pictures::kNone);
  const QString photo = folder.filePath(QStringLiteral("photo.jpg"));
  QImage picture(4000, 3000, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      picture.setPixel(x, y, qRgb(x * y % 251, (x + y) % 256, (x ^ y) % 256));
  picture.save(photo, "JPEG");
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  const OdDbObjectId block = bigBlock(*drawing);

  benchmark::RegisterBenchmark("load with pictures", load, with)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("load with missing pictures", load, named)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("load without", load, without)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("three pictures", threePictures, odpath::fromPlatform(photo))
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("one picture by Qt", onePicture, photo)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("preview of 1000 lines", preview, block)
      ->Unit(benchmark::kMillisecond);
  const int result = bench::run(
      argc, argv,
      {{"a palette with its pictures / without any", "load with pictures", "load without", 1.2},
       {"a palette with its pictures / without the files", "load with pictures",
        "load with missing pictures", 1.2},
       {"three pictures of a photo / one by Qt", "three pictures", "one picture by Qt", 1.3},
       {"preview of a block of 1,000 lines, in milliseconds", "preview of 1000 lines", "", 20.0,
        1000.0}});
  tellMemory(with);
  return result;
}
