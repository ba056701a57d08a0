#include "drafton/render/block_shapes.h"

#include "drafton/render/draw_order.h"
#include "drafton/render/scene.h"
#include "drafton/render/shape_recorder.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/curve.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

namespace bg = boost::geometry;
using IndexPoint = bg::model::d2::point_xy<double>;
using IndexBox = bg::model::box<IndexPoint>;
using IndexValue = std::pair<IndexBox, std::uint32_t>;

constexpr std::size_t kNodeSize = 16;

IndexBox boxOf(const OdGeExtents3d& box) {
  return {{box.minPoint().x, box.minPoint().y}, {box.maxPoint().x, box.maxPoint().y}};
}

void addMoved(OdGeExtents3d& sum, const OdGeExtents3d& box, const OdGeMatrix3d& transform) {
  if (box.isEmpty()) return;
  for (int corner = 0; corner < 8; ++corner)
    sum.addPoint(transform * OdGePoint3d{corner & 1 ? box.maxPoint().x : box.minPoint().x,
                                         corner & 2 ? box.maxPoint().y : box.minPoint().y,
                                         corner & 4 ? box.maxPoint().z : box.minPoint().z});
}

/// Inserts show attributes of their own in the place of these.
bool isFilledInByInserts(const OdDbEntity& entity) {
  const auto* definition = odrxCast<OdDbAttributeDefinition>(&entity);
  return definition != nullptr && !definition->isConstant();
}

} // namespace

struct BlockShapes::Index {
  bg::index::rtree<IndexValue, bg::index::quadratic<kNodeSize>> tree;
};

BlockShapes::~BlockShapes() = default;

BlockShapes::BlockShapes(Scene& scene, OdDbObjectId block, double deviation)
  : m_scene(scene)
  , m_block(block)
  , m_deviation(deviation) {
  const OdDbObjectPtr object = block.openObject();
  const auto* record = odrxCast<OdDbBlockTableRecord>(object);
  if (record == nullptr) return;
  m_isInserted = !record->isLayout();
  m_items.reserve(record->entityIds().size());
  for (const OdDbObjectId id : record->entityIds())
    if (const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get()))
      addItem(id, *entity, false);
  readOrder();
}

void BlockShapes::record(ShapeItem& item, OdDbEntity& entity) {
  m_wasted += item.size;
  const std::size_t before = m_list.pieces.size() + m_list.points.size();
  item.traits = Traits(entity, m_scene.styles());
  item.firstPiece = static_cast<std::uint32_t>(m_list.pieces.size());
  item.pieceCount = 0;
  item.box = {};
  item.hasBlocks = false;
  item.isCoarse = item.isEndless = false;
  item.size = 0;
  item.deviation = deviationOf(entity);
  if (!entity.isVisible() || (m_isInserted && isFilledInByInserts(entity))) return;
  ShapeRecorder recorder(m_list, item.deviation);
  recorder.record(entity);
  item.pieceCount = static_cast<std::uint32_t>(m_list.pieces.size()) - item.firstPiece;
  item.isCoarse = recorder.takeIsCoarse();
  item.isEndless = recorder.takeIsEndless();
  for (std::uint32_t i = 0; i < item.pieceCount && !item.hasBlocks; ++i)
    item.hasBlocks = m_list.pieces[item.firstPiece + i].kind == PieceKind::kBlock;
  item.size = static_cast<std::uint32_t>(m_list.pieces.size() + m_list.points.size() - before);
  item.box = recorder.takeBox();
  if (item.hasBlocks) {
    item.box.addExt(boxOf(item));
    item.isEndless = item.isEndless || holdsEndless(item);
  }
  if (!item.isEndless) return;
  const auto number = static_cast<std::uint32_t>(&item - m_items.data());
  const auto at = std::ranges::lower_bound(m_endless, number);
  if (at == m_endless.end() || *at != number) m_endless.insert(at, number);
}

