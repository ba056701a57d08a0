// Hatching a room in a plan: the search for its boundary among many lines.
#include "bench/ratio_report.h"

#include "drafton/engine/boundary/boundary_search.h"
#include "drafton/engine/boundary/boundary_sources.h"
#include "drafton/engine/engine.h"
#include "drawing/entities/line.h"

#include <cstdio>

using namespace drafton;

namespace {

/// Says nothing to nobody.
class SilentConsole : public Console {
 public:
  void print(const OdString&) override {}
  void prompt(const OdString&) override {}
  void echo(const OdString&) override {}
  void messageBox(const OdString&, const OdString&) override {}
  bool messageBoxWithCheckBox(const OdString&, const OdString&) override { return false; }
  void commandTrouble(const OdString& text) override { troubles << text; }

  QStringList troubles;
};

/// Draws a plan of `side` by `side` rooms of 5 by 4: walls, doors that are open, and furniture; 16
/// lines a room.
class Plan {
 public:
  Plan(OdDbDatabase& drawing, int side)
    : m_space(drawing.getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)) {
    for (int row = 0; row < side; ++row)
      for (int column = 0; column < side; ++column) addRoom(column * 5.2, row * 4.2);
    addBox(-0.2, -0.2, side * 5.2, side * 4.2);
  }

 private:
  void addLine(double x1, double y1, double x2, double y2) {
    const auto line = odrxMake<OdDbLine>(OdGePoint3d{x1, y1, 0}, OdGePoint3d{x2, y2, 0});
    m_space->appendOdDbEntity(line);
  }
  void addBox(double x1, double y1, double x2, double y2) {
    addLine(x1, y1, x2, y1);
    addLine(x2, y1, x2, y2);
    addLine(x2, y2, x1, y2);
    addLine(x1, y2, x1, y1);
  }
  void addRoom(double x, double y) {
    addBox(x, y, x + 5, y + 4);
    addBox(x + 0.5, y + 0.5, x + 2.5, y + 1.5); // a table
    addBox(x + 3.5, y + 2.5, x + 4.5, y + 3.5); // a cupboard
    addLine(x + 3.5, y + 2.5, x + 4.5, y + 3.5);
    addLine(x + 3.5, y + 3.5, x + 4.5, y + 2.5);
    addLine(x + 1, y + 4, x + 1, y + 3);       // a door that is open
    addLine(x + 1.5, y + 4, x + 1.5, y + 4.2); // and where its opening ends
  }

  OdSmartPtr<OdDbBlockTableRecord> m_space;
};

/// What any command does at least that looks at the whole drawing.
void walk(benchmark::State& state, OdDbDatabase* drawing) {
  for (auto _ : state) {
    const auto space = drawing->getModelSpaceId().openAs<OdDbBlockTableRecord>();
    OdGeExtents3d all;
    for (const auto at = space->newIterator(); !at->done(); at->step()) {
      OdGeExtents3d box;
      if (at->entity()->getGeomExtents(box)) all.addExt(box);
    }
    benchmark::DoNotOptimize(all);
  }
}

void search(benchmark::State& state, OdDbDatabase* drawing, OdGePoint3d point, double gap) {
  for (auto _ : state) {
    const BoundarySources sources = visibleSources(*drawing, {});
    const BoundarySearch boundaries(sources.curves, sources.texts, {}, gap);
    const auto result = boundaries.around(point, IslandStyle::kOuter);
    benchmark::DoNotOptimize(result.loops.size());
  }
}

void command(benchmark::State& state, Engine* engine, const SilentConsole* console) {
  for (auto _ : state) {
    engine->type(QStringLiteral("FASTHATCHCMD\n55,45\n\n"));
    engine->run();
    state.PauseTiming();
    engine->type(QStringLiteral("U\n"));
    engine->run();
    state.ResumeTiming();
  }
  if (!console->troubles.isEmpty()) state.SkipWithError("the hatch was not made");
}

} // namespace

int main(int argc, char** argv) {
  SilentConsole console;
  Engine engine({}, console, nullptr);
  engine.documents().newDocument();
  OdDbDatabase& plan = *engine.documents().current()->database();
  const OdDbDatabasePtr large = OdDbDatabase::createDatabase();
  Plan(plan, 25);   // 10,000 lines
  Plan(*large, 79); // ten times as many
  engine.type(QStringLiteral("SETVAR HPNAME SOLID\n"));
  engine.run();
  const OdGePoint3d room{55, 45, 0}, outside{-50, -50, 0};
  const auto add = [](const char* name, auto function, auto... arguments) {
    benchmark::RegisterBenchmark(name, function, arguments...)->Unit(benchmark::kMillisecond);
  };
  add("walk over 10,000 lines", walk, &plan);
  add("boundary of a room", search, &plan, room, 0.0);
  add("boundary of a room, gaps closed", search, &plan, room, 0.3);
  add("no boundary: a point outside", search, &plan, outside, 0.0);
  add("hatch command in a room", command, &engine, &console);
  add("boundary of a room, 100,000 lines", search, large.get(), room, 0.0);
  const int result =
      bench::run(argc, argv,
                 {{"hatch command / walk over the drawing", "hatch command in a room",
                   "walk over 10,000 lines", 50.0},
                  {"growth from 10,000 to 100,000 lines", "boundary of a room, 100,000 lines",
                   "boundary of a room", 1.5, 0.1}});
  std::printf("The target is a hatch in 200 ms.\n");
  return result;
}
