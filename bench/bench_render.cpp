// Drawing large drawings: the milliseconds of a frame, and their ratio to the 33 ms that a fluent
// picture has for it. A bare pass that only draws as many lines through QPainter is shown beside.
#include "bench/ratio_report.h"
#include "drafton/render/live_picture.h"
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

#include <cmath>
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

RenderOptions look() {
  RenderOptions options;
  options.ground = Ground(qRgb(0, 0, 0));
  options.showsLineWeights = false;
  return options;
}

/// Frames that are drawn from nothing.
void draw(benchmark::State& state, double zoom) {
  QImage picture(kPicture, QImage::Format_RGB32);
  View view = plan().whole().zoomed(zoom, {800, 500});
  double step = 3;
  const auto frame = [&] {
    picture.fill(Qt::black);
    render(picture, plan().scene(), plan().space(), view, look());
  };
  frame();
  for (auto _ : state) {
    view = view.panned({step, -step});
    step = -step;
    frame();
  }
}

void drawAll(benchmark::State& state) { draw(state, 1); }
void drawQuarter(benchmark::State& state) { draw(state, 2); }
void drawHundredth(benchmark::State& state) { draw(state, 10); }

/// Frames as a hand drags the drawing along: some twenty pixels each, on and on.
void pan(benchmark::State& state, double zoom) {
  LivePicture live(plan().scene());
  const View start = plan().whole().zoomed(zoom, {800, 500});
  View view = start;
  live.show(plan().space(), view, look());
  int frames = 0;
  for (auto _ : state) {
    view = ++frames % 20 == 0 ? start : view.panned({17, -11});
    live.show(plan().space(), view, look());
  }
}

void panAll(benchmark::State& state) { pan(state, 1); }
void panQuarter(benchmark::State& state) { pan(state, 2); }
void panNear(benchmark::State& state) { pan(state, 10); }
void panDetail(benchmark::State& state) { pan(state, 100); }

/// Each frame nearer or farther, as a wheel is turned.
void zoom(benchmark::State& state, double factor) {
  LivePicture live(plan().scene());
  constexpr int kTurns = 12;
  const QPointF cursor(500, 400);
  const View start =
      factor > 1 ? plan().whole() : plan().whole().zoomed(std::pow(factor, -kTurns), cursor);
  View view = start;
  int turns = 0;
  for (auto _ : state) {
    view = turns++ % kTurns == 0 ? start : view.zoomed(factor, cursor);
    live.show(plan().space(), view, look());
  }
}

void zoomIn(benchmark::State& state) { zoom(state, 1.25); }
void zoomOut(benchmark::State& state) { zoom(state, 0.8); }

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

/// What a frame may take.
void fluentFrame(benchmark::State& state) {
  constexpr double kSeconds = 0.033;
  for (auto _ : state) state.SetIterationTime(kSeconds);
}

BENCHMARK(fluentFrame)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(barePainter)->Unit(benchmark::kMillisecond);
BENCHMARK(drawAll)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(drawQuarter)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(drawHundredth)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(panAll)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(panQuarter)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(panNear)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(panDetail)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(zoomIn)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(zoomOut)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  TextShapes::install();
  const auto frame = [](const char* what, const char* name) {
    return bench::Ratio{what, name, "fluentFrame", 1};
  };
  return bench::run(argc, argv,
                    {frame("drawing 100,000 entities, of 33 ms", "drawAll"),
                     frame("drawing a quarter of them", "drawQuarter"),
                     frame("drawing a hundredth of them", "drawHundredth"),
                     frame("panning with all of them in view", "panAll"),
                     frame("panning with a quarter in view", "panQuarter"),
                     frame("panning with a hundredth in view", "panNear"),
                     frame("panning what is near", "panDetail"),
                     frame("zooming in from all of them", "zoomIn"),
                     frame("zooming out to all of them", "zoomOut")});
}
