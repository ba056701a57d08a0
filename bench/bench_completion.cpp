// What a letter on the command line takes while 100,000 tools are offered, all of which it matches.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "bench/window_session.h"
#include "catalog/group.h"
#include "drafton/desktop/command_line.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using bench::WindowSession;

constexpr int kPalettes = 100;

/// A catalog with one group of all its palettes. In a process of its own, since the module's
/// classes stand in this program and in the module.
int writeCatalog(const QString& folder, int toolsEach) {
  const bench::Classes classes;
  const OdString file = bench::writeCatalog(folder, kPalettes, toolsEach);
  const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
  if (!catalog->load(file)) return 1;
  const tc::OdTcGroupPtr group = tc::OdTcGroup::createObject();
  catalog->groups()->add(group);
  const auto palettes = catalog->palettesEnum();
  while (const tc::OdTcToolPalette* const palette = palettes->next()) {
    const tc::OdTcPaletteSoftRefPtr reference = tc::OdTcPaletteSoftRef::createObject();
    reference->setId(palette->id());
    group->contents()->add(reference);
  }
  return catalog->save(file) ? 0 : 1;
}

/// The command line of a window in which all tools are there.
class Line {
 public:
  explicit Line(WindowSession& session)
    : m_edit(session.window().commandLine().edit())
    , m_list(session.window().commandLine().findChild<QCompleter*>()->popup()) {
    // A list belongs to a line that has the keyboard.
    session.window().activateWindow();
    m_edit.setFocus();
    WindowSession::settle();
  }

  int offered() const { return m_list->isVisible() ? m_list->model()->rowCount() : 0; }
  void clear() {
    m_edit.clear();
    m_list->hide();
    WindowSession::settle();
  }
  void type(QChar letter) {
    QWidget* const target = m_list->isVisible() ? static_cast<QWidget*>(m_list) : &m_edit;
    for (const QEvent::Type event : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent key(event, letter.toUpper().unicode(), Qt::NoModifier, letter);
      QApplication::sendEvent(target, &key);
    }
    WindowSession::settle();
  }

 private:
  QLineEdit& m_edit;
  QAbstractItemView* const m_list;
};

/// Types the letter that follows `before`.
void keystroke(benchmark::State& state, Line& line, const QString& before, QChar letter,
               int tools) {
  for (auto _ : state) {
    line.clear();
    for (const QChar typed : before) line.type(typed);
    QElapsedTimer timer;
    timer.start();
    line.type(letter);
    state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    if (line.offered() < tools) state.SkipWithError("the tools are not offered");
  }
  line.clear();
}

void limit(benchmark::State& state) {
  for (auto _ : state) state.SetIterationTime(0.050);
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.value(1) == QLatin1String("--write"))
    return writeCatalog(arguments.value(2), arguments.value(3).toInt());

  const int toolsEach = arguments.contains(QStringLiteral("--quick")) ? 10 : 1000;
  const int tools = kPalettes * toolsEach;
  const QTemporaryDir folder;
  const QString catalog = folder.filePath(QStringLiteral("many"));
  QDir().mkdir(catalog);
  if (QProcess::execute(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--write"), catalog, QString::number(toolsEach)}) != 0)
    qFatal("there is no catalog");
  WindowSession session(catalog, folder.filePath(QStringLiteral("settings.ini")));
  while (session.tools() < tools) QCoreApplication::processEvents();

  Line line(session);
  const auto add = [&](const char* name, const char* before, char letter) {
    benchmark::RegisterBenchmark(name, keystroke, std::ref(line), QLatin1String(before),
                                 QLatin1Char(letter), tools)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
  };
  add("first letter", "", 't');
  add("second letter", "t", 'o');
  add("last letter", "too", 'l');
  benchmark::RegisterBenchmark("50 ms", limit)->Unit(benchmark::kMillisecond)->UseManualTime();
  return bench::run(argc, argv,
                    {{"the first letter, of 50 ms", "first letter", "50 ms", 1},
                     {"the second letter, of 50 ms", "second letter", "50 ms", 1},
                     {"the last letter, of 50 ms", "last letter", "50 ms", 1}});
}
