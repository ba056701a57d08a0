#include "ui/window/catalog_model.h"

#include "catalog/tool.h"
#include "ui/window/item_children.h"
#include "ui/window/item_tip.h"

#include <algorithm>
#include <unordered_set>

namespace tc {
namespace {

constexpr std::int32_t kSmall = 1;

/// The manager's catalogs, the default one first.
TcUiItems catalogsOf(const OdTcPaletteManager* manager) {
  TcUiItems catalogs;
  if (!manager) return catalogs;
  const auto all = manager->catalogsEnum();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (all->next(path, catalog)) catalogs.push_back(catalog);
  std::stable_partition(catalogs.begin(), catalogs.end(),
                        [](auto* each) { return static_cast<OdTcCatalog*>(each)->isDefault(); });
  return catalogs;
}

} // namespace

TcUiCatalogModel::TcUiCatalogModel(TcUiItemPictures& pictures)
  : m_pictures(pictures)
  , m_manager(OdTcPaletteManager::instance()) {
  m_late.setSingleShot(true);
  connect(&m_late, &QTimer::timeout, this, [this] { syncAll(m_lateDepth); });
  if (m_manager) m_manager->addReactor(this);
  refresh();
}

TcUiCatalogModel::~TcUiCatalogModel() {
  if (m_manager) m_manager->removeReactor(this);
  for (auto it = m_watched.keyBegin(); it != m_watched.keyEnd(); ++it) (*it)->removeReactor(this);
}

void TcUiCatalogModel::refresh() { syncAll(Depth::kTools); }

void TcUiCatalogModel::syncAll(Depth depth) {
  m_late.stop();
  m_lateDepth = Depth::kPalettes;
  if (m_isSyncing) return;
  m_isSyncing = true;
  sync(*m_root, depth);
  m_isSyncing = false;
}

void TcUiCatalogModel::syncLater(Depth depth) {
  m_lateDepth = std::max(m_lateDepth, depth);
  m_late.start(0);
}

int TcUiCatalogModel::pendingCount() const {
  int count = 0;
  for (OdTcCatalogItem* const catalog : catalogsOf(m_manager))
    count += static_cast<OdTcCatalog*>(catalog)->loading()->pendingCount();
  return count;
}

bool TcUiCatalogModel::loadWaiting(const OdString& id) {
  const TcUiItems catalogs = catalogsOf(m_manager);
  return std::any_of(catalogs.begin(), catalogs.end(), [&](OdTcCatalogItem* catalog) {
    return static_cast<OdTcCatalog*>(catalog)->loading()->loadWaiting(id);
  });
}

std::vector<OdTcCatalogItem*> TcUiCatalogModel::wanted(const Node& node) const {
  return node.item ? treeChildren(*node.item) : catalogsOf(m_manager);
}

void TcUiCatalogModel::sync(Node& node, Depth depth) {
  if (depth == Depth::kPalettes && odrxCast<OdTcToolPalette>(node.item.get())) return;
  const TcUiItems items = wanted(node);
  const std::unordered_set<const OdTcCatalogItem*> kept(items.begin(), items.end());
  for (std::size_t row = node.children.size(); row-- > 0;)
    if (!kept.contains(node.children[row]->item.get())) remove(node, static_cast<int>(row));
  for (std::size_t at = 0; at < items.size(); ++at) {
    const auto isThere = [&](const auto& child) { return child->item.get() == items[at]; };
    if (at < node.children.size() && isThere(node.children[at])) continue;
    if (at == node.children.size()) {
      // Nothing is left to move: what follows is new, and comes in one go.
      insert(node, static_cast<int>(at),
             {items.begin() + static_cast<std::ptrdiff_t>(at), items.end()});
      break;
    }
    // What has moved is taken out where it was.
    const auto from = node.children.begin() + static_cast<std::ptrdiff_t>(at);
    const auto old = std::find_if(from, node.children.end(), isThere);
    if (old != node.children.end()) remove(node, static_cast<int>(old - node.children.begin()));
    insert(node, static_cast<int>(at), {items[at]});
  }
  // A reference that stands twice in its group has one place too many.
  while (node.children.size() > items.size())
    remove(node, static_cast<int>(node.children.size()) - 1);
  for (const auto& child : node.children) sync(*child, depth);
}

std::unique_ptr<TcUiCatalogModel::Node> TcUiCatalogModel::make(OdTcCatalogItem* item,
                                                               Node* parent) {
  auto node = std::make_unique<Node>();
  node->item = OdTcCatalogItemPtr(item);
  node->parent = parent;
  watch(*node);
  const TcUiItems below = wanted(*node);
  node->children.reserve(below.size());
  for (OdTcCatalogItem* const child : below) node->children.push_back(make(child, node.get()));
  return node;
}

void TcUiCatalogModel::insert(Node& node, int row, TcUiItems items) {
  if (items.empty()) return;
  std::vector<std::unique_ptr<Node>> made;
  made.reserve(items.size());
  for (OdTcCatalogItem* const item : items) made.push_back(make(item, &node));
  beginInsertRows(indexOf(node), row, row + static_cast<int>(made.size()) - 1);
  node.children.insert(node.children.begin() + row, std::make_move_iterator(made.begin()),
                       std::make_move_iterator(made.end()));
  endInsertRows();
}

void TcUiCatalogModel::remove(Node& node, int row) {
  beginRemoveRows(indexOf(node), row, row);
  visit(*node.children[static_cast<std::size_t>(row)], [this](Node& n) { unwatch(n); });
  node.children.erase(node.children.begin() + row);
  endRemoveRows();
}

void TcUiCatalogModel::watch(Node& node) {
  // Tools tell their palette what happens to them.
  if (odrxCast<OdTcTool>(node.item.get())) return;
  if (m_watched[node.item.get()]++ == 0) node.item->addReactor(this);
}

void TcUiCatalogModel::unwatch(Node& node) {
  const auto at = m_watched.find(node.item.get());
  if (at == m_watched.end() || --*at > 0) return;
  node.item->removeReactor(this);
  m_watched.erase(at);
}

template <class Visit>
void TcUiCatalogModel::visit(Node& below, Visit call) {
  call(below);
  for (const auto& child : below.children) visit(*child, call);
}

void TcUiCatalogModel::catalogAdded(OdTcCatalog*) { refresh(); }

void TcUiCatalogModel::catalogRemoved(OdTcCatalog* catalog) { removeItem(*m_root, catalog); }

void TcUiCatalogModel::itemAdded(OdTcCatalogItem* item) {
  syncLater(odrxCast<OdTcTool>(item) ? Depth::kTools : Depth::kPalettes);
}

void TcUiCatalogModel::itemRemoved(OdTcCatalogItem* item) { removeItem(*m_root, item); }

void TcUiCatalogModel::itemChanged(OdTcCatalogItem* item) {
  m_pictures.forget(*item);
  visit(*m_root, [&](Node& node) {
    if (node.item.get() == item) Q_EMIT dataChanged(indexOf(node), indexOf(node));
  });
  syncLater(odrxCast<OdTcCatalog>(item) ? Depth::kPalettes : Depth::kTools);
}

void TcUiCatalogModel::removeItem(Node& below, const OdTcCatalogItem* item) {
  const OdTcCatalogItemPtr held(const_cast<OdTcCatalogItem*>(item));
  for (int row = static_cast<int>(below.children.size()) - 1; row >= 0; --row) {
    Node& child = *below.children[static_cast<std::size_t>(row)];
    if (child.item.get() == item)
      remove(below, row);
    else
      removeItem(child, item);
  }
}

OdTcCatalogItem* TcUiCatalogModel::itemAt(const QModelIndex& index) const {
  return nodeOf(index).item.get();
}

template <class Matches>
const TcUiCatalogModel::Node* TcUiCatalogModel::find(const Node& below, Matches matches) {
  if (below.item && matches(*below.item)) return &below;
  for (const auto& child : below.children)
    if (const Node* const found = find(*child, matches)) return found;
  return nullptr;
}

QModelIndex TcUiCatalogModel::indexOf(const OdTcCatalogItem* item) const {
  const Node* const node = find(*m_root, [&](const OdTcCatalogItem& i) { return &i == item; });
  return node ? indexOf(*node) : QModelIndex();
}

QModelIndex TcUiCatalogModel::indexOfId(const OdString& id) const {
  const Node* const node = find(*m_root, [&](const OdTcCatalogItem& i) { return i.id() == id; });
  return node ? indexOf(*node) : QModelIndex();
}

void TcUiCatalogModel::pictureChanged(const OdTcCatalogItem& item) {
  m_pictures.forget(item);
  visit(*m_root, [&](Node& node) {
    if (node.item.get() == &item)
      Q_EMIT dataChanged(indexOf(node), indexOf(node), {Qt::DecorationRole, Qt::ToolTipRole});
  });
}

TcUiCatalogModel::Node& TcUiCatalogModel::nodeOf(const QModelIndex& index) const {
  return index.isValid() ? *static_cast<Node*>(index.internalPointer()) : *m_root;
}

int TcUiCatalogModel::rowOf(const Node& node) const {
  const auto& rows = node.parent->children;
  const auto at = std::find_if(rows.begin(), rows.end(), [&](auto& n) { return n.get() == &node; });
  return static_cast<int>(at - rows.begin());
}

QModelIndex TcUiCatalogModel::indexOf(const Node& node) const {
  return node.parent ? createIndex(rowOf(node), 0, &node) : QModelIndex();
}

QModelIndex TcUiCatalogModel::index(int row, int column, const QModelIndex& parent) const {
  const Node& node = nodeOf(parent);
  if (row < 0 || column != 0 || row >= static_cast<int>(node.children.size())) return {};
  return createIndex(row, 0, node.children[static_cast<std::size_t>(row)].get());
}

QModelIndex TcUiCatalogModel::parent(const QModelIndex& index) const {
  const Node* const above = index.isValid() ? nodeOf(index).parent : nullptr;
  return above ? indexOf(*above) : QModelIndex();
}

int TcUiCatalogModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(nodeOf(parent).children.size());
}

QVariant TcUiCatalogModel::data(const QModelIndex& index, int role) const {
  const OdTcCatalogItem* const item = itemAt(index);
  if (!item) return {};
  switch (role) {
  case Qt::DisplayRole:
  case Qt::AccessibleTextRole:
    return item->name();
  case Qt::AccessibleDescriptionRole:
    return item->description();
  case Qt::DecorationRole:
    return m_pictures.picture(*item, kSmall);
  case Qt::ToolTipRole:
    return itemTip(*item, m_pictures);
  default:
    return {};
  }
}

} // namespace tc