bool BlockShapes::holdsEndless(const ShapeItem& item) const {
  for (std::uint32_t i = 0; i < item.pieceCount; ++i) {
    const Piece& piece = m_list.pieces[item.firstPiece + i];
    if (piece.kind != PieceKind::kBlock) continue;
    const OdDbObjectId block = m_list.blocks[piece.first].block;
    const BlockShapes* const shapes = m_scene.shapes(block, m_deviation);
    if (shapes != nullptr && shapes->isEndless()) return true;
  }
  return false;
}

bool BlockShapes::isEndless() const {
  return std::ranges::any_of(m_endless, [&](std::uint32_t i) { return m_items[i].isEndless; });
}

/// Small curves are recorded finely at once: there may be very many of them, and they would all
/// have to be recorded again as one comes nearer. Those that are still coarse then fill the
/// picture.
double BlockShapes::deviationOf(const OdDbEntity& entity) const {
  constexpr double kFine = 1.0 / 300;
  OdGeExtents3d box;
  if (odrxCast<OdDbCurve>(&entity) == nullptr || !entity.getGeomExtents(box) || box.isEmpty())
    return m_deviation;
  const double size = (box.maxPoint() - box.minPoint()).length();
  return size > 0 && std::isfinite(size) ? std::min(m_deviation, size * kFine) : m_deviation;
}

/// The box around the blocks among an item's pieces.
OdGeExtents3d BlockShapes::boxOf(const ShapeItem& item) const {
  OdGeExtents3d box;
  for (std::uint32_t i = 0; i < item.pieceCount; ++i) {
    const Piece& piece = m_list.pieces[item.firstPiece + i];
    if (piece.kind != PieceKind::kBlock) continue;
    const BlockPiece& block = m_list.blocks[piece.first];
    const OdGeExtents3d first = m_scene.boxOf(block.block, m_deviation);
    addMoved(box, first, block.transform);
    if (block.array == 0) continue;
    const ArrayPiece& array = m_list.arrays[block.array - 1];
    for (const int column : {0, array.columns - 1})
      for (const int row : {0, array.rows - 1})
        addMoved(box, first,
                 OdGeMatrix3d::translation(array.toCell(column, row)) * block.transform);
  }
  return box;
}

void BlockShapes::addItem(OdDbObjectId id, OdDbEntity& entity, bool indexed) {
  m_items.emplace_back().id = id;
  record(m_items.back(), entity);
  if (!m_items.back().box.isEmpty()) m_box.addExt(m_items.back().box);
  const auto number = static_cast<std::uint32_t>(m_items.size() - 1);
  if (!m_numbers.empty()) m_numbers.emplace(id, number);
  if (indexed) setBox(number, {});
}

/// Follows a changed box in the index.
void BlockShapes::setBox(std::uint32_t number, const OdGeExtents3d& before) {
  const OdGeExtents3d& box = m_items[number].box;
  if (box == before) return;
  m_box.addExt(box);
  m_isBoxLoose = m_isBoxLoose || !before.isEmpty();
  if (!m_index) return;
  if (!before.isEmpty()) m_index->tree.remove(IndexValue(drafton::boxOf(before), number));
  if (!box.isEmpty()) m_index->tree.insert(IndexValue(drafton::boxOf(box), number));
}

void BlockShapes::buildIndex() {
  std::vector<IndexValue> values;
  values.reserve(m_items.size());
  for (std::uint32_t i = 0; i < m_items.size(); ++i)
    if (!m_items[i].box.isEmpty()) values.emplace_back(drafton::boxOf(m_items[i].box), i);
  m_index = std::make_unique<Index>();
  m_index->tree = decltype(m_index->tree)(values.begin(), values.end());
}

