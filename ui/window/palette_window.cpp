#include "ui/window/palette_window.h"

#include "catalog/palette_manager.h"
#include "catalog/tool_palette.h"
#include "host/host_locator.h"
#include "module/string_table.h"
#include "ui/catalog_folder.h"
#include "ui/window/palette_messages.h"
#include "ui/window/window_commands.h"

#include <QMenu>
#include <QWidget>

namespace tc {
namespace {

constexpr const char16_t* kPaneName = u"ToolPaletteManager";
constexpr const char16_t* kHelpTopic = u"IDH_ToolPalettes";

/// A window below this size in both directions was saved collapsed.
constexpr int kCollapsed = 5;
constexpr QPoint kRescueCorner(10, 10);
constexpr QSize kRescueSize(300, 400);
/// What the tabs leave to the strip above them, whatever its height.
constexpr int kAboveTabs = 23;

OdString activeViewKey() { return QStringLiteral("ActiveView"); }

OdString tr(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

struct MenuWord {
  int command;
  const char16_t* text;
};
constexpr MenuWord kViewWords[] = {
    {kCommandIconStyle, u"Icons"},
    {kCommandListStyle, u"List"},
    {kCommandDetailsStyle, u"De&tails"},
};

void addWord(QMenu& menu, int command, const OdString& text, ITcUiPaletteSet* window) {
  QAction* const action = menu.addAction(text);
  action->setData(command);
  action->setCheckable(true);
  QObject::connect(action, &QAction::triggered, &menu, [window, action, command] {
    // The mark follows what is in force, not the click.
    action->setChecked(!action->isChecked());
    window->dispatchCommand(command);
  });
}

void checkOnly(QMenu* menu, int command) {
  if (!menu) return;
  const QList<QAction*> actions = menu->actions();
  for (QAction* const action : actions) action->setChecked(action->data().toInt() == command);
}

/// The command whose value it is; `fallback` for a value without one.
template <class Rows>
int commandOf(const Rows& rows, std::int32_t value, int fallback) {
  for (const TcUiValueCommand& row : rows)
    if (row.value == value) return row.command;
  return fallback;
}

} // namespace

/// What the pane shows; it hands its events on.
class TcUiPaletteSet::Content : public QWidget {
 public:
  explicit Content(TcUiPaletteSet& owner)
    : m_owner(owner)
    , m_customize(customizeMessage()) {}

 protected:
  bool event(QEvent* event) override {
    return event->type() == m_customize ? m_owner.comeForward() : QWidget::event(event);
  }
  void changeEvent(QEvent* event) override {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_owner.m_toolbar.widget())
      m_owner.m_toolbar.setColors(palette());
  }

