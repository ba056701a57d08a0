#include "drafton/desktop/host_pane.h"

#include <QCloseEvent>

namespace drafton {
namespace {

constexpr int kFirstWidth = 320;
constexpr int kLeastHeight = 100;

/// The panes that stand below or above a docked one.
QList<QDockWidget*> neighboursOf(QMainWindow& window, QDockWidget& pane) {
  QList<QDockWidget*> neighbours;
  for (auto* const other : window.findChildren<QDockWidget*>())
    if (other != &pane && !other->isFloating() && !other->isHidden() &&
        window.dockWidgetArea(other) == window.dockWidgetArea(&pane))
      neighbours << other;
  return neighbours;
}

/// Puts a new pane above those of its side. Tabs of these stay together.
void standOnTop(QMainWindow& window, QDockWidget& pane) {
  const QList<QDockWidget*> others = neighboursOf(window, pane);
  if (others.isEmpty()) return;
  QDockWidget* const first = others.first();
  const QList<QDockWidget*> tabs = window.tabifiedDockWidgets(first);
  window.splitDockWidget(&pane, first, Qt::Vertical);
  for (auto* const tab : tabs) window.tabifyDockWidget(first, tab);
  first->raise();
}

/// Two thirds of the side for the pane. Beside other panes, content that asks for nothing would get
/// nothing.
void makeRoom(QMainWindow& window, QDockWidget& pane) {
  QList<QDockWidget*> docks = neighboursOf(window, pane);
  int height = pane.height();
  for (const QDockWidget* const other : docks) height += other->height();
  QList<int> heights(docks.size(), height / 3 / qMax(1, static_cast<int>(docks.size())));
  docks.prepend(&pane);
  heights.prepend(height * 2 / 3);
  window.resizeDocks(docks, heights, Qt::Vertical);
}

} // namespace

PaneDock::PaneDock(const OdString& name, const OdString& title, QWidget* content,
                   IHostPaneEvents* events, QMainWindow& window)
  : QDockWidget(title, &window)
  , m_events(events) {
  setObjectName(QStringLiteral("pane.") + name);
  setWidget(content);
  content->installEventFilter(this);
  connect(toggleViewAction(), &QAction::triggered, this, [this](bool isShown) {
    if (isShown && m_events) m_events->paneShown();
  });
}

void PaneDock::tellRoom() {
  if (!m_events || !widget()) return;
  // A dock has a least width of its own, so that content has some where nothing of it is seen.
  const QSize least = minimumSizeHint();
  const bool isCollapsed = isFloating() && width() <= least.width() && height() <= least.height();
  m_events->paneResized(isCollapsed ? QSize(0, 0) : widget()->size());
}

bool PaneDock::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && watched == widget()) tellRoom();
  return QDockWidget::eventFilter(watched, event);
}

bool PaneDock::begin() {
  if (!m_events || m_events->paneCreated()) return true;
  m_events = nullptr;
  return false;
}

void PaneDock::closeEvent(QCloseEvent* event) {
  QDockWidget::closeEvent(event);
  // Whoever hears of it finds the pane hidden.
  hide();
  // Panes that float are closed with the window; the user did not mean them.
  if (m_events && parentWidget()->isVisible()) m_events->paneClosed();
}

void PaneDock::end() {
  const QPointer<PaneDock> self = this;
  if (IHostPaneEvents* const events = std::exchange(m_events, nullptr)) events->paneDestroyed();
  // What is told may have dropped the pane already.
  delete self;
}

HostPane::HostPane(QMainWindow& window, const OdString& name, const OdString& title,
                   QWidget* content, IHostPaneEvents* events)
  : m_window(window)
  , m_dock(new PaneDock(name, title, content, events, window)) {
  if (!window.restoreDockWidget(m_dock)) {
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    standOnTop(window, *m_dock);
    m_isNew = true;
    window.resizeDocks({m_dock}, {kFirstWidth}, Qt::Horizontal);
  }
  m_dock->hide();
}

HostPane::~HostPane() {
  if (PaneDock* const dock = std::exchange(m_dock, nullptr)) dock->end();
}

bool HostPane::begin() {
  if (!m_dock || m_dock->begin()) return true;
  delete m_dock;
  return false;
}

bool HostPane::isVisible() const { return m_dock && m_dock->isVisible(); }

void HostPane::show(bool activate) {
  if (!m_dock) return;
  m_dock->show();
  m_dock->raise();
  // The layout is made later.
  QMetaObject::invokeMethod(
      m_dock,
      [dock = m_dock.data(), &window = m_window, isNew = std::exchange(m_isNew, false)] {
        if (!dock->isVisible()) return;
        if (!dock->isFloating() && dock->widget() &&
            (isNew || dock->widget()->height() < kLeastHeight))
          makeRoom(window, *dock);
        // It may have been left with no room at all.
        if (dock->isFloating()) dock->tellRoom();
      },
      Qt::QueuedConnection);
  if (activate) {
    m_dock->activateWindow();
    if (m_dock->widget()) m_dock->widget()->setFocus();
  }
}

void HostPane::hide() {
  if (m_dock) m_dock->hide();
}

void HostPane::close() {
  if (m_dock) m_dock->close();
}

void HostPane::setTitle(const OdString& title) {
  if (m_dock) m_dock->setWindowTitle(title);
}

void HostPane::place(const QPoint& corner, const QSize& size) {
  if (!m_dock) return;
  if (m_dock->isFloating()) {
    m_dock->move(corner);
    m_dock->resize(size);
    return;
  }
  m_window.resizeDocks({m_dock}, {size.width()}, Qt::Horizontal);
  m_window.resizeDocks({m_dock}, {size.height()}, Qt::Vertical);
}

QWidget* HostPane::window() const { return m_dock ? m_dock->window() : nullptr; }

} // namespace drafton
