#include "ui/window/item_list_model.h"

#include "catalog/catalog.h"
#include "catalog/tool.h"
#include "host/host_locator.h"
#include "ui/window/item_children.h"
#include "ui/window/item_tip.h"

#include <algorithm>

namespace tc {
namespace {

std::vector<OdTcCatalogItemPtr> held(const TcUiItems& items) {
  std::vector<OdTcCatalogItemPtr> rows;
  rows.reserve(items.size());
  for (OdTcCatalogItem* const item : items) rows.emplace_back(item);
  return rows;
}

} // namespace

TcUiItemListModel::TcUiItemListModel(TcUiItemPictures& pictures)
  : m_pictures(pictures) {
  m_late.setSingleShot(true);
  connect(&m_late, &QTimer::timeout, this, [this] { takeRows(); });
}

void TcUiItemListModel::fill(OdTcCatalogItem* item) {
  m_late.stop();
  beginResetModel();
  show(item);
  m_rows = item ? held(listChildren(*item)) : std::vector<OdTcCatalogItemPtr>();
  endResetModel();
}

void TcUiItemListModel::show(OdTcCatalogItem* item) {
  if (m_shown) m_shown->removeReactor(this);
  if (m_catalog) m_catalog->removeReactor(this);
  m_shown = OdTcCatalogItemPtr(item);
  m_catalog = OdTcCatalogItemPtr(odrxCast<OdTcGroup>(item) ? item->catalog() : nullptr);
  if (m_shown) m_shown->addReactor(this);
  if (m_catalog) m_catalog->addReactor(this);
}

void TcUiItemListModel::append(OdTcCatalogItem* item) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  m_rows.emplace_back(item);
  endInsertRows();
}

bool TcUiItemListModel::remove(const OdTcCatalogItem* item) {
  const QModelIndex index = indexOf(item);
  if (!index.isValid()) return false;
  beginRemoveRows({}, index.row(), index.row());
  m_rows.erase(m_rows.begin() + index.row());
  endRemoveRows();
  return true;
}

void TcUiItemListModel::takeRows() {
  m_late.stop();
  if (m_shown) reorder(held(listChildren(*m_shown)));
}

bool TcUiItemListModel::sortBy(std::int32_t mode) {
  TcUiItems items(m_rows.size());
  std::transform(m_rows.begin(), m_rows.end(), items.begin(), [](auto& row) { return row.get(); });
  if (!sortTools(items, mode)) return false;
  reorder(held(items));
  return true;
}

void TcUiItemListModel::reorder(std::vector<OdTcCatalogItemPtr> rows) {
  if (rows == m_rows) return;
  // What is selected stays selected wherever it goes.
  Q_EMIT layoutAboutToBeChanged();
  QHash<const OdTcCatalogItem*, int> places;
  for (std::size_t i = 0; i < rows.size(); ++i) places.insert(rows[i].get(), static_cast<int>(i));
  const QModelIndexList former = persistentIndexList();
  QModelIndexList moved;
  for (const QModelIndex& index : former) {
    const int row = places.value(itemAt(index), -1);
    moved << (row < 0 ? QModelIndex() : createIndex(row, index.column()));
  }
  m_rows = std::move(rows);
  changePersistentIndexList(former, moved);
  Q_EMIT layoutChanged();
}

OdTcCatalogItem* TcUiItemListModel::itemAt(const QModelIndex& index) const {
  return index.isValid() ? m_rows[static_cast<std::size_t>(index.row())].get() : nullptr;
}

QModelIndex TcUiItemListModel::indexOf(const OdTcCatalogItem* item) const {
  const auto at =
      std::find_if(m_rows.begin(), m_rows.end(), [&](auto& row) { return row.get() == item; });
  return at == m_rows.end() ? QModelIndex() : index(static_cast<int>(at - m_rows.begin()), kName);
}

void TcUiItemListModel::changed(const OdTcCatalogItem& item) {
  m_pictures.forget(item);
  const QModelIndex first = indexOf(&item);
  if (first.isValid()) Q_EMIT dataChanged(first, first.siblingAtColumn(kDescription));
}

void TcUiItemListModel::itemAdded(OdTcCatalogItem*) { m_late.start(0); }

void TcUiItemListModel::itemRemoved(OdTcCatalogItem* item) {
  if (item == m_shown.get())
    clear();
  else
    remove(item);
}

void TcUiItemListModel::itemChanged(OdTcCatalogItem* item) {
  changed(*item);
  m_late.start(0);
}

void TcUiItemListModel::setIconSize(std::int32_t size) {
  if (size == m_iconSize) return;
  m_iconSize = size;
  if (!m_rows.empty())
    Q_EMIT dataChanged(index(0, kName), index(rowCount() - 1, kName), {Qt::DecorationRole});
}

int TcUiItemListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TcUiItemListModel::data(const QModelIndex& index, int role) const {
  const OdTcCatalogItem* const item = itemAt(index);
  if (!item) return {};
  const bool isName = index.column() == kName;
  switch (role) {
  case Qt::DisplayRole:
  case Qt::AccessibleTextRole:
    return isName ? item->name() : item->description();
  case Qt::AccessibleDescriptionRole:
    return item->description();
  case Qt::DecorationRole:
    return isName ? QVariant(m_pictures.picture(*item, m_iconSize)) : QVariant();
  case Qt::ToolTipRole:
    return itemTip(*item, m_pictures);
  default:
    return {};
  }
}

QVariant TcUiItemListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return host::translate(section == kName ? QStringLiteral("Name") : QStringLiteral("Description"));
}

} // namespace tc
