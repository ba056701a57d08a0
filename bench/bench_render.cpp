// Drawing large drawings: the milliseconds of a frame, and their ratio to a bare pass that only
// draws as many lines through QPainter.
#include "bench/ratio_report.h"
#include "drafton/render/renderer.h"
#include "drafton/render/text_shapes.h"
#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"

#include <QGuiApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <random>

namespace {

using namespace drafton;

constexpr QSize kPicture{1600, 1000};
constexpr double kWide = 40000, kHigh = 25000;

/// A plan of many small things, as drawings are: lines, polylines, arcs, circles, texts and
/// inserts.
class Plan {
 public:
  explicit Plan(int count)
    : m_database(OdDbDatabase::createDatabase())
    , m_scene(*m_database) {
    const auto blocks = m_database->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
    auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(QStringLiteral("Chair"));
    m_chair = blocks->add(block);
    const auto chair = m_chair.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    for (int i = 0; i < 6; ++i)
      chair->appendOdDbEntity(
          odrxMake<OdDbLine>(OdGePoint3d{i * 8.0, 0, 0}, OdGePoint3d{i * 8.0, 40, 0}));
    m_space = m_database->getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    for (int i = 0; i < count; ++i) addOne(i);
  }

  Scene& scene() { return m_scene; }
  OdDbObjectId space() const { return m_database->getModelSpaceId(); }
  View whole() const {
    OdGeExtents3d box;
    box.addPoint({0, 0, 0});
    box.addPoint({kWide, kHigh, 0});
    View view;
    view.size = kPicture;
    return view.fitted(box);
  }

 private:
  double random(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(m_random);
  }
  void addOne(int i) {
    const OdGePoint3d at{random(0, kWide), random(0, kHigh), 0};
    OdDbEntityPtr made;
    switch (i % 10) {
    case 0:
      made = odrxMake<OdDbCircle>(at, OdGeVector3d::zAxis(), random(5, 120));
      break;
    case 1:
      made = odrxMake<OdDbArc>(at, OdGeVector3d::zAxis(), random(20, 200), 0, random(0.5, 5));
      break;
    case 2: {
      auto text = odrxMake<OdDbText>();
      text->setTextString(QStringLiteral("Room %1").arg(i));
      text->setPosition(at);
      text->setHeight(40);
      made = text;
      break;
    }
    case 3:
      made = odrxMake<OdDbBlockReference>(m_chair, at);
      break;
    case 4:
    case 5: {
      auto polyline = odrxMake<OdDbPolyline>();
      for (unsigned k = 0; k < 6; ++k)
        polyline->addVertexAt(k, {at.x + random(-150, 150), at.y + random(-150, 150)},
                              k % 3 == 0 ? 0.4 : 0);
      made = polyline;
      break;
    }
    default:
      made = odrxMake<OdDbLine>(at, at + OdGeVector3d{random(-300, 300), random(-300, 300), 0});
    }
    made->setColor(OdCmColor::fromColorIndex(1 + i % 7));
    m_space->appendOdDbEntity(made);
  }

  std::mt19937 m_random{7};
  OdDbDatabasePtr m_database;
  Scene m_scene;
  OdDbObjectId m_chair;
  OdSmartPtr<OdDbBlockTableRecord> m_space;
};

constexpr int kEntities = 100000;

Plan& plan() {
  static Plan made(kEntities);
  return made;
}

void frame(const View& view, QImage& picture) {
  picture.fill(Qt::black);
  RenderOptions options;
  options.ground = Ground(qRgb(0, 0, 0));
  options.showsLineWeights = false;
  render(picture, plan().scene(), plan().space(), view, options);
}

void run(benchmark::State& state, double zoom) {
  QImage picture(kPicture, QImage::Format_RGB32);
  View view = plan().whole().zoomed(zoom, {800, 500});
  frame(view, picture);
  double step = 3;
  for (auto _ : state) {
    view = view.panned({step, -step});
    step = -step;
    frame(view, picture);
  }
}

void panAll(benchmark::State& state) { run(state, 1); }
void panQuarter(benchmark::State& state) { run(state, 2); }
void panNear(benchmark::State& state) { run(state, 10); }
void panDetail(benchmark::State& state) { run(state, 100); }

/// Each frame nearer, as a wheel is turned.
void zoomIn(benchmark::State& state) {
  QImage picture(kPicture, QImage::Format_RGB32);
  View view = plan().whole();
  int turns = 0;
  for (auto _ : state) {
    view = turns++ % 20 == 0 ? plan().whole() : view.zoomed(1.25, {500, 400});
    frame(view, picture);
  }
}

/// The bare painter with as many lines.
void barePainter(benchmark::State& state) {
  QImage picture(kPicture, QImage::Format_RGB32);
  std::mt19937 random(7);
  std::uniform_real_distribution<double> x(0, kPicture.width()), y(0, kPicture.height()), d(-8, 8);
  std::vector<QLineF> lines;
  for (int i = 0; i < kEntities; ++i) {
    const QPointF from(x(random), y(random));
    lines.emplace_back(from, from + QPointF(d(random), d(random)));
  }
  for (auto _ : state) {
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      painter.setPen(QPen(QColor::fromHsv(static_cast<int>(i % 7) * 50, 255, 255), 1));
      painter.drawLine(lines[i]);
    }
  }
}

BENCHMARK(barePainter)->Unit(benchmark::kMillisecond);
BENCHMARK(panAll)->Unit(benchmark::kMillisecond);
BENCHMARK(panQuarter)->Unit(benchmark::kMillisecond);
BENCHMARK(panNear)->Unit(benchmark::kMillisecond);
BENCHMARK(panDetail)->Unit(benchmark::kMillisecond);
BENCHMARK(zoomIn)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  TextShapes::install();
  const auto frame = [](const char* what, const char* name) {
    return bench::Ratio{what, name, "barePainter", 1};
  };
  return bench::run(argc, argv,
                    {frame("panning 100,000 entities by as many bare lines", "panAll"),
                     frame("panning a quarter of them", "panQuarter"),
                     frame("panning a hundredth", "panNear"),
                     frame("panning what is near", "panDetail"), frame("zooming in", "zoomIn")});
}
