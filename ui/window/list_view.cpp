#include "ui/window/list_view.h"

#include "catalog/palette_manager.h"
#include "catalog/repeated_tool.h"
#include "catalog/tool.h"
#include "host/host_locator.h"
#include "host/window_services.h"
#include "ui/palette_set.h"
#include "ui/state_saver.h"
#include "ui/window/tree_view.h"

#include <QHeaderView>
#include <QListView>
#include <QMouseEvent>
#include <QStackedLayout>
#include <QTreeView>

namespace tc {
namespace {

constexpr int kBadArgument = 40;
constexpr Qt::KeyboardModifiers kSelecting = Qt::ShiftModifier | Qt::ControlModifier;
/// Room for a name of two lines below an icon.
constexpr int kIconCellWidth = 84, kIconCellMargin = 10;

/// The keys of the details' columns.
constexpr const char16_t* kColumnKeys[] = {u"NameClmn", u"DescClmn"};

std::int32_t iconSizeInForce() {
  const OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  return manager ? static_cast<std::int32_t>(manager->viewSetting()) : kNormalIcons;
}

void writeValue(ITcUiStateSaver& store, const OdString& key, OdVariant value) {
  store.write(key, value);
}

} // namespace

TcUiListView::TcUiListView(ITcUiPaletteSet& window, TcUiItemPictures& pictures)
  : m_window(window)
  , m_model(pictures)
  , m_stack(new QStackedLayout(this))
  , m_icons(new QListView)
  , m_details(new QTreeView) {
  setAccessibleName(host::translate(QStringLiteral("Tools")));
  m_stack->setContentsMargins(0, 0, 0, 0);
  setUp(*m_icons);
  setUp(*m_details);
  m_icons->setResizeMode(QListView::Adjust);
  m_icons->setWordWrap(true);
  m_details->setRootIsDecorated(false);
  m_details->setUniformRowHeights(true);
  m_details->setAllColumnsShowFocus(true);
  m_details->header()->setStretchLastSection(false);
  // One selection, however it is shown.
  QItemSelectionModel* const spare = m_details->selectionModel();
  m_details->setSelectionModel(m_icons->selectionModel());
  delete spare;
  setFocusProxy(m_icons);
  applyIconSize(iconSizeInForce());
  setViewStyle(kIconStyle);
}

void TcUiListView::setUp(QAbstractItemView& view) {
  view.setModel(&m_model);
  view.setSelectionMode(QAbstractItemView::ExtendedSelection);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setFrameStyle(QFrame::NoFrame);
  view.setTextElideMode(Qt::ElideRight);
  view.setAccessibleName(host::translate(QStringLiteral("Tools")));
  view.installEventFilter(this);
  view.viewport()->installEventFilter(this);
  connect(&view, &QAbstractItemView::doubleClicked, this, [this](auto& index) { open(index); });
  m_stack->addWidget(&view);
}

void TcUiListView::takeKeys(bool takes) {
  for (QAbstractItemView* const view :
       {static_cast<QAbstractItemView*>(m_icons), static_cast<QAbstractItemView*>(m_details)})
    view->setFocusPolicy(takes ? Qt::StrongFocus : Qt::NoFocus);
}

QAbstractItemView& TcUiListView::shownView() const {
  return m_style == kDetailsStyle ? static_cast<QAbstractItemView&>(*m_details) : *m_icons;
}

void TcUiListView::fill(OdTcCatalogItem* item) {
  if (odrxCast<OdTcTool>(item)) return;
  m_model.fill(item);
  m_icons->scrollToTop();
  if (m_style == kDetailsStyle) setColumns();
}

void TcUiListView::applyIconSize(std::int32_t size) {
  const int pixels = TcUiItemPictures::pixelsOf(size);
  m_model.setIconSize(size);
  m_icons->setIconSize(QSize(pixels, pixels));
  m_details->setIconSize(QSize(pixels, pixels));
  const int lines = 2 * fontMetrics().lineSpacing();
  m_icons->setGridSize(m_style == kIconStyle ? QSize(qMax(kIconCellWidth, pixels + kIconCellMargin),
                                                     pixels + lines + kIconCellMargin)
                                             : QSize());
}

void TcUiListView::setViewStyle(std::int32_t style) {
  if (m_style == kDetailsStyle && style != kDetailsStyle) m_columns = columnWidths();
  m_style = style;
  const bool isWrapped = style == kIconStyle || style == kSmallIconStyle;
  m_icons->setViewMode(style == kIconStyle ? QListView::IconMode : QListView::ListMode);
  m_icons->setMovement(QListView::Static);
  m_icons->setFlow(isWrapped ? QListView::LeftToRight : QListView::TopToBottom);
  m_icons->setWrapping(isWrapped);
  m_icons->setWordWrap(style == kIconStyle);
  // Names of one and of two lines; the grid keeps the cells alike.
  m_icons->setUniformItemSizes(style != kIconStyle);
  m_stack->setCurrentWidget(&shownView());
  setFocusProxy(&shownView());
  applyIconSize(iconSizeInForce());
  if (style == kDetailsStyle) setColumns();
}

void TcUiListView::setColumns() {
  if (m_columns[0] <= 0 || m_columns[1] <= 0) m_columns.fill(m_details->viewport()->width() / 2);
  for (int column = 0; column < TcUiItemListModel::kColumnCount; ++column)
    m_details->setColumnWidth(column, m_columns[static_cast<std::size_t>(column)]);
}

std::array<int, 2> TcUiListView::columnWidths() const {
  return {m_details->columnWidth(TcUiItemListModel::kName),
          m_details->columnWidth(TcUiItemListModel::kDescription)};
}

int TcUiListView::sort(std::int32_t mode) { return m_model.sortBy(mode) ? 0 : kBadArgument; }

bool TcUiListView::eventFilter(QObject* watched, QEvent* event) {
  QAbstractItemView& view = shownView();
  // A layout that was put off has to be made up for before rows are painted. Qt does so when it
  // paints the frame around them, and here is none.
  if (event->type() == QEvent::Paint && watched == view.viewport())
    view.visualRect(m_model.index(0, 0));
  if (event->type() == QEvent::KeyPress && watched == &view)
    return keyPressed(static_cast<QKeyEvent*>(event)->key());
  if (event->type() == QEvent::MouseButtonPress && watched == view.viewport()) {
    const auto* const press = static_cast<QMouseEvent*>(event);
    if ((press->modifiers() & kSelecting) == 0) {
      // The view does its own part first; the tool's may bring anything.
      const QPersistentModelIndex index = view.indexAt(press->position().toPoint());
      const Qt::MouseButton button = press->button();
      QMetaObject::invokeMethod(
          this, [this, &view, index, button] { mousePressed(view, index, button); },
          Qt::QueuedConnection);
    }
  }
  return QWidget::eventFilter(watched, event);
}

void TcUiListView::mousePressed(QAbstractItemView& view, const QModelIndex& index,
                                Qt::MouseButton button) {
  if (!index.isValid()) view.selectionModel()->clearCurrentIndex();
  if (button == Qt::LeftButton) runTool(index);
}

bool TcUiListView::keyPressed(int key) {
  const QModelIndex current = shownView().currentIndex();
  switch (key) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    open(current);
    return true;
  case Qt::Key_Space:
    runTool(current);
    return true;
  case Qt::Key_Backspace:
    if (auto* const tree = paletteSetPart<ITcUiTreeView>(&m_window)) tree->selectParent();
    return true;
  default:
    return false;
  }
}