void BlockShapes::find(const std::optional<QRectF>& rect, std::vector<std::uint32_t>& found) const {
  found.clear();
  const auto place = [&](std::uint32_t i) { return m_order.empty() ? i : m_order[i]; };
  const bool all = !rect || box().isEmpty() ||
                   rect->contains(QRectF(QPointF(m_box.minPoint().x, m_box.minPoint().y),
                                         QPointF(m_box.maxPoint().x, m_box.maxPoint().y)));
  const auto count = static_cast<std::uint32_t>(m_items.size());
  if (all) {
    found.resize(count);
    for (std::uint32_t i = 0; i < count; ++i) found[i] = place(i);
    return;
  }
  if (!m_index) const_cast<BlockShapes*>(this)->buildIndex();
  const IndexBox wanted{{rect->left(), rect->top()}, {rect->right(), rect->bottom()}};
  for (auto it = m_index->tree.qbegin(bg::index::intersects(wanted)); it != m_index->tree.qend();
       ++it)
    found.push_back(it->second);
  for (const std::uint32_t i : m_endless)
    if (const ShapeItem& item = m_items[i];
        item.isEndless && (item.box.isEmpty() || !bg::intersects(drafton::boxOf(item.box), wanted)))
      found.push_back(i);
  if (m_order.empty()) {
    // Sorting a few is quicker than walking over all marks.
    if (found.size() < count / 16) {
      std::ranges::sort(found);
      return;
    }
    m_marks.assign(count, 0);
    for (const std::uint32_t i : found) m_marks[i] = 1;
    found.clear();
    for (std::uint32_t i = 0; i < count; ++i)
      if (m_marks[i] != 0) found.push_back(i);
    return;
  }
  m_marks.assign(count, 0);
  for (const std::uint32_t i : found) m_marks[i] = 1;
  found.clear();
  for (const std::uint32_t i : m_order)
    if (m_marks[i] != 0) found.push_back(i);
}

std::optional<std::uint32_t> BlockShapes::itemOf(OdDbObjectId entity) const {
  if (m_numbers.empty())
    for (std::uint32_t i = 0; i < m_items.size(); ++i) m_numbers.emplace(m_items[i].id, i);
  const auto found = m_numbers.find(entity);
  return found == m_numbers.end() ? std::nullopt : std::optional(found->second);
}

void BlockShapes::update(OdDbObjectId id) {
  const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get());
  const std::optional<std::uint32_t> number = itemOf(id);
  if (!number) {
    if (!entity) return;
    // New entities are drawn last.
    if (!m_order.empty()) m_order.push_back(static_cast<std::uint32_t>(m_items.size()));
    return addItem(id, *entity, true);
  }
  ShapeItem& item = m_items[*number];
  const OdGeExtents3d before = item.box;
  if (entity) {
    record(item, *entity);
  } else {
    m_wasted += std::exchange(item.size, 0);
    item.pieceCount = 0;
    item.box = {};
  }
  setBox(*number, before);
}

bool BlockShapes::updateBlockBoxes() {
  bool anyChanged = false;
  for (std::uint32_t i = 0; i < m_items.size(); ++i) {
    ShapeItem& item = m_items[i];
    if (!item.hasBlocks || item.pieceCount == 0) continue;
    const OdGeExtents3d before = item.box;
    const OdDbEntityPtr entity = odrxCast<OdDbEntity>(item.id.openObject().get());
    if (entity) record(item, *entity);
    anyChanged = anyChanged || item.box != before;
    setBox(i, before);
  }
  return anyChanged;
}

const OdGeExtents3d& BlockShapes::box() const {
  if (std::exchange(m_isBoxLoose, false)) {
    m_box = {};
    for (const ShapeItem& item : m_items) m_box.addExt(item.box);
  }
  return m_box;
}

void BlockShapes::refine(const std::vector<std::uint32_t>& items, double deviation) {
  m_deviation = std::min(m_deviation, deviation);
  for (const std::uint32_t number : items) {
    ShapeItem& item = m_items[number];
    if (!item.isCoarse || item.deviation <= deviation) continue;
    const OdDbEntityPtr entity = odrxCast<OdDbEntity>(item.id.openObject().get());
    if (!entity) continue;
    const OdGeExtents3d before = item.box;
    record(item, *entity);
    setBox(number, before);
  }
}

void BlockShapes::readOrder() { m_order = drawOrder(m_block, m_items); }

} // namespace drafton