 private:
  TcUiPaletteSet& m_owner;
  int m_customize;
};

std::unique_ptr<ITcUiPaletteSet> TcUiPaletteSet::create() {
  const auto windows = host::service<IHostWindowServices>();
  if (!windows) return nullptr;
  std::unique_ptr<TcUiPaletteSet> window(new TcUiPaletteSet(windows));
  if (!window->m_pane) return nullptr;
  window->m_pane->show(true);
  return window;
}

TcUiPaletteSet::TcUiPaletteSet(const KVPtr<IHostWindowServices>& windows)
  : m_windows(windows)
  , m_content(new Content(*this))
  , m_toolbar([this](int command) { dispatchCommand(command); }) {
  m_pane =
      m_windows->createPane(OdString::fromUtf16(kPaneName), tr(u"Tool Palettes"), m_content, this);
}

TcUiPaletteSet::~TcUiPaletteSet() {
  // The pane tells of its end, and takes its content along.
  m_pane.reset();
  delete m_content;
}

bool TcUiPaletteSet::paneCreated() {
  const auto controls = host::service<IHostWindowControls>();
  if (!controls || !m_toolbar.create(*controls.get(), *m_content)) return false;
  Content& content = *m_content;

  m_sizeMenu = new QMenu(&content);
  const QStringList sizes = stringText(StringId::kPreviewSizes).split(u'|');
  for (int i = 0; i < sizes.size(); ++i)
    addWord(*m_sizeMenu, kCommandSmallIcons + i, sizes[i], this);
  m_viewMenu = new QMenu(&content);
  for (const MenuWord& word : kViewWords) addWord(*m_viewMenu, word.command, tr(word.text), this);
  if (const OdTcPaletteManager* const manager = OdTcPaletteManager::instance())
    markSize(static_cast<std::int32_t>(manager->viewSetting()));
  m_toolbar.setMenu(kCommandViewStyle, m_viewMenu);
  m_toolbar.setMenu(kCommandIconSize, m_sizeMenu);

  m_tabs = controls->createTabs(content);
  m_frame = new TcUiFrameWnd(*this);
  m_frame->setParent(&content);
  if (!m_tabs || !m_frame->create(*controls.get())) return false;
  m_tabs->addPage(m_frame, tr(u"Tools"), true);
  m_frame->tree().populate();

  readState();
  m_frame->tree().loadState(m_frame->state());
  m_frame->loadListState();
  m_isBuilt = true;
  layOut(content.size());
  return true;
}

void TcUiPaletteSet::readState() {
  OdVariant stored;
  if (m_frame->state().read(activeViewKey(), stored)) m_activeView = stored.toInt32();
  setActiveView(m_activeView);
  m_frame->applyActiveView(m_activeView);
}

void TcUiPaletteSet::writeActiveView() {
  OdVariant value(m_activeView);
  m_frame->state().write(activeViewKey(), value);
}

void TcUiPaletteSet::layOut(const QSize& size) {
  if (!m_isBuilt) return;
  if (size.width() < kCollapsed && size.height() < kCollapsed && m_pane) {
    m_pane->place(kRescueCorner, kRescueSize);
    return;
  }
  const int height = m_toolbar.fixedHeight();
  m_toolbar.widget()->setGeometry(0, 0, size.width(), height);
  m_tabs->widget()->setGeometry(0, height, size.width(), size.height() - kAboveTabs);
  m_frame->applyActiveView(m_activeView);
}

bool TcUiPaletteSet::queryInterface(std::string_view id, void** out) {
  *out = nullptr;
  if (id == ITcUiPaletteSet::kId) *out = static_cast<ITcUiPaletteSet*>(this);
  if (id == ITcUiMenuBuilder::kId) *out = static_cast<ITcUiMenuBuilder*>(&m_menus);
  if (id == ITcUiSelection::kId) *out = static_cast<ITcUiSelection*>(this);
  if (*out) return true;
  return m_content && m_frame && m_frame->queryInterface(id, out);
}

QMenu* TcUiPaletteSet::viewMenu() { return m_viewMenu; }
QMenu* TcUiPaletteSet::sizeMenu() { return m_sizeMenu; }

struct TcUiPaletteSet::Command {
  int command;
  void (TcUiPaletteSet::*run)(std::int32_t value);
  std::int32_t value = 0;
};

bool TcUiPaletteSet::dispatchCommand(int command) {
  static constexpr Command kCommands[] = {
      {kCommandNothing, &TcUiPaletteSet::nothing},
      {kCommandSmallIcons, &TcUiPaletteSet::setIconSize, kSmallIcons},
      {kCommandNormalIcons, &TcUiPaletteSet::setIconSize, kNormalIcons},
      {kCommandLargeIcons, &TcUiPaletteSet::setIconSize, kLargeIcons},
      {kCommandIconStyle, &TcUiPaletteSet::applyViewStyle, kIconStyle},
      {kCommandSmallIconStyle, &TcUiPaletteSet::applyViewStyle, kSmallIconStyle},
      {kCommandListStyle, &TcUiPaletteSet::applyViewStyle, kListStyle},
      {kCommandDetailsStyle, &TcUiPaletteSet::applyViewStyle, kDetailsStyle},
      {kCommandOpenCatalog, &TcUiPaletteSet::chooseCatalogFolder},
      {kCommandToggleView, &TcUiPaletteSet::toggleView},
      {kCommandHelp, &TcUiPaletteSet::showHelp},
  };
  for (const Command& row : kCommands) {
    if (row.command != command) continue;
    if (m_content) (this->*row.run)(row.value);
    return true;
  }
  return false;
}

void TcUiPaletteSet::setTabLabel(int index, const OdString& text) {
  if (m_content) m_tabs->setLabel(index, text);
}

void TcUiPaletteSet::setActiveView(int value) {
  m_activeView = value;
  if (!m_content) return;
  const bool listShows = value == 0 || value == 2;
  for (const int index : {1, 2}) m_toolbar.setButtonEnabled(index, listShows);
}

void TcUiPaletteSet::show(int how, int activate, int) {
  if (how != 0)
    m_pane->show(activate != 0);
  else
    m_pane->hide();
}

void TcUiPaletteSet::refresh() {
  if (m_content) m_frame->tree().populate();
}

OdTcCatalogItem* TcUiPaletteSet::selectedItem() const {
  return m_content ? m_frame->tree().selectedItem() : nullptr;
}

void TcUiPaletteSet::itemChanged(OdTcCatalogItem* item) {
  if (m_content && item) m_frame->tree().refreshToolImage(item);
}

bool TcUiPaletteSet::comeForward() {
  QWidget* const window = m_pane->window();
  QWidget* const owner = window && window->parentWidget() ? window->parentWidget() : window;
  if (!owner) return true;
  owner->window()->raise();
  owner->window()->activateWindow();
  return true;
}

void TcUiPaletteSet::paneClosed() {
  setPaletteSetShown(false);
  if (QWidget* const main = m_windows->mainWindow()) m_windows->broadcast(main, closedMessage());
}

void TcUiPaletteSet::paneDestroyed() {
  if (!m_content) return;
  writeActiveView();
  m_frame->saveState();
}

void TcUiPaletteSet::markSize(std::int32_t size) {
  checkOnly(m_sizeMenu, commandOf(kIconSizeCommands, size, kCommandLargeIcons));
}

void TcUiPaletteSet::setIconSize(std::int32_t size) {
  if (auto* const palette = odrxCast<OdTcToolPalette>(selectedItem()))
    palette->setPreviewSize(size);
  markSize(size);
  if (OdTcPaletteManager* const manager = OdTcPaletteManager::instance())
    manager->setViewSetting(static_cast<std::uint32_t>(size));
  m_frame->list().applyIconSize(size);
  m_frame->tree().announceSelection();
}

void TcUiPaletteSet::applyViewStyle(std::int32_t style) {
  if (auto* const palette = odrxCast<OdTcToolPalette>(selectedItem()))
    palette->setPreviewStyle(style);
  checkOnly(m_viewMenu, commandOf(kViewStyleCommands, style, kCommandNothing));
  m_frame->list().setViewStyle(style);
  m_frame->tree().announceSelection();
}

void TcUiPaletteSet::chooseCatalogFolder(std::int32_t) {
  if (const auto folder = m_windows->chooseFolder(tr(u"Select Tool Palette folder")))
    openCatalogFolder(*folder);
}

void TcUiPaletteSet::toggleView(std::int32_t) {
  setActiveView(m_activeView == 1 ? 0 : 1);
  writeActiveView();
  m_frame->applyActiveView(m_activeView);
}

void TcUiPaletteSet::showHelp(std::int32_t) {
  if (const auto help = host::service<IHelpService>())
    help->showTopic(OdString::fromUtf16(kHelpTopic));
}

} // namespace tc
