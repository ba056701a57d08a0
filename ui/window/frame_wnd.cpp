#include "ui/window/frame_wnd.h"

#include <QEvent>

namespace tc {
namespace {

constexpr int kFirstWidth = 200;
constexpr int kLeastShown = 2;

OdString columnKey(int column) { return QStringLiteral("Col%1").arg(column); }

} // namespace

TcUiFrameWnd::TcUiFrameWnd(ITcUiPaletteSet& window)
  : QSplitter(Qt::Horizontal)
  , m_tree(new TcUiTreeView(window, m_pictures))
  , m_list(new TcUiListView(window, m_pictures)) {
  m_pictures.setInk(palette().color(QPalette::WindowText));
  addWidget(m_tree);
  addWidget(m_list);
  QList<int> widths{kFirstWidth, kFirstWidth};
  OdVariant stored;
  for (int column = 0; column < widths.size(); ++column) {
    widget(column)->setMinimumWidth(0);
    if (m_state.read(columnKey(column), stored)) widths[column] = stored.toInt32();
  }
  resize(widths[0] + handleWidth() + widths[1], height());
  setSizes(widths);
}

void TcUiFrameWnd::changeEvent(QEvent* event) {
  QSplitter::changeEvent(event);
  // Signs are drawn in the theme's colour. The views paint themselves anew anyway.
  if (event->type() == QEvent::PaletteChange)
    m_pictures.setInk(palette().color(QPalette::WindowText));
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
  const QList<int> widths = sizes();
  for (int column = 0; column < widths.size(); ++column) {
    OdVariant value(widths[column]);
    m_state.write(columnKey(column), value);
  }
  m_tree->saveState(m_state);
  m_list->saveState(m_state);
}

bool TcUiFrameWnd::bothPanesVisible() const {
  const QList<int> widths = sizes();
  return widths[0] >= kLeastShown && widths[1] >= kLeastShown;
}

void TcUiFrameWnd::applyActiveView(int value) {
  if (value == 0) setSizes({0, width()});
  if (value == 1) setSizes({width(), 0});
}

} // namespace tc
