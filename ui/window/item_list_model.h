// What the list shows: the contents of one item.
#pragma once

#include "module/catalog_item.h"
#include "ui/window/item_pictures.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <vector>

namespace tc {

/// The children of a catalog, group or palette, with name and description. Follows what it shows as
/// the tree's model does.
class TcUiItemListModel : public QAbstractTableModel, private OdTcCatalogItemReactor {
 public:
  enum Column { kName, kDescription, kColumnCount };

  /// The pictures are shared with the tree and live longer.
  explicit TcUiItemListModel(TcUiItemPictures& pictures);
  ~TcUiItemListModel() override { clear(); }

  /// Shows what is in the item; null shows nothing.
  void fill(OdTcCatalogItem* item);
  void clear() { fill(nullptr); }
  /// Adds one row behind the others.
  void append(OdTcCatalogItem* item);
  bool remove(const OdTcCatalogItem* item);
  /// Orders tools: 0 by name, 1 by kind; false, with nothing changed, for any other mode.
  bool sortBy(std::int32_t mode);

  /// Null for the invalid index.
  OdTcCatalogItem* itemAt(const QModelIndex& index) const;
  QModelIndex indexOf(const OdTcCatalogItem* item) const;
  /// Name, description or picture of the item are different now.
  void changed(const OdTcCatalogItem& item);

  /// One of TcUiIconSize.
  void setIconSize(std::int32_t size);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return kColumnCount; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void itemAdded(OdTcCatalogItem* item) override;
  void itemRemoved(OdTcCatalogItem* item) override;
  void itemChanged(OdTcCatalogItem* item) override;
  void show(OdTcCatalogItem* item);
  void takeRows();
  void reorder(std::vector<OdTcCatalogItemPtr> rows);

  TcUiItemPictures& m_pictures;
  OdTcCatalogItemPtr m_shown;
  OdTcCatalogItemPtr m_catalog; ///< of a group that is shown: it tells of palettes that come
  std::vector<OdTcCatalogItemPtr> m_rows;
  std::int32_t m_iconSize = kNormalIcons;
  QTimer m_late;
};

} // namespace tc
