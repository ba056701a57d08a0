// The window as its user feels it: from the start to the open palettes, from a click on a tool to
// its first prompt, from a button to another look of a palette, a frame of a large drawing, and
// what it takes while nobody does anything.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "bench/window_session.h"
#include "catalog/tool.h"
#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "images/image_list.h"
#include "module/properties.h"
#include "tools/action_agent.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QProcess>
#include <QTimer>
#include <QWheelEvent>

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using bench::WindowSession;

/// How much there is; a quick pass only shows that all of it still runs.
struct Amount {
  int palettes, toolsEach; ///< of the catalog with many
  int tools;               ///< of the large palette
  int entities;
};
constexpr Amount kWhole{100, 100, 1000, 100000}, kQuick{5, 10, 50, 500};
const QString kLarge = QStringLiteral("Large");

/// In a process of its own, since the module's classes stand in this program and in the module.
int writeCatalogs(const QString& folder, const Amount& amount) {
  const bench::Classes classes;
  bench::writeCatalog(folder + QStringLiteral("/none"), 0, 0);
  bench::writeCatalog(folder + QStringLiteral("/many"), amount.palettes, amount.toolsEach);
  const OdString file = bench::writeCatalog(folder + QStringLiteral("/large"), 1, amount.tools);
  tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
  if (!catalog->load(file)) return 1;
  const tc::OdTcToolPalettePtr palette = catalog->palettesEnum()->next();
  palette->setName(kLarge);
  const auto tools = palette->enumTools();
  QImage picture(64, 64, QImage::Format_ARGB32);
  int number = 0;
  while (tc::OdTcTool* const tool = tools->next()) {
    // A click is over with the first prompt, and the next one cancels it.
    tool->getActionAgent()->setCommandString(QStringLiteral("^C^C_LINE"));
    picture.fill(QColor::fromHsv(++number % 360, 200, 200));
    const tc::OdTcImageListPtr images = tc::OdTcImageList::createObject();
    images->setOwner(tool->properties());
    tool->setImages(images);
    const QString name = QStringLiteral("tool%1.png").arg(number);
    tool->images()->setFrom(
        [&](tc::OdTcImage& image) { return image.setSrcFromPicture(picture, name); });
  }
  return palette->save() ? 0 : 1;
}

/// Starts the window in a process of its own, and ends it when it can be used: when drawing and
/// catalogs are painted and a command that was typed has asked for its first point.
void start(benchmark::State& state, const QString& folder, const QString& catalogs) {
  for (auto _ : state) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--start"), folder, catalogs});
    if (!process.waitForFinished(120000) || process.exitCode() != 0)
      state.SkipWithError("the window does not open");
  }
}

int startAndLeave(const QString& folder, const QString& catalogs) {
  WindowSession session(catalogs, folder + QStringLiteral("/start.ini"));
  std::_Exit(session.types(QStringLiteral("line")) ? 0 : 1);
}

/// What comes behind a start with many tools.
struct Rest {
  double longestTurn = 0; ///< of the event loop, in milliseconds: as long as a key may have to wait
  double all = 0;         ///< until the last tool is there, in milliseconds
};

Rest loadRest(WindowSession& session, int tools) {
  Rest rest;
  QElapsedTimer all;
  all.start();
  while (session.tools() < tools && all.elapsed() < 60000) {
    QElapsedTimer turn;
    turn.start();
    QCoreApplication::processEvents();
    rest.longestTurn = std::max(rest.longestTurn, static_cast<double>(turn.nsecsElapsed()) * 1e-6);
  }
  rest.all = static_cast<double>(all.nsecsElapsed()) * 1e-6;
  return rest;
}

int loadRestAndLeave(const QString& folder, const QString& catalogs, int tools) {
  WindowSession session(catalogs, folder + QStringLiteral("/rest.ini"));
  const Rest rest = loadRest(session, tools);
  std::printf("%f %f\n", rest.longestTurn, rest.all);
  std::fflush(stdout);
  std::_Exit(session.tools() >= tools ? 0 : 1);
}

