// All loaded catalogs as one tree.
#pragma once

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "ui/window/item_pictures.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QTimer>

#include <memory>
#include <vector>

namespace tc {

/// Catalogs at the root, groups and palettes below, tools below their palettes. Palettes that are
/// still to be read come when they are. What is removed goes at once, what is added or moved comes
/// with the next turn of the event loop, so that ten thousand additions are one.
class TcUiCatalogModel : public QAbstractItemModel,
                         private OdTcPaletteManagerReactor,
                         private OdTcCatalogItemReactor {
 public:
  /// The pictures are shared with the list and live longer.
  explicit TcUiCatalogModel(TcUiItemPictures& pictures);
  ~TcUiCatalogModel() override;

  /// Brings everything in line with the palette manager.
  void refresh();

  /// Null for the invalid index.
  OdTcCatalogItem* itemAt(const QModelIndex& index) const;
  /// The first place of an item, depth first.
  QModelIndex indexOf(const OdTcCatalogItem* item) const;
  QModelIndex indexOfId(const OdString& id) const;
  /// How many palettes are still to be read.
  int pendingCount() const;
  /// Has the waiting palette of that id read now; false if none waits under it.
  bool loadWaiting(const OdString& id);
  /// An item's pictures have changed.
  void pictureChanged(const OdTcCatalogItem& item);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Node {
    OdTcCatalogItemPtr item; ///< null for the root
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;
  };

  void catalogAdded(OdTcCatalog* catalog) override;
  void catalogRemoved(OdTcCatalog* catalog) override;
  void catalogsChanged() override { refresh(); }
  void itemAdded(OdTcCatalogItem* item) override;
  void itemRemoved(OdTcCatalogItem* item) override;
  void itemChanged(OdTcCatalogItem* item) override;

  Node& nodeOf(const QModelIndex& index) const;
  QModelIndex indexOf(const Node& node) const;
  int rowOf(const Node& node) const;
  std::vector<OdTcCatalogItem*> wanted(const Node& node) const;
  /// How far down something may be new: palettes, or tools as well.
  enum class Depth { kPalettes, kTools };
  /// Makes the children of a node, and of those below it, the ones that are wanted.
  void sync(Node& node, Depth depth);
  void syncAll(Depth depth);
  /// Does so with the next turn of the event loop.
  void syncLater(Depth depth);
  /// A node with all that stands below it.
  std::unique_ptr<Node> make(OdTcCatalogItem* item, Node* parent);
  void insert(Node& node, int row, std::vector<OdTcCatalogItem*> items);
  void remove(Node& node, int row);
  void removeItem(Node& below, const OdTcCatalogItem* item);
  void watch(Node& node);
  void unwatch(Node& node);
  template <class Matches>
  static const Node* find(const Node& below, Matches matches);
  template <class Visit>
  static void visit(Node& below, Visit call);

  TcUiItemPictures& m_pictures;
  OdTcPaletteManagerPtr m_manager;
  std::unique_ptr<Node> m_root = std::make_unique<Node>();
  QHash<OdTcCatalogItem*, int> m_watched; ///< how often each item stands in the tree
  QTimer m_late;
  Depth m_lateDepth = Depth::kPalettes;
  bool m_isSyncing = false;
};

} // namespace tc
