#include "drafton/desktop/main_window.h"

#include "drafton/desktop/access_keys.h"
#include "drafton/desktop/block_list.h"
#include "drafton/desktop/command_line.h"
#include "drafton/desktop/help_window.h"
#include "drafton/desktop/host_pane.h"
#include "drafton/desktop/inspector.h"
#include "drafton/desktop/layer_manager.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/desktop/printing.h"
#include "drafton/desktop/property_bar.h"
#include "drafton/desktop/window_services.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QTimer>
#include <QUrl>

namespace drafton {
namespace {

constexpr double kZoomStep = 1.4;

/// The actions that switch a drafting aid.
struct AidAction {
  const char16_t* name;
  Aid aid;
};
constexpr AidAction kAidActions[] = {
    {u"grid", Aid::kGrid}, {u"ortho", Aid::kOrtho}, {u"polar", Aid::kPolar}, {u"snap", Aid::kSnap}};

} // namespace

MainWindow::MainWindow(Desktop& desktop, UserDialogs& dialogs)
  : m_desktop(desktop)
  , m_dialogs(dialogs)
  , m_files(new FileActions(desktop, dialogs, this))
  , m_printing(new Printing(desktop, dialogs, this))
  , m_actions(
        new WindowActions(*this, [this](const OdString& macro) { m_desktop.runMacro(macro); }))
  , m_documents(new DocumentArea(desktop, this))
  , m_commandLine(new CommandLine(desktop))
  , m_statusLine(new StatusLine(desktop, this))
  , m_properties(new PropertyBar(desktop, this))
  , m_inspector(new Inspector(desktop))
  , m_layers(new LayerManager(desktop))
  , m_blocks(new BlockList(desktop))
  , m_aids(desktop) {
  setObjectName(QStringLiteral("mainWindow"));
  setAcceptDrops(true);
  setDockNestingEnabled(true);
  setCentralWidget(m_documents);
  setStatusBar(m_statusLine);
  addPanes();
  connectActions();
  connectPanes();
  dialogs.setWindow(this);
  desktop.console().setWindow(this);
  connect(m_documents, &DocumentArea::cursorMoved, this,
          [this] { m_statusLine->showPlace(m_documents->canvas()); });
  connect(m_documents, &DocumentArea::canvasChanged, this, &MainWindow::follow);
  connect(m_documents, &DocumentArea::menuWanted, this, &MainWindow::showMenuAt);
  connect(m_documents, &DocumentArea::closeWanted, this, [this](Document* document) {
    m_files->whenSettled([this, document] { m_files->close(*document); });
  });
  connect(m_documents, &DocumentArea::actionWanted, this,
          [this](const OdString& name) { m_actions->find(name)->trigger(); });
  m_commandLine->setWordTaker([this](const OdString& word) {
    Canvas* const canvas = m_documents->canvas();
    return canvas && canvas->takeWord(word);
  });
  connect(m_commandLine, &CommandLine::gaveUp, this, [this] {
    if (Canvas* const canvas = m_documents->canvas()) canvas->giveUp();
  });
  connect(&desktop, &Desktop::settled, this, &MainWindow::follow);
  connect(&desktop, &Desktop::variableChanged, this, &MainWindow::follow);
  connect(qApp, &QApplication::focusChanged, this, &MainWindow::watchKeys);
  m_actions->showIcons(isDark(palette()));
  offerWindowServices(desktop.engine().services(), *this);
  // With room for its frame on a small screen.
  resize(QSize(1280, 820).boundedTo(screen()->availableSize() - QSize(16, 48)));
  restorePlaces();
  follow();
}

MainWindow::~MainWindow() {
  // The window loses the keys while it goes, and is no main window any more then.
  disconnect(qApp, nullptr, this, nullptr);
  for (PaneDock* const pane : findChildren<PaneDock*>()) pane->end();
}

QDockWidget* MainWindow::addPane(const char* name, const char16_t* title, QWidget* content,
                                 Qt::DockWidgetArea area) {
  auto* const dock = new QDockWidget(translated(title), this);
  dock->setObjectName(OdString::fromLatin1(name));
  dock->setWidget(content);
  addDockWidget(area, dock);
  return dock;
}

void MainWindow::addPanes() {
  addToolBarBreak();
  addToolBar(m_properties);
  QDockWidget* const line =
      addPane("commandLine", u"Command Line", m_commandLine, Qt::BottomDockWidgetArea);
  addPane("inspector", u"Inspector", m_inspector, Qt::RightDockWidgetArea);
  QDockWidget* const layers = addPane("layers", u"Layers", m_layers, Qt::BottomDockWidgetArea);
  QDockWidget* const blocks = addPane("blocks", u"Blocks", m_blocks, Qt::RightDockWidgetArea);
  // The right side, where palettes stand, is as high as the window.
  setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
  tabifyDockWidget(findChild<QDockWidget*>(QStringLiteral("inspector")), blocks);
  layers->setFloating(true);
  layers->resize(640, 360);
  layers->hide();
  blocks->hide();
  resizeDocks({line}, {120}, Qt::Vertical);
}

/// Shows a pane, and gives it the keys.
void MainWindow::showPane(const char* name) {
  auto* const dock = findChild<QDockWidget*>(OdString::fromLatin1(name));
  // Where it floats for the first time it would stand in a corner of the screen, or of none that is
  // left. Elsewhere the user has put it.
  const QByteArray key = QByteArray("Placed.") + name;
  const bool isPlaced = m_desktop.setting(key.constData()).toBool();
  if (dock->isFloating() && (!isPlaced || !QGuiApplication::screenAt(dock->geometry().center()))) {
    dock->move(geometry().center() - dock->rect().center());
    m_desktop.setSetting(key.constData(), true);
  }
  dock->show();
  dock->raise();
  dock->activateWindow();
  dock->widget()->setFocus();
}

void MainWindow::connectPanes() {
  m_actions->connectTo(u"layers", [this] {
    showPane("layers");
    m_layers->follow();
  });
  m_actions->connectTo(u"color", [this] { m_properties->otherColor(); });
  m_actions->connectTo(u"blocks", [this] { showPane("blocks"); });
  m_actions->connectTo(u"options", [this] { OptionsDialog(m_desktop, this).exec(); });
  connect(m_documents, &DocumentArea::choiceChanged, this, &MainWindow::followChoice);
  // What is typed next still goes to the command line.
  connect(m_documents, &DocumentArea::propertiesWanted, this, [this] {
    auto* const dock = findChild<QDockWidget*>(QStringLiteral("inspector"));
    dock->show();
    dock->raise();
  });
}

void MainWindow::followChoice() {
  m_properties->follow();
  m_inspector->follow();
}

void MainWindow::connectActions() {
  connectFiles();
  connectView();
  connectMenus();
  m_actions->connectTo(u"help", [this] { showManual(*this, kManualStart); });
  m_actions->connectTo(u"about", [this] { showAbout(*this); });
}

void MainWindow::connectFiles() {
  const auto onDocument = [this](bool (FileActions::*run)(Document&)) {
    return [this, run] {
      m_files->whenSettled([this, run] {
        if (Document* const document = m_desktop.document()) (m_files->*run)(*document);
      });
    };
  };
  const auto settled = [this](std::function<void()> run) {
    return [this, run] { m_files->whenSettled(run); };
  };
  m_actions->connectTo(u"new", settled([this] { m_files->newDrawing(); }));
  m_actions->connectTo(u"open", settled([this] { m_files->open(); }));
  m_actions->connectTo(u"pageSetup", settled([this] { m_printing->setUpPage(); }));
  m_actions->connectTo(u"print", settled([this] { m_printing->print(); }));
  m_actions->connectTo(u"exportPdf", [this] { m_printing->savePdf(); });
  m_actions->connectTo(u"save", onDocument(&FileActions::save));
  m_actions->connectTo(u"saveAs", onDocument(&FileActions::saveAs));
  m_actions->connectTo(u"close", onDocument(&FileActions::close));
  m_actions->connectTo(u"exit", [this] { close(); });
}

void MainWindow::connectView() {
  m_actions->connectTo(u"zoomExtents", [this] {
    if (Canvas* const canvas = m_documents->canvas()) canvas->showAll();
  });
  m_actions->connectTo(u"zoomWindow", [this] {
    if (Canvas* const canvas = m_documents->canvas()) canvas->beginZoomBox();
  });
  m_actions->connectTo(u"zoomPrevious", [this] {
    Canvas* const canvas = m_documents->canvas();
    if (canvas && !canvas->showFormer()) m_desktop.runMacro(QStringLiteral("^C^C_ZOOM _Previous "));
  });
  m_actions->connectTo(u"zoomIn", [this] { zoomMiddle(kZoomStep); });
  m_actions->connectTo(u"zoomOut", [this] { zoomMiddle(1 / kZoomStep); });
  m_actions->connectTo(u"selectAll", [this] {
    Document* const document = m_desktop.document();
    if (!document || m_desktop.isBusy()) return;
    document->preselection() = SelectionPicker(*document).all();
    Q_EMIT m_desktop.settled();
  });
  m_actions->connectTo(u"selectNone", [this] {
    if (Canvas* const canvas = m_documents->canvas()) canvas->giveUp();
  });
  m_actions->connectTo(u"lineWeights", [this] {
    m_desktop.setVariable("LWDISPLAY", m_desktop.variable("LWDISPLAY").toBool() ? 0 : 1);
    Q_EMIT m_desktop.settled();
  });
  for (const AidAction& row : kAidActions)
    m_actions->connectTo(row.name, [this, aid = row.aid] {
      if (m_desktop.document()) m_aids.toggle(aid);
      follow();
      if (Canvas* const canvas = m_documents->canvas()) canvas->follow();
    });
}

void MainWindow::connectMenus() {
  auto* const recent = new QMenu(this);
  m_actions->find(u"recent")->setMenu(recent);
  connect(recent, &QMenu::aboutToShow, this, &MainWindow::fillRecent);
  auto* const panes = new QMenu(this);
  m_actions->find(u"panes")->setMenu(panes);
  connect(panes, &QMenu::aboutToShow, this, [this, panes] {
    panes->clear();
    const std::unique_ptr<QMenu> all(createPopupMenu());
    for (QAction* const action : all->actions()) panes->addAction(action);
    giveAccessKeys(*panes);
  });
}

QMenu* MainWindow::createPopupMenu() {
  QMenu* const menu = QMainWindow::createPopupMenu();
  if (menu) giveAccessKeys(*menu);
  return menu;
}

void MainWindow::fillRecent() {
  QMenu* const menu = m_actions->find(u"recent")->menu();
  menu->clear();
  int number = 0;
  for (const OdString& file : m_files->recentFiles()) {
    // The number is what is typed.
    QAction* const action = menu->addAction(QStringLiteral("&%1 %2").arg(++number).arg(
        OdString(file).replace(u'&', QStringLiteral("&&"))));
    connect(action, &QAction::triggered, this,
            [this, file] { m_files->whenSettled([this, file] { m_files->openFile(file); }); });
  }
  if (menu->isEmpty()) menu->addAction(translated(u"(none)"))->setEnabled(false);
}

void MainWindow::zoomMiddle(double factor) {
  Canvas* const canvas = m_documents->canvas();
  if (!canvas) return;
  canvas->view().zoom(factor, canvas->view().view().rect().center());
  canvas->follow();
}

/// Brings actions and title to what is true now.
void MainWindow::follow() {
  showTitle();
  followChoice();
  m_layers->follow();
  m_blocks->follow();
  const bool hasDocument = m_desktop.document() != nullptr;
  for (const AidAction& row : kAidActions) {
    m_actions->find(row.name)->setEnabled(hasDocument);
    m_actions->find(row.name)->setChecked(m_aids.isOn(row.aid));
  }
  m_actions->find(u"lineWeights")->setChecked(m_desktop.variable("LWDISPLAY").toBool());
  for (const char16_t* name : {u"save", u"saveAs", u"close", u"pageSetup", u"print", u"exportPdf",
                               u"selectAll", u"selectNone", u"zoomIn", u"zoomOut", u"zoomExtents",
                               u"zoomWindow", u"zoomPrevious", u"lineWeights"})
    m_actions->find(name)->setEnabled(hasDocument);
  if (m_desktop.engine().isExiting() && !m_isClosing) QTimer::singleShot(0, this, &QWidget::close);
}

void MainWindow::showTitle() {
  const Document* const document = m_desktop.document();
  setWindowTitle(document ? document->name() + QStringLiteral("[*] - Drafton")
                          : QStringLiteral("Drafton"));
  setWindowModified(document && document->isModified());
}

void MainWindow::showMenuAt(const QPoint& place) {
  QMenu menu(this);
  if (m_desktop.isBusy()) {
    for (const SnapRow& row : snapKinds()) {
      const OdString word = QStringLiteral("_%1\n").arg(snapWord(row.kind));
      menu.addAction(snapName(row.kind), &m_desktop, [this, word] { m_desktop.type(word); });
    }
    giveAccessKeys(menu);
    menu.exec(place);
    return;
  }
  if (const OdString last = m_desktop.lastRun(); !last.isEmpty())
    connect(menu.addAction(translated(u"Repeat %1").arg(last)), &QAction::triggered, &m_desktop,
            &Desktop::repeat);
  menu.addSeparator();
  const bool hasChoice = m_desktop.document() && !m_desktop.document()->preselection().empty();
  if (hasChoice)
    m_actions->addTo(menu, {u"CUTCLIP", u"COPYCLIP", u"ERASE", u"MOVE", u"COPY", u"ROTATE",
                            u"SCALE", u"MIRROR", u"MATCHPROP", u"selectNone"});
  menu.addSeparator();
  m_actions->addTo(menu,
                   {u"PASTECLIP", u"selectAll", u"zoomExtents", u"zoomWindow", u"zoomPrevious"});
  giveAccessKeys(menu);
  menu.exec(place);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (!m_commandLine->takeKey(event)) QMainWindow::keyPressEvent(event);
}

/// Lists and trees would search for what is typed; commands are typed more often. Those whose entry
/// can be edited keep their keys, and so do all of them with Enter, blank and the arrows. Of the
/// windows of panes comes what nothing in them takes, Esc with it.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto* const key = static_cast<QKeyEvent*>(event);
    const auto* const list = qobject_cast<QAbstractItemView*>(watched);
    if (!list && m_commandLine->takeKey(key)) return true;
    const bool edits = list && (list->currentIndex().flags() & Qt::ItemIsEditable) &&
                       list->editTriggers() != QAbstractItemView::NoEditTriggers;
    const OdString text = key->text();
    if (list && !edits && !text.isEmpty() && text[0].isPrint() && !text[0].isSpace())
      return m_commandLine->takeKey(key);
  }
  return QMainWindow::eventFilter(watched, event);
}