/// The same in a process of its own.
Rest restOfStart(const QString& folder, const QString& catalogs, const QString& amount) {
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--rest"), folder, catalogs, amount});
  if (!process.waitForFinished(120000) || process.exitCode() != 0) qFatal("the tools do not come");
  const QList<QByteArray> figures = process.readAllStandardOutput().trimmed().split(' ');
  return {figures.value(0).toDouble(), figures.value(1).toDouble()};
}

/// Times one thing that a user does, with all that follows from it.
template <class Act>
void timed(benchmark::State& state, Act act) {
  QElapsedTimer timer;
  timer.start();
  act();
  state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
}

template <class Event>
void send(QWidget& widget, const QPointF& at, QEvent::Type type, Qt::MouseButton button,
          Qt::MouseButtons buttons) {
  Event event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void showList(WindowSession& session) {
  // A column that does not show has no width.
  if (session.list()->width() > 0) return;
  session.press(0);
  session.settle();
}

void click(benchmark::State& state, WindowSession& session) {
  showList(session);
  session.choose(2, 0);
  session.settle();
  QWidget& view = *session.list()->viewport();
  const QPointF at = session.list()->visualRect(session.list()->model()->index(1, 0)).center();
  for (auto _ : state) {
    timed(state, [&] {
      send<QMouseEvent>(view, at, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
      for (int i = 0; i < 100 && !session.desktop().request(); ++i)
        QCoreApplication::processEvents();
      session.settle();
    });
    if (!session.desktop().request()) state.SkipWithError("the click runs no tool");
    send<QMouseEvent>(view, at, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    session.desktop().cancel();
    session.settle();
  }
}

/// One after the other of a menu's entries.
void switchTo(benchmark::State& state, WindowSession& session, int button, int entries) {
  showList(session);
  int turn = 0;
  for (auto _ : state) {
    timed(state, [&] {
      session.choose(button, turn++ % entries);
      session.settle();
    });
  }
}

void draw(WindowSession& session, int entities) {
  session.desktop().change(QStringLiteral("DRAW"), [entities](OdDbDatabase& database) {
    const auto space = database.getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    std::mt19937 random(7);
    std::uniform_real_distribution<double> x(0, 40000), y(0, 25000), d(-300, 300), r(5, 120);
    for (int i = 0; i < entities; ++i) {
      const OdGePoint3d at{x(random), y(random), 0};
      OdDbEntityPtr made;
      if (i % 5 == 0)
        made = odrxMake<OdDbCircle>(at, OdGeVector3d::zAxis(), r(random));
      else
        made = odrxMake<OdDbLine>(at, at + OdGeVector3d{d(random), d(random), 0});
      made->setColor(OdCmColor::fromColorIndex(1 + i % 7));
      space->appendOdDbEntity(made);
    }
  });
  session.canvas().showAll();
  session.settle();
}

void pan(benchmark::State& state, WindowSession& session) {
  drafton::Canvas& canvas = session.canvas();
  const QPointF start(400, 300);
  int step = 0;
  send<QMouseEvent>(canvas, start, QEvent::MouseButtonPress, Qt::MiddleButton, Qt::MiddleButton);
  for (auto _ : state) {
    const QPointF at = start + QPointF(17, -11) * (++step % 12);
    timed(state, [&] {
      send<QMouseEvent>(canvas, at, QEvent::MouseMove, Qt::NoButton, Qt::MiddleButton);
      session.settle();
    });
  }
  send<QMouseEvent>(canvas, start, QEvent::MouseButtonRelease, Qt::MiddleButton, Qt::NoButton);
  canvas.showAll();
  session.settle();
}

void zoom(benchmark::State& state, WindowSession& session) {
  drafton::Canvas& canvas = session.canvas();
  const QPointF at(400, 300);
  int step = 0;
  for (auto _ : state) {
    const int turn = ++step % 24 < 12 ? 120 : -120;
    timed(state, [&] {
      QWheelEvent event(at, canvas.mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
      QApplication::sendEvent(&canvas, &event);
      session.settle();
    });
  }
  canvas.showAll();
  session.settle();
}

double processorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Milliseconds of processor time in a second in which nobody does anything.
double idle(int milliseconds) {
  // What only comes a little later, as the end of a layout.
  QEventLoop calm;
  QTimer::singleShot(milliseconds / 4, &calm, &QEventLoop::quit);
  calm.exec();
  const double before = processorSeconds();
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
  return (processorSeconds() - before) * 1e6 / milliseconds;
}

/// What a step may take.
void limit(benchmark::State& state, double seconds) {
  for (auto _ : state) state.SetIterationTime(seconds);
}

/// What the program does as a process of its own, when it is told to; its exit code.
std::optional<int> runPart(const QStringList& arguments, const Amount& amount) {
  const OdString part = arguments.value(1);
  if (part == QLatin1String("--write")) return writeCatalogs(arguments.value(2), amount);
  if (part == QLatin1String("--start"))
    return startAndLeave(arguments.value(2), arguments.value(3));
  if (part == QLatin1String("--rest"))
    return loadRestAndLeave(arguments.value(2), arguments.value(3),
                            amount.palettes * amount.toolsEach);
  return std::nullopt;
}

void writeCatalogsApart(const QString& folder, const QString& quick) {
  for (const char* const name : {"many", "large", "none"})
    QDir(folder).mkdir(QString::fromLatin1(name));
  if (QProcess::execute(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--write"), folder, quick}) != 0)
    qFatal("there are no catalogs");
}

void addBenchmarks(WindowSession& session, const Amount& amount, const QString& folder) {
  const auto add = [](const char* name, auto&& run, auto... arguments) {
    return benchmark::RegisterBenchmark(name, run, arguments...)->Unit(benchmark::kMillisecond);
  };
  const auto timedBySteps = [&](const char* name, auto&& run, auto... arguments) {
    add(name, run, arguments...)->UseManualTime();
  };
  timedBySteps("frame of 16 ms", limit, 0.016);
  timedBySteps("frame of 33 ms", limit, 0.033);
  timedBySteps("50 ms", limit, 0.050);
  add("start without tools", start, folder, folder + QLatin1String("/none"))->UseRealTime();
  add("start with 10,000 tools", start, folder, folder + QLatin1String("/many"))->UseRealTime();
  timedBySteps("click", click, std::ref(session));
  timedBySteps("size", switchTo, std::ref(session), 1, 3);
  timedBySteps("style", switchTo, std::ref(session), 2, 3);
  const auto drawn = [&session, &amount](benchmark::State& state, auto run) {
    static const bool isDrawn = (draw(session, amount.entities), true);
    benchmark::DoNotOptimize(isDrawn);
    run(state, session);
  };
  timedBySteps("pan", drawn, pan);
  timedBySteps("zoom", drawn, zoom);
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const bool isQuick = arguments.contains(QStringLiteral("--quick"));
  const Amount& amount = isQuick ? kQuick : kWhole;
  if (const std::optional<int> code = runPart(arguments, amount)) return *code;

  const QTemporaryDir folder;
  const QString quick = isQuick ? QStringLiteral("--quick") : QString();
  writeCatalogsApart(folder.path(), quick);
  const QString many = folder.filePath(QStringLiteral("many"));
  WindowSession session(many + u';' + folder.filePath(QStringLiteral("large")),
                        folder.filePath(QStringLiteral("settings.ini")));
  loadRest(session, amount.palettes * amount.toolsEach + amount.tools);
  if (!session.tree() || !session.list() || !session.selectPalette(kLarge))
    qFatal("the palettes do not open");
  const Rest rest = restOfStart(folder.path(), many, quick);
  const double idleCost = idle(isQuick ? 100 : 5000);
  addBenchmarks(session, amount, folder.path());
  return bench::run(
      argc, argv,
      {{"start with 10,000 tools / without any", "start with 10,000 tools", "start without tools",
        1.3},
       {"from a click to the first prompt, of 16 ms", "click", "frame of 16 ms", 1},
       {"another size of 1,000 tools, of 50 ms", "size", "50 ms", 1},
       {"another view style of 1,000 tools, of 50 ms", "style", "50 ms", 1},
       {"panning the window over 100,000 entities, of 33 ms", "pan", "frame of 33 ms", 1},
       {"zooming it", "zoom", "frame of 33 ms", 1}},
      {{"the longest turn of the event loop while tools come, ms", rest.longestTurn, 33},
       {"until all tools are there, ms", rest.all, 1000},
       {"an idle window, ms of processor time in a second", idleCost, 0.5}});
}
