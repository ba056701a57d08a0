#include "drafton/render/scene_painter.h"

#include "drafton/render/shape_recorder.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/graphics/measure.h"

#include <cmath>

namespace drafton {
namespace {

/// A quarter of a pixel is not seen.
constexpr double kSeenDeviation = 0.25;
/// Inserts with more entities than this are asked through their index.
constexpr std::size_t kManyItems = 400;
/// Farther than anything on a picture.
constexpr double kNoEnd = 1e9;
/// Thick lines and points reach so many pixels beyond their geometry.
constexpr double kReach = 40;
constexpr double kHaloWidth = 4;
constexpr int kHaloAlpha = 110;

/// Keeps a block from being drawn within itself.
class Opened {
 public:
  Opened(std::unordered_set<OdDbObjectId>& all, OdDbObjectId id)
    : m_all(all)
    , m_id(id) {
    m_all.insert(id);
  }
  ~Opened() { m_all.erase(m_id); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

 private:
  std::unordered_set<OdDbObjectId>& m_all;
  OdDbObjectId m_id;
};

} // namespace

double deviationFor(double scale) {
  if (!(scale > 0) || !std::isfinite(scale)) return 1;
  // The power of four below.
  const int exponent = std::ilogb(kSeenDeviation / scale);
  return std::ldexp(1, exponent - (exponent & 1));
}

ScenePainter::ScenePainter(Scene& scene, Surface& surface, const RenderOptions& options)
  : m_scene(scene)
  , m_surface(surface)
  , m_options(options)
  , m_scales(*scene.database())
  , m_pieces(m_surface, m_options, m_scales) {
  m_layers.isPlotting = options.isPlotting;
}

bool ScenePainter::isTooSmall(const QRectF& box) const {
  return m_options.simplifies && box.width() < 1 && box.height() < 1;
}

void ScenePainter::draw(OdDbObjectId block, const View& view) {
  m_pieces.setPictureHeight(view.size.height());
  drawSpace(block, view.projection());
}

void ScenePainter::drawSpace(OdDbObjectId block, const Projection& projection) {
  const double deviation = deviationFor(projection.scale());
  if (m_open.contains(block)) return;
  BlockShapes* const shapes = m_scene.shapes(block, deviation);
  if (shapes == nullptr) return;
  const Opened opened(m_open, block);
  std::vector<std::uint32_t> numbers;
  shapes->find(
      planeUnder(m_surface.clipRect().adjusted(-kReach, -kReach, kReach, kReach), projection),
      numbers);
  shapes->refine(numbers, deviation);
  drawLevel({*shapes, projection, projection.scale(), nullptr, true}, numbers);
}

void ScenePainter::drawLevel(const Level& level, const std::vector<std::uint32_t>& numbers) {
  const bool marks = level.isTop && !m_isInWindow;
  for (const std::uint32_t number : numbers) {
    const ShapeItem& item = level.shapes.items()[number];
    if (level.isTop) m_nestedLeft = m_options.mostNestedBlocks;
    if (item.pieceCount == 0) continue;
    if (marks && m_options.hidden != nullptr && m_options.hidden->contains(item.id)) continue;
    if (marks && m_options.highlighted != nullptr && m_options.highlighted->contains(item.id)) {
      m_isHalo = true;
      m_pieces.setHalo(qRgba(qRed(m_options.highlightColor), qGreen(m_options.highlightColor),
                             qBlue(m_options.highlightColor), kHaloAlpha),
                       kHaloWidth);
      drawItem(level, item);
      m_pieces.setHalo(0, 0);
      m_isHalo = false;
    }
    drawItem(level, item);
  }
}

void ScenePainter::drawItem(const Level& level, const ShapeItem& item) {
  const StyleTables& tables = m_scene.styles();
  const Style style = resolved(item.traits, tables, level.insert);
  const LayerState& layer = tables.layer(style.layer);
  if (m_layers.isFrozen(style.layer, layer)) return;
  const bool showsLines = m_layers.shows(style.layer, layer);
  // What a block's own layers show is seen even where the insert's layer is off; the model behind
  // the window of a sheet too, since windows stand on a layer that hides their edges.
  const Piece* const first = &level.shapes.list().pieces[item.firstPiece];
  if (!showsLines && !item.hasBlocks && first->kind != PieceKind::kViewport) return;
  QRectF box;
  if (!item.box.isEmpty() && !item.isEndless) {
    box = level.projection.boxOf(item.box);
    if (!box.adjusted(-kReach, -kReach, kReach, kReach).intersects(m_surface.clipRect())) return;
  }
  if (item.hasBlocks && !level.isTop) {
    if (m_nestedLeft == 0) return;
    m_nestedLeft -= std::min<std::size_t>(m_nestedLeft, item.pieceCount);
  }
  m_pieces.setProjection(level.projection, level.scale);
  m_pieces.setStyle(style, tables.linetype(style.linetype));
  if (!item.box.isEmpty() && !item.isEndless && isTooSmall(box) &&
      first->kind != PieceKind::kPoint) {
    if (showsLines) m_pieces.drawSpeck(box.center());
    return;
  }
  for (std::uint32_t i = 0; i < item.pieceCount; ++i)
    drawPiece(level.projection, level.scale, level.shapes.list(),
              level.shapes.list().pieces[item.firstPiece + i], style, showsLines, box);
}

/// Drawing what a piece holds may record more, but never into the list of the piece itself.
void ScenePainter::drawPiece(const Projection& projection, double scale, const ShapeList& list,
                             const Piece& piece, const Style& style, bool showsLines,
                             const QRectF& box) {
  switch (piece.kind) {
  case PieceKind::kBlock:
    if (const BlockPiece& block = list.blocks[piece.first]; block.array == 0)
      drawBlock(projection, block, style);
    else
      drawCells(projection, block, list.arrays[block.array - 1], style, showsLines);
    m_pieces.setProjection(projection, scale);
    m_pieces.setStyle(style, m_scene.styles().linetype(style.linetype));
    break;
  case PieceKind::kImage:
    if (showsLines)
      if (const OdDbRasterImagePtr image =
              odrxCast<OdDbRasterImage>(list.objects[piece.first].open().get()))
        m_pieces.drawImage(*image);
    break;
  case PieceKind::kViewport:
    if (const OdDbViewportPtr viewport =
            odrxCast<OdDbViewport>(list.objects[piece.first].open().get())) {
      drawViewport(projection, *viewport, style, showsLines);
      m_pieces.setProjection(projection, scale);
      m_pieces.setStyle(style, m_scene.styles().linetype(style.linetype));
    }
    break;
  default:
    if (!showsLines) break;
    if (piece.linetype == 0) {
      m_pieces.draw(list, piece, box);
      break;
    }
    StyleTables& tables = m_scene.styles();
    const std::uint32_t own = tables.linetypeNumber(list.linetypes[piece.linetype - 1]);
    const bool isOther = own != StyleTables::kByLayer && own != StyleTables::kByBlock;
    m_pieces.setStyle(style, tables.linetype(isOther ? own : style.linetype));
    m_pieces.draw(list, piece, box);
    m_pieces.setStyle(style, tables.linetype(style.linetype));
  }
}

std::vector<bool> ScenePainter::frozenIn(const OdDbViewport& viewport) {
  std::vector<bool> frozen;
  for (const OdDbObjectId id : viewport.frozenLayers()) {
    const std::uint32_t number = m_scene.styles().layerNumber(id);
    if (frozen.size() <= number) frozen.resize(number + 1);
    frozen[number] = true;
  }
  return frozen;
}

void ScenePainter::drawViewport(const Projection& projection, const OdDbViewport& viewport,
                                const Style& style, bool showsLines) {
  if (m_isInWindow || viewport.isOverall()) return;
  const auto edge = viewport.boundary(deviationFor(projection.scale()));
  if (viewport.isOn() && !m_isHalo) {
    QPolygonF outline;
    for (const OdGePoint3d& p : edge) outline << projection(p);
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    m_surface.clip(path);
    m_isInWindow = true;
    LayerFilter outside = std::exchange(m_layers, {m_options.isPlotting, frozenIn(viewport)});
    // Dashes have their lengths on the sheet, however small the model stands on it.
    if (m_scales.dashesByPaper && viewport.customScale() > 0)
      m_pieces.setWindowScale(1 / viewport.customScale());
    drawSpace(m_scene.database()->getModelSpaceId(), projection.after(viewport.modelToPaper()));
    m_pieces.setWindowScale(1);
    m_layers = std::move(outside);
    m_isInWindow = false;
    m_surface.restore();
  }
  if (!showsLines) return;
  // The model was drawn with looks of its own.
  m_pieces.setProjection(projection, projection.scale());
  m_pieces.setStyle(style, m_scene.styles().linetype(style.linetype));
  m_pieces.drawFrame(edge);
}

void ScenePainter::drawCells(const Projection& outer, const BlockPiece& first,
                             const ArrayPiece& array, const Style& style, bool showsLines) {
  const double deviation = deviationFor(outer.after(first.transform).scale());
  const OdGeExtents3d extents = m_scene.boxOf(first.block, deviation);
  if (extents.isEmpty()) return;
  const QRectF cell = outer.after(first.transform).boxOf(extents);
  const QPointF right = outer(array.right), up = outer(array.up);
  const BlockShapes* const shapes = m_scene.shapes(first.block, deviation);
  const QRectF part = shapes != nullptr && shapes->isEndless()
                          ? QRectF(-kNoEnd, -kNoEnd, 2 * kNoEnd, 2 * kNoEnd)
                          : m_surface.clipRect().adjusted(-kReach, -kReach, kReach, kReach);
  CellRange cells = cellsWithin(part, cell, array, right, up);
  const bool areSpecks = isTooSmall(cell);
  thinOut(cells, right, up, m_options.simplifies ? 1 : 0,
          areSpecks ? m_options.mostNestedBlocks * 64 : m_options.mostCells);
  const bool isNested = m_open.size() > 1;
  for (int row = cells.firstRow; row <= cells.lastRow; row += cells.rowStep)
    for (int column = cells.firstColumn; column <= cells.lastColumn; column += cells.columnStep) {
      const OdGeVector3d way = array.toCell(column, row);
      if (isNested) {
        if (m_nestedLeft == 0) return;
        --m_nestedLeft;
      }
      if (areSpecks) {
        if (showsLines) m_pieces.drawSpeck(cell.center() + outer(way));
        continue;
      }
      drawBlock(outer, {first.block, OdGeMatrix3d::translation(way) * first.transform}, style);
    }
}

void ScenePainter::drawBlock(const Projection& outer, const BlockPiece& block, const Style& style) {
  if (m_open.contains(block.block) || m_open.size() >= odgi::kDeepestBlock) return;
  const Projection projection = outer.after(block.transform);
  const double deviation = deviationFor(projection.scale());
  BlockShapes* const shapes = m_scene.shapes(block.block, deviation);
  if (shapes == nullptr) return;
  const Opened opened(m_open, block.block);
  const Level inner{*shapes, projection, projection.scale(), &style, false};
  std::vector<std::uint32_t> numbers;
  std::optional<QRectF> part;
  if (shapes->items().size() > kManyItems)
    part = planeUnder(m_surface.clipRect().adjusted(-kReach, -kReach, kReach, kReach), projection);
  shapes->find(part, numbers);
  shapes->refine(numbers, deviation);
  drawLevel(inner, numbers);
}

void ScenePainter::drawTransient(std::span<const OdDbEntityPtr> entities, const View& view) {
  const Projection projection = view.projection();
  const double scale = projection.scale();
  m_pieces.setPictureHeight(view.size.height());
  m_nestedLeft = m_options.mostNestedBlocks;
  ShapeList list;
  ShapeRecorder recorder(list, deviationFor(view.scale));
  for (const OdDbEntityPtr& entity : entities) {
    if (!entity || !entity->isVisible()) continue;
    const Style style = resolved(Traits(*entity, m_scene.styles()), m_scene.styles(), nullptr);
    const std::size_t first = list.pieces.size();
    recorder.record(*entity);
    const OdGeExtents3d extents = recorder.takeBox();
    m_pieces.setProjection(projection, scale);
    m_pieces.setStyle(style, m_scene.styles().linetype(style.linetype));
    const QRectF box = extents.isEmpty() ? QRectF() : projection.boxOf(extents);
    for (std::size_t i = first; i < list.pieces.size(); ++i)
      drawPiece(projection, scale, list, list.pieces[i], style, true, box);
  }
}

} // namespace drafton
