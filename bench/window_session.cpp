#include "bench/window_session.h"

#include "drafton/desktop/window_controls.h"
#include "drafton/program/program_setup.h"
#include "drafton/render/text_shapes.h"
#include "frame/file_path.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>

namespace bench {
namespace {

drafton::EngineOptions options(const QString& settingsFile) {
  drafton::EngineOptions made;
  made.settingsFile = settingsFile;
  made.userDataFolder = odpath::fromPlatform(settingsFile + QStringLiteral(".data"));
  made.programFolder = odpath::fromPlatform(QStringLiteral(BINARY_DIR));
  return made;
}

QModelIndex found(const QAbstractItemModel& model, const QModelIndex& parent, const QString& name) {
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    if (index.data().toString() == name) return index;
    if (const QModelIndex below = found(model, index, name); below.isValid()) return below;
  }
  return {};
}

/// How many rows have nothing below them.
int countBelow(const QAbstractItemModel& model, const QModelIndex& parent) {
  int count = 0;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    count += model.hasChildren(index) ? countBelow(model, index) : 1;
  }
  return count;
}

/// Handles events until something holds; false if it takes too long.
template <class Holds>
bool waitUntil(Holds holds) {
  constexpr int kLongest = 60000;
  QElapsedTimer clock;
  clock.start();
  while (!holds()) {
    if (clock.elapsed() > kLongest) return false;
    QCoreApplication::processEvents();
  }
  return true;
}

} // namespace

WindowSession::WindowSession(const QString& catalogs, const QString& settingsFile)
  : m_desktop(options(settingsFile))
  , m_window((drafton::TextShapes::install(), m_desktop), m_dialogs) {
  qApp->installEventFilter(this);
  drafton::Engine& engine = m_desktop.engine();
  engine.application().overrideSetting(QStringLiteral("ToolPaletteDir"), catalogs);
  engine.settings().set({QStringLiteral("Startup")}, QStringLiteral("ToolPalettes"), OdVariant(1));
  drafton::offerPictures(engine);
  drafton::loadToolPalettes(engine);
  m_window.show();
  m_window.files().newDrawing();
  engine.runStartupCommands();
  m_desktop.input().takeUp();
  if (!waitUntil([this] { return isUsable(); })) qFatal("the window cannot be used");
}

WindowSession::~WindowSession() { qApp->removeEventFilter(this); }

bool WindowSession::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Paint) m_painted.insert(object);
  return false;
}

bool WindowSession::isUsable() {
  const QTreeView* const catalogs = tree();
  return m_desktop.document() && !m_desktop.isBusy() && catalogs &&
         catalogs->model()->rowCount() > 0 && m_painted.contains(catalogs->viewport()) &&
         m_painted.contains(&canvas());
}

bool WindowSession::types(const QString& command) {
  for (const QChar letter : command + u'\r') {
    const int key = letter == u'\r' ? int{Qt::Key_Return} : letter.toUpper().unicode();
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, letter);
    QApplication::sendEvent(QApplication::focusWidget() ? QApplication::focusWidget() : &canvas(),
                            &event);
  }
  return waitUntil([this] { return m_desktop.request() != nullptr; });
}

int WindowSession::tools() const { return tree() ? countBelow(*tree()->model(), {}) : 0; }

void WindowSession::settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
  }
}

QToolButton* WindowSession::button(int index) const {
  for (QToolButton* const at : m_window.findChildren<QToolButton*>())
    if (dynamic_cast<drafton::HostToolbar*>(at->parentWidget()) && index-- == 0) return at;
  return nullptr;
}

void WindowSession::press(int index) {
  if (QToolButton* const at = button(index)) at->click();
}

void WindowSession::choose(int index, int entry) {
  const QToolButton* const at = button(index);
  if (at && at->menu()) at->menu()->actions().at(entry)->trigger();
}

bool WindowSession::selectPalette(const QString& name) {
  QTreeView* const view = tree();
  const QModelIndex index = view ? found(*view->model(), {}, name) : QModelIndex();
  if (index.isValid()) view->setCurrentIndex(index);
  return index.isValid();
}

} // namespace bench
