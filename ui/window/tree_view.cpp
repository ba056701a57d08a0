#include "ui/window/tree_view.h"

#include "catalog/tool.h"
#include "host/host_locator.h"
#include "ui/palette_set.h"
#include "ui/state_saver.h"
#include "ui/window/list_view.h"

#include <QKeyEvent>

namespace tc {
namespace {

const OdString& expandedKey() {
  static const OdString key = QStringLiteral("ExpandedItems");
  return key;
}

const OdString& selectedKey() {
  static const OdString key = QStringLiteral("LastSelected");
  return key;
}

template <class Visit>
void visitExpanded(const QTreeView& view, const QModelIndex& parent, Visit visit) {
  const QAbstractItemModel* const model = view.model();
  for (int row = 0; row < model->rowCount(parent); ++row) {
    const QModelIndex index = model->index(row, 0, parent);
    if (view.isExpanded(index)) visit(index);
    visitExpanded(view, index, visit);
  }
}

} // namespace

TcUiTreeView::TcUiTreeView(ITcUiPaletteSet& window, TcUiItemPictures& pictures)
  : m_window(window)
  , m_model(pictures) {
  setModel(&m_model);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIconSize(QSize(16, 16));
  setFrameShape(QFrame::NoFrame);
  setAccessibleName(host::translate(QStringLiteral("Catalogs")));
  connect(&m_model, &QAbstractItemModel::rowsInserted, this, &TcUiTreeView::takeInserted);
  // Once the window stands there.
  m_bringSelection.setSingleShot(true);
  connect(&m_bringSelection, &QTimer::timeout, this,
          [this] { m_model.loadWaiting(m_awaitedSelection); });
}

void TcUiTreeView::populate() {
  m_model.refresh();
  for (int row = 0; row < m_model.rowCount(); ++row) expand(m_model.index(row, 0));
}

void TcUiTreeView::takeInserted(const QModelIndex& parent, int first, int last) {
  for (int row = first; row <= last; ++row) {
    const QModelIndex index = m_model.index(row, 0, parent);
    // A catalog that comes later is expanded as those of the start are.
    if (!parent.isValid()) expand(index);
    takeAwaited(index);
  }
}

void TcUiTreeView::takeAwaited(const QModelIndex& index) {
  if (m_awaited.isEmpty() && m_awaitedSelection.isEmpty()) return;
  const OdString id = m_model.itemAt(index)->id();
  if (m_awaited.removeOne(id)) expand(index);
  if (id == m_awaitedSelection) select(index);
}

void TcUiTreeView::refreshName(const OdString& id) {
  const QModelIndex index = m_model.indexOfId(id);
  if (index.isValid()) Q_EMIT m_model.dataChanged(index, index, {Qt::DisplayRole});
}

OdTcCatalogItem* TcUiTreeView::selectedItem() const {
  const QModelIndexList selected = selectedIndexes();
  return selected.isEmpty() ? nullptr : m_model.itemAt(selected.first());
}

void TcUiTreeView::announceSelection() {
  OdTcCatalogItem* const item = selectedItem();
  // A tool leaves the list showing the palette that it stands on.
  if (!item || odrxCast<OdTcTool>(item)) return;
  if (auto* const list = paletteSetPart<ITcUiListView>(&m_window)) list->fill(item);
  m_window.setTabLabel(0, item->name());
}

void TcUiTreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& former) {
  QTreeView::selectionChanged(selected, former);
  // Whatever the user chooses meanwhile stays chosen.
  if (!selected.isEmpty()) m_awaitedSelection.clear();
  announceSelection();
}

bool TcUiTreeView::select(const QModelIndex& index) {
  if (!index.isValid()) return false;
  setCurrentIndex(index);
  scrollTo(index);
  return true;
}

bool TcUiTreeView::selectById(const OdString& id) { return select(m_model.indexOfId(id)); }

bool TcUiTreeView::expandAndSelect(const OdString& id) {
  const QModelIndex index = m_model.indexOfId(id);
  if (index.isValid()) expand(index);
  return select(index);
}

void TcUiTreeView::selectParent() {
  const QModelIndexList selected = selectedIndexes();
  if (!selected.isEmpty()) select(selected.first().parent());
}

void TcUiTreeView::refreshToolImage(OdTcCatalogItem* tool) {
  if (!tool) return;
  m_model.pictureChanged(*tool);
  if (auto* const list = paletteSetPart<ITcUiListView>(&m_window)) list->updateImage(tool);
}

void TcUiTreeView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Backspace) return selectParent();
  QTreeView::keyPressEvent(event);
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
  // As a double click does. The host has another use for an Enter that nobody takes.
  if (m_model.hasChildren(currentIndex())) setExpanded(currentIndex(), !isExpanded(currentIndex()));
  event->accept();
}

void TcUiTreeView::saveState(ITcUiStateSaver& store) const {
  QStringList expanded;
  visitExpanded(*this, {},
                [&](const QModelIndex& index) { expanded << m_model.itemAt(index)->id(); });
  const bool isLoading = m_model.pendingCount() > 0;
  if (isLoading) expanded << m_awaited;
  OdVariant value(expanded.join(u'|'));
  store.write(expandedKey(), value);
  // A tool is remembered as its palette.
  const OdTcCatalogItem* item = selectedItem();
  if (odrxCast<OdTcTool>(item)) item = m_model.itemAt(selectedIndexes().first().parent());
  value = OdVariant(item ? item->id() : isLoading ? m_awaitedSelection : OdString());
  store.write(selectedKey(), value);
}

void TcUiTreeView::loadState(const ITcUiStateSaver& store) {
  OdVariant value;
  if (store.read(expandedKey(), value)) {
    const QStringList ids = value.toString().split(u'|', Qt::SkipEmptyParts);
    for (const OdString& id : ids)
      if (const QModelIndex index = m_model.indexOfId(id); index.isValid())
        expand(index);
      else
        m_awaited << id;
  }
  if (!store.read(selectedKey(), value) || selectById(value.toString())) return;
  m_awaitedSelection = value.toString();
  m_bringSelection.start(0);
}

} // namespace tc
