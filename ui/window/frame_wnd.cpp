#include "ui/window/frame_wnd.h"

#include <QEvent>
#include <QVBoxLayout>

namespace tc {
namespace {

constexpr int kFirstWidth = 200;
constexpr int kLeastShown = 2;

OdString columnKey(std::size_t column) { return QStringLiteral("Col%1").arg(column); }

} // namespace

TcUiFrameWnd::TcUiFrameWnd(ITcUiPaletteSet& window)
  : m_tree(new TcUiTreeView(window, m_pictures))
  , m_list(new TcUiListView(window, m_pictures))
  , m_note(new TcUiLoadingNote(m_tree->catalogs())) {
  m_pictures.setInk(palette().color(QPalette::WindowText));
  m_tree->setParent(this);
  m_list->setParent(this);
  m_note->setParent(this);
}

bool TcUiFrameWnd::create(IHostWindowControls& controls) {
  m_splitter = controls.createSplitter(*this);
  if (!m_splitter) return false;
  auto* const room = new QVBoxLayout(this);
  room->setContentsMargins(0, 0, 0, 0);
  room->setSpacing(0);
  room->addWidget(m_splitter->widget(), 1);
  room->addWidget(m_note);
  m_splitter->addColumn(m_tree);
  m_splitter->addColumn(m_list);
  std::vector<int> widths{kFirstWidth, kFirstWidth};
  OdVariant stored;
  for (std::size_t column = 0; column < widths.size(); ++column)
    if (m_state.read(columnKey(column), stored)) widths[column] = stored.toInt32();
  // At a width at which they keep their proportion.
  m_splitter->widget()->resize(widths[0] + widths[1] + 1, height());
  m_splitter->setWidths(widths);
  return true;
}

/// Pictures are made for the screen on which they are shown.
bool TcUiFrameWnd::event(QEvent* event) {
  if (event->type() == QEvent::Show || event->type() == QEvent::ScreenChangeInternal) {
    m_pictures.setRatio(devicePixelRatioF());
    update();
  }
  return QWidget::event(event);
}

void TcUiFrameWnd::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  m_pictures.setInk(palette().color(QPalette::WindowText));
  update();
}

bool TcUiFrameWnd::queryInterface(std::string_view id, void** out) {
  *out = nullptr;
  if (id == ITcUiFrameWnd::kId) *out = static_cast<ITcUiFrameWnd*>(this);
  if (id == ITcUiTreeView::kId) *out = static_cast<ITcUiTreeView*>(m_tree);
  if (id == ITcUiListView::kId) *out = static_cast<ITcUiListView*>(m_list);
  if (id == ITcUiStateSaver::kId) *out = static_cast<ITcUiStateSaver*>(&m_state);
  return *out != nullptr;
}

void TcUiFrameWnd::saveState() {
  const std::vector<int> all = widths();
  for (std::size_t column = 0; column < all.size(); ++column) {
    OdVariant value(all[column]);
    m_state.write(columnKey(column), value);
  }
  m_tree->saveState(m_state);
  m_list->saveState(m_state);
}

bool TcUiFrameWnd::bothPanesVisible() const {
  const std::vector<int> all = widths();
  return all[0] >= kLeastShown && all[1] >= kLeastShown;
}

void TcUiFrameWnd::applyActiveView(int value) {
  const QWidget* const focused = window()->focusWidget();
  const bool treeHasKeys = m_tree == focused || m_tree->isAncestorOf(focused);
  const bool listHasKeys = m_list->isAncestorOf(focused);
  if (value == 0) m_splitter->setWidths({0, width()});
  if (value == 1) m_splitter->setWidths({width(), 0});
  // What has no width takes no keys.
  m_tree->setFocusPolicy(value == 0 ? Qt::NoFocus : Qt::StrongFocus);
  m_list->takeKeys(value != 1);
  if (value == 0 && treeHasKeys) m_list->setFocus();
  if (value == 1 && listHasKeys) m_tree->setFocus();
}

} // namespace tc