void TcUiListView::runTool(const QModelIndex& index) {
  const OdSmartPtr<OdTcTool> tool(odrxCast<OdTcTool>(m_model.itemAt(index)));
  IHostDocument* const document = host::curDocument();
  if (!tool || !document || !document->database()) return;
  tool->execute(document);
  tellUserRan(*tool);
  if (const auto windows = host::service<IHostWindowServices>()) windows->focusDrawing();
}

void TcUiListView::open(const QModelIndex& index) {
  const OdTcCatalogItemPtr item(m_model.itemAt(index));
  if (!item || odrxCast<OdTcTool>(item.get())) return;
  fill(item);
  if (auto* const tree = paletteSetPart<ITcUiTreeView>(&m_window))
    tree->expandAndSelect(item->id());
}

void TcUiListView::saveState(ITcUiStateSaver& store) const {
  writeValue(store, QStringLiteral("IconSize"), OdVariant(iconSizeInForce()));
  writeValue(store, QStringLiteral("ViewStyle"), OdVariant(static_cast<std::uint32_t>(m_style)));
  if (m_style != kDetailsStyle) return;
  const std::array<int, 2> widths = columnWidths();
  for (std::size_t i = 0; i < widths.size(); ++i)
    writeValue(store, OdString::fromUtf16(kColumnKeys[i]), OdVariant(widths[i]));
}

void TcUiListView::loadState(const ITcUiStateSaver& store) {
  // Through the window, so that model and check marks agree.
  OdVariant value;
  if (store.read(QStringLiteral("IconSize"), value))
    for (const TcUiValueCommand& row : kIconSizeCommands)
      if (row.value == value.toInt32()) m_window.dispatchCommand(row.command);
  const bool isStored = store.read(QStringLiteral("ViewStyle"), value);
  const std::int32_t style = isStored ? value.toInt32() : std::int32_t{kIconStyle};
  if (style == kIconStyle) m_window.dispatchCommand(kCommandIconStyle);
  if (style == kListStyle) m_window.dispatchCommand(kCommandListStyle);
  if (style != kDetailsStyle) return;
  for (std::size_t i = 0; i < m_columns.size(); ++i)
    if (store.read(OdString::fromUtf16(kColumnKeys[i]), value)) m_columns[i] = value.toInt32();
  m_window.dispatchCommand(kCommandDetailsStyle);
}

} // namespace tc
