// Opening a drawing against splitting its file into tags, saving it against writing the same bytes.
#include "bench/ratio_report.h"
#include "drawing/database.h"
#include "drawing/dxf/bytes.h"
#include "drawing/dxf/source.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"

#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstring>
#include <memory>
#include <random>

namespace {

constexpr int kSizes[] = {1'000, 10'000, 100'000, 1'000'000};

/// Places as drafters make them: most of them round, some computed.
class Places {
 public:
  double next() {
    const double exact = m_range(m_random);
    return m_random() % 4 == 0 ? exact : std::round(exact * 1000) / 1000;
  }
  OdGePoint3d point() { return {next(), next(), 0}; }
  std::uint32_t pick(std::uint32_t count) { return static_cast<std::uint32_t>(m_random() % count); }

 private:
  std::mt19937 m_random{1};
  std::uniform_real_distribution<double> m_range{0, 10'000};
};

OdDbEntityPtr makeOne(Places& places, int i) {
  // About what a plan consists of.
  switch (i % 10) {
  case 0:
    return odrxMake<OdDbCircle>(places.point(), OdGeVector3d::zAxis(), 1 + places.next());
  case 1:
    return odrxMake<OdDbArc>(places.point(), OdGeVector3d::zAxis(), 1 + places.next(), 0.5, 2);
  case 2:
  case 3: {
    const auto line = odrxMake<OdDbPolyline>();
    for (unsigned corner = 0; corner < 4 + places.pick(8); ++corner)
      line->addVertexAt(corner, {places.next(), places.next()}, corner == 2 ? 0.5 : 0);
    line->setClosed(true);
    return line;
  }
  case 4: {
    const auto text = odrxMake<OdDbText>();
    text->setPosition(places.point());
    text->setHeight(2.5);
    text->setTextString(QStringLiteral("Room %1.%2").arg(places.pick(9)).arg(places.pick(99)));
    return text;
  }
  default:
    return odrxMake<OdDbLine>(places.point(), places.point());
  }
}

OdDbDatabasePtr makeDrawing(int count) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto layers = db->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
  std::vector<OdDbObjectId> ids;
  for (int i = 0; i < 20; ++i) {
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(QStringLiteral("A-WALL-%1").arg(i));
    ids.push_back(layers->add(layer));
  }
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  Places places;
  for (int i = 0; i < count; ++i) {
    const OdDbEntityPtr entity = makeOne(places, i);
    entity->setLayer(ids[static_cast<std::size_t>(i / 50) % ids.size()]);
    if (i % 7 == 0) entity->setColor(OdCmColor::fromColorIndex(1 + i % 5));
    space->appendOdDbEntity(entity);
  }
  return db;
}

struct Drawing {
  QTemporaryDir folder;
  OdString path = folder.filePath(QStringLiteral("drawing.dxf"));
  qint64 size = 0;

  explicit Drawing(int count) {
    makeDrawing(count)->writeFile(path);
    size = QFile(path).size();
  }
};

void split(benchmark::State& state, const OdString& path) {
  for (auto _ : state) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
      state.SkipWithError("the file does not open");
    const auto source = OdDbDxfSource::of(OdDbDxfBytes(file));
    OdDbDxfTag tag;
    std::size_t bytes = 0;
    while (source->next(tag) == OdDbDxfSource::kTag) bytes += tag.text.size();
    benchmark::DoNotOptimize(bytes);
  }
}

void open(benchmark::State& state, const OdString& path) {
  for (auto _ : state) {
    OdDbDatabasePtr db = OdDbDatabase::readFile(path);
    state.PauseTiming();
    db = nullptr;
    state.ResumeTiming();
  }
}

void write(benchmark::State& state, const OdString& path) {
  QFile original(path);
  if (!original.open(QIODevice::ReadOnly)) state.SkipWithError("the file does not open");
  const QByteArray bytes = original.readAll();
  for (auto _ : state) {
    // With the same care: into a new file, which then takes the place of the old one.
    QSaveFile file(path + QStringLiteral(".written"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
      state.SkipWithError("the file is not written");
  }
}

void save(benchmark::State& state, const OdString& path) {
  const OdDbDatabasePtr db = OdDbDatabase::readFile(path);
  for (auto _ : state) db->writeFile(path + QStringLiteral(".saved"));
}

double memoryPerByte(const Drawing& drawing) {
  const std::size_t before = bench::allocatedBytes();
  const OdDbDatabasePtr db = OdDbDatabase::readFile(drawing.path);
  const std::size_t after = bench::allocatedBytes();
  return static_cast<double>(after - before) / static_cast<double>(drawing.size);
}

std::string named(const std::string& what, int count) { return what + ' ' + std::to_string(count); }

} // namespace

int main(int argc, char** argv) {
  bool quick = false;
  for (int i = 1; i < argc; ++i) quick = quick || std::strcmp(argv[i], "--quick") == 0;
  std::vector<std::unique_ptr<Drawing>> drawings;
  std::vector<bench::Ratio> ratios;
  std::vector<bench::Figure> figures;
  using Work = void (*)(benchmark::State&, const OdString&);
  constexpr std::pair<const char*, Work> kWorks[] = {
      {"split", split}, {"open", open}, {"write", write}, {"save", save}};
  for (const int count : kSizes) {
    if (quick && count > kSizes[0]) break;
    const Drawing& drawing = *drawings.emplace_back(std::make_unique<Drawing>(count));
    for (const auto& [name, work] : kWorks)
      benchmark::RegisterBenchmark(named(name, count).c_str(), work, drawing.path)
          ->Unit(benchmark::kMillisecond);
    ratios.push_back({named("opening / splitting into tags,", count), named("open", count),
                      named("split", count), 2.0});
    ratios.push_back({named("saving / writing the same bytes,", count), named("save", count),
                      named("write", count), 2.0});
    figures.push_back(
        {named("memory after opening / bytes read,", count), memoryPerByte(drawing), 1.5});
  }
  if (!quick) {
    constexpr int kLast = kSizes[std::size(kSizes) - 1];
    for (const char* name : {"open", "save"})
      ratios.push_back({std::string(name) + ": time of one entity at 1,000,000 / at 10,000",
                        named(name, kLast), named(name, 10'000), 1.3, 10'000.0 / kLast});
  }
  return bench::run(argc, argv, ratios, figures);
}