/// True for panes that float and for pages that were pulled out of one: parts of this window that
/// the system takes for windows of their own.
bool MainWindow::isPaneWindow(const QWidget& window) const {
  if (window.windowType() != Qt::Tool) return false;
  const QWidget* owner = window.parentWidget();
  while (owner && owner != this) owner = owner->parentWidget();
  return owner != nullptr;
}

void MainWindow::watchKeys(QWidget* former, QWidget* now) {
  if (qobject_cast<QAbstractItemView*>(former)) former->removeEventFilter(this);
  QWidget* const window = now ? now->window() : nullptr;
  const bool isPane = window && isPaneWindow(*window);
  // Windows stay watched: they have the keys, too, when nothing in them has.
  if (isPane) window->installEventFilter(this);
  if (qobject_cast<QAbstractItemView*>(now) && (isPane || window == this))
    now->installEventFilter(this);
}

void MainWindow::changeEvent(QEvent* event) {
  // The user, or the system, went over to the other theme.
  if (event->type() == QEvent::PaletteChange) m_actions->showIcons(isDark(palette()));
  QMainWindow::changeEvent(event);
}

// --- files dropped on the window

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  QStringList files;
  for (const QUrl& url : event->mimeData()->urls())
    if (url.isLocalFile()) files << url.toLocalFile();
  event->acceptProposedAction();
  m_files->whenSettled([this, files] {
    for (const OdString& file : files) m_files->openFile(file);
  });
}

// --- closing

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (m_desktop.input().isWaiting()) {
    // What waits on the stack has to unwind before the documents can go.
    m_files->whenSettled([this] { close(); });
    return;
  }
  m_desktop.engine().cancelAll();
  m_isClosing = true;
  const bool isClosed = m_files->closeAll();
  m_isClosing = isClosed;
  if (!isClosed) return;
  keepPlaces();
  event->accept();
}

void MainWindow::keepPlaces() {
  m_desktop.setSetting("Geometry", OdString::fromLatin1(saveGeometry().toBase64()));
  m_desktop.setSetting("Windows", OdString::fromLatin1(saveState().toBase64()));
}

void MainWindow::restorePlaces() {
  const auto bytes = [this](const char* key) {
    return QByteArray::fromBase64(m_desktop.setting(key).toString().toLatin1());
  };
  // Bytes of a later version, or none at all, are passed over.
  restoreGeometry(bytes("Geometry"));
  restoreState(bytes("Windows"));
}

} // namespace drafton
