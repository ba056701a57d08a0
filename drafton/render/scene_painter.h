// Draws a scene.
#pragma once

#include "drafton/render/piece_painter.h"
#include "drafton/render/scene.h"

namespace drafton {

/// Draws the blocks of a scene on a surface, each entity as its layer, its block and the window
/// ask.
class ScenePainter {
 public:
  ScenePainter(Scene& scene, Surface& surface, const RenderOptions& options);

  /// Draws all that a block shows of itself in a view.
  void draw(OdDbObjectId block, const View& view);
  /// Draws entities that are in no drawing yet, or not at this place.
  void drawTransient(std::span<const OdDbEntityPtr> entities, const View& view);

 private:
  /// What a block is drawn in.
  struct Level {
    BlockShapes& shapes;
    Projection projection;
    double scale; ///< of the projection
    const Style* insert;
    bool isTop;
  };
  void drawLevel(const Level& level, const std::vector<std::uint32_t>& numbers);
  void drawItem(const Level& level, const ShapeItem& item);
  void drawPiece(const Projection& projection, double scale, const ShapeList& list,
                 const Piece& piece, const Style& style, bool showsLines, const QRectF& box);
  void drawCells(const Projection& outer, const BlockPiece& first, const ArrayPiece& array,
                 const Style& style, bool showsLines);
  void drawBlock(const Projection& outer, const BlockPiece& block, const Style& style);
  void drawSpace(OdDbObjectId block, const Projection& projection);
  void drawViewport(const Projection& projection, const OdDbViewport& viewport, const Style& style,
                    bool showsLines);
  std::vector<bool> frozenIn(const OdDbViewport& viewport);
  bool isTooSmall(const QRectF& box) const;

  Scene& m_scene;
  Surface& m_surface;
  RenderOptions m_options;
  DrawingScales m_scales;
  PiecePainter m_pieces;
  LayerFilter m_layers;
  std::unordered_set<OdDbObjectId> m_open; ///< blocks that are just being drawn
  std::size_t m_nestedLeft = 0; ///< blocks within blocks that the entity at hand may still show
  bool m_isInWindow = false;
  bool m_isHalo = false;
};

/// How far chords should stay within their curves at a scale, rounded so that small changes of the
/// scale ask for the same.
double deviationFor(double scale);

} // namespace drafton
