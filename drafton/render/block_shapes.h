// What a block shows, entity by entity.
#pragma once

#include "drafton/render/shape_list.h"
#include "drafton/render/style.h"

#include <QRectF>

#include <memory>
#include <unordered_map>

namespace drafton {

class Scene;

/// An entity of a block with the pieces that it shows.
struct ShapeItem {
  OdDbObjectId id;
  Traits traits;
  std::uint32_t firstPiece = 0, pieceCount = 0;
  std::uint32_t size = 0; ///< pieces and points in the list
  OdGeExtents3d box;      ///< empty for what shows nothing
  bool hasBlocks = false;
  bool isCoarse = false;  ///< has chords in the place of curves
  bool isEndless = false; ///< reaches beyond its box
  double deviation = 0;   ///< how far these may leave the curves
};

/// The recorded entities of one block, kept up with the drawing by its scene.
class BlockShapes {
 public:
  BlockShapes(Scene& scene, OdDbObjectId block, double deviation);
  ~BlockShapes();

  OdDbObjectId block() const { return m_block; }
  const ShapeList& list() const { return m_list; }
  const std::vector<ShapeItem>& items() const { return m_items; }
  /// The box around everything.
  const OdGeExtents3d& box() const;

  /// True if something in it has no end.
  bool isEndless() const;

  /// Numbers of the items whose boxes touch a rectangle of the xy plane or that have no end, in the
  /// order in which they are drawn. Everything if the rectangle is null.
  void find(const std::optional<QRectF>& rect, std::vector<std::uint32_t>& found) const;
  /// The number of an entity's item; nothing if it has none.
  std::optional<std::uint32_t> itemOf(OdDbObjectId entity) const;

  /// Records an entity anew after it was changed, erased or made.
  void update(OdDbObjectId entity);
  /// Puts boxes around blocks again whose contents have changed. False if all are as they were.
  bool updateBlockBoxes();
  /// True if most of the list was recorded for what is gone or was recorded again.
  bool isMostlyWaste() const {
    return m_wasted > kLittleWaste && m_wasted > (m_list.pieces.size() + m_list.points.size()) / 2;
  }
  /// Records those of the items anew whose chords leave their curves by more than `deviation`.
  void refine(const std::vector<std::uint32_t>& items, double deviation);
  /// Reads in which order entities are drawn.
  void readOrder();

 private:
  static constexpr std::size_t kLittleWaste = 100000;
  struct Index;
  void record(ShapeItem& item, OdDbEntity& entity);
  void addItem(OdDbObjectId id, OdDbEntity& entity, bool indexed);
  void setBox(std::uint32_t number, const OdGeExtents3d& before);
  OdGeExtents3d boxOf(const ShapeItem& item) const;
  double deviationOf(const OdDbEntity& entity) const;
  bool holdsEndless(const ShapeItem& item) const;
  void buildIndex();

  Scene& m_scene;
  OdDbObjectId m_block;
  double m_deviation;
  bool m_isInserted = false; ///< not a space
  ShapeList m_list;
  std::vector<ShapeItem> m_items;
  std::vector<std::uint32_t> m_order; ///< places of items in drawing order; empty if as they stand
  mutable OdGeExtents3d m_box;
  mutable bool m_isBoxLoose = false; ///< m_box may be larger than needed
  std::size_t m_wasted = 0;
  std::vector<std::uint32_t> m_endless; ///< items that have or had no end, in order
  std::unique_ptr<Index> m_index;
  mutable std::unordered_map<OdDbObjectId, std::uint32_t> m_numbers; ///< filled when first asked
  mutable std::vector<std::uint8_t> m_marks;                         ///< for find()
};

} // namespace drafton
