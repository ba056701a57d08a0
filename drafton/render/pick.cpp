#include "drafton/render/pick.h"

#include "drafton/render/endless_line.h"
#include "drafton/render/scene_painter.h"
#include "drafton/render/text_shapes.h"
#include "drafton/render/thin_lines.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/graphics/measure.h"

#include <algorithm>

namespace drafton {
namespace {

/// The corners of an image or a viewport.
std::vector<OdGePoint3d> frameOf(const ObjectPiece& piece) {
  const OdDbObjectPtr object = piece.open();
  if (const auto* image = odrxCast<OdDbRasterImage>(object)) return image->shownBoundary();
  const auto* viewport = odrxCast<OdDbViewport>(object);
  return viewport != nullptr ? viewport->boundary(0) : std::vector<OdGePoint3d>();
}

/// Tells whether pieces touch a rectangle, and whether they leave it.
class Test {
 public:
  Test(Scene& scene, const QRectF& rect)
    : m_scene(scene)
    , m_rect(rect) {}

  /// Starts with the next entity.
  void reset() { m_touches = m_leaves = false; }
  bool touches() const { return m_touches; }
  bool isInside() const { return m_touches && !m_leaves; }

  void item(const BlockShapes& shapes, const ShapeItem& item, const Projection& projection,
            const Style* insert);

 private:
  void piece(const ShapeList& list, const Piece& piece, const Projection& projection,
             const Style& style, bool isShown);
  void line(const QPointF& a, const QPointF& b);
  void lines(std::span<const OdGePoint3d> points, bool closed, const Projection& projection);
  void polygon(const QPolygonF& polygon);
  void arc(const OdGiArc& arc, const Projection& projection);
  void wide(std::span<const OdGiWidePoint> points, const Projection& projection);
  void endless(std::span<const OdGePoint3d> points, bool bothWays, const Projection& projection);
  void frame(const ObjectPiece& piece, bool isFilled, const Projection& projection);
  void rings(const ShapeList& list, const AreaPiece& area, const Projection& projection);
  void text(const OdGiTextRun& run, const Projection& projection);
  void block(const BlockPiece& block, const Projection& projection, const Style& style);
  void cells(const BlockPiece& first, const ArrayPiece& array, const Projection& projection,
             const Style& style);

  Scene& m_scene;
  QRectF m_rect;
  bool m_touches = false, m_leaves = false;
  std::vector<OdDbObjectId> m_open;
};

void Test::line(const QPointF& a, const QPointF& b) {
  double enters = 0, leaves = 1;
  if (!clipLine(m_rect, a, b, enters, leaves)) {
    m_leaves = true;
    return;
  }
  m_touches = true;
  m_leaves = m_leaves || enters > 0 || leaves < 1;
}

void Test::lines(std::span<const OdGePoint3d> points, bool closed, const Projection& projection) {
  if (points.empty()) return;
  const QPointF first = projection(points[0]);
  QPointF before = first;
  if (points.size() == 1) line(first, first);
  for (const OdGePoint3d& p : points.subspan(1)) {
    const QPointF at = projection(p);
    line(before, at);
    before = at;
  }
  if (closed) line(before, first);
}

void Test::polygon(const QPolygonF& polygon) {
  for (qsizetype i = 0; i < polygon.size(); ++i)
    line(polygon[i], polygon[(i + 1) % polygon.size()]);
  m_touches = m_touches || polygon.containsPoint(m_rect.center(), Qt::OddEvenFill);
}

void Test::arc(const OdGiArc& arc, const Projection& projection) {
  const double longest = std::max(arc.u.length(), arc.v.length());
  std::vector<OdGePoint3d> chords;
  // A quarter of a pixel from the arc.
  odgi::appendChords(arc, longest / std::max(projection.scale() * longest, 1.0) / 4, chords);
  lines(chords, false, projection);
}

void Test::wide(std::span<const OdGiWidePoint> points, const Projection& projection) {
  std::vector<OdGePoint3d> ring;
  while (!points.empty()) {
    points = points.subspan(odgi::outlineOf(points, ring));
    QPolygonF outline;
    for (const OdGePoint3d& p : ring) outline << projection(p);
    polygon(outline);
  }
}

void Test::endless(std::span<const OdGePoint3d> points, bool bothWays,
                   const Projection& projection) {
  m_leaves = true;
  m_touches = m_touches || seenPart(points[0], points[1] - points[0], bothWays, projection, m_rect);
}

void Test::frame(const ObjectPiece& piece, bool isFilled, const Projection& projection) {
  QPolygonF outline;
  for (const OdGePoint3d& p : frameOf(piece)) outline << projection(p);
  if (isFilled) return polygon(outline);
  for (qsizetype i = 0; i < outline.size(); ++i)
    line(outline[i], outline[(i + 1) % outline.size()]);
}

void Test::rings(const ShapeList& list, const AreaPiece& area, const Projection& projection) {
  int around = 0;
  for (std::uint32_t r = 0; r < area.ringCount; ++r) {
    const auto ring = list.ring(area.firstRing + r);
    lines(ring, true, projection);
    QPolygonF polygon;
    for (const OdGePoint3d& p : ring) polygon << projection(p);
    if (polygon.containsPoint(m_rect.center(), Qt::OddEvenFill)) ++around;
  }
  m_touches = m_touches || around % 2 == 1;
}

void Test::text(const OdGiTextRun& run, const Projection& projection) {
  const OdGiTextMetrics& metrics = OdGiTextMetrics::current();
  const double width = metrics.advance(run.text, run.font);
  const OdGeVector3d along = run.along * width;
  QPolygonF box;
  for (const OdGePoint3d& p :
       {run.origin, run.origin + along, run.origin + along + run.up, run.origin + run.up})
    box << projection(p);
  polygon(box);
}

void Test::block(const BlockPiece& block, const Projection& projection, const Style& style) {
  if (m_open.size() >= odgi::kDeepestBlock ||
      std::ranges::find(m_open, block.block) != m_open.end())
    return;
  const Projection inner = projection.after(block.transform);
  BlockShapes* const shapes = m_scene.shapes(block.block, deviationFor(inner.scale()));
  if (shapes == nullptr) return;
  m_open.push_back(block.block);
  for (const ShapeItem& entity : shapes->items()) item(*shapes, entity, inner, &style);
  m_open.pop_back();
}

void Test::cells(const BlockPiece& first, const ArrayPiece& array, const Projection& projection,
                 const Style& style) {
  const Projection inner = projection.after(first.transform);
  const OdGeExtents3d extents = m_scene.boxOf(first.block, deviationFor(inner.scale()));
  if (extents.isEmpty()) return;
  const QPointF right = projection(array.right), up = projection(array.up);
  CellRange cells =
      cellsWithin(m_rect.adjusted(-1, -1, 1, 1), inner.boxOf(extents), array, right, up);
  const auto all = static_cast<std::size_t>(array.columns) * static_cast<std::size_t>(array.rows);
  m_leaves = m_leaves || cells.count() < all;
  // Those that are nearer to each other than anybody can point are alike.
  constexpr double kClosest = 0.5;
  constexpr std::size_t kMost = 250'000;
  thinOut(cells, right, up, kClosest, kMost);
  for (int row = cells.firstRow; row <= cells.lastRow; row += cells.rowStep)
    for (int column = cells.firstColumn; column <= cells.lastColumn; column += cells.columnStep)
      block({first.block, OdGeMatrix3d::translation(array.toCell(column, row)) * first.transform},
            projection, style);
}

void Test::piece(const ShapeList& list, const Piece& piece, const Projection& projection,
                 const Style& style, bool isShown) {
  if (piece.kind == PieceKind::kBlock) {
    const BlockPiece& first = list.blocks[piece.first];
    return first.array == 0 ? block(first, projection, style)
                            : cells(first, list.arrays[first.array - 1], projection, style);
  }
  if (!isShown) return;
  switch (piece.kind) {
  case PieceKind::kPolyline:
  case PieceKind::kRing:
    return lines(list.pointsOf(piece), piece.kind == PieceKind::kRing, projection);
  case PieceKind::kArc:
    return arc(list.arcs[piece.first], projection);
  case PieceKind::kWide:
    return wide(list.pointsOf(list.wides[piece.first]), projection);
  case PieceKind::kArea:
    return rings(list, list.areas[piece.first], projection);
  case PieceKind::kXline:
  case PieceKind::kRay:
    return endless(list.pointsOf(piece), piece.kind == PieceKind::kXline, projection);
  case PieceKind::kGradient:
    return rings(list, list.gradients[piece.first].area, projection);
  case PieceKind::kPattern:
    return rings(list, list.patterns[piece.first].area, projection);
  case PieceKind::kStrokes: {
    const auto ends = list.pointsOf(piece);
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
      line(projection(ends[i]), projection(ends[i + 1]));
    return;
  }
  case PieceKind::kText:
    return text(list.texts[piece.first], projection);
  case PieceKind::kPoint: {
    const QPointF at = projection(list.marks[piece.first].position);
    return line(at, at);
  }
  case PieceKind::kImage:
  case PieceKind::kViewport:
    // Windows are taken by their edge: what is seen in them is in the way otherwise.
    return frame(list.objects[piece.first], piece.kind == PieceKind::kImage, projection);
  case PieceKind::kBlock:
    return;
  }
}

void Test::item(const BlockShapes& shapes, const ShapeItem& item, const Projection& projection,
                const Style* insert) {
  if (item.pieceCount == 0) return;
  const Style style = resolved(item.traits, m_scene.styles(), insert);
  const LayerState& layer = m_scene.styles().layer(style.layer);
  if (layer.isFrozen || (layer.isOff && !item.hasBlocks)) return;
  const QRectF box = projection.boxOf(item.box);
  // Boxes of upright lines have no width, which Qt takes for nothing.
  if (!item.isEndless && !box.adjusted(-1, -1, 1, 1).intersects(m_rect)) {
    m_leaves = true;
    return;
  }
  for (std::uint32_t i = 0; i < item.pieceCount; ++i)
    piece(shapes.list(), shapes.list().pieces[item.firstPiece + i], projection, style,
          !layer.isOff);
}

} // namespace

Picker::Picker(Scene& scene, OdDbObjectId block, const View& view)
  : m_scene(scene)
  , m_block(block)
  , m_view(view) {}

std::vector<OdDbObjectId> Picker::find(const QRectF& rect, bool whole) {
  std::vector<OdDbObjectId> result;
  m_scene.update();
  const double deviation = deviationFor(m_view.scale);
  BlockShapes* const shapes = m_scene.shapes(m_block, deviation);
  if (shapes == nullptr) return result;
  const Projection projection = m_view.projection();
  std::vector<std::uint32_t> numbers;
  shapes->find(planeUnder(rect, projection), numbers);
  shapes->refine(numbers, deviation);
  Test test(m_scene, rect);
  for (const std::uint32_t number : numbers) {
    const ShapeItem& item = shapes->items()[number];
    test.reset();
    test.item(*shapes, item, projection, nullptr);
    if (whole ? test.isInside() : test.touches()) result.push_back(item.id);
  }
  return result;
}

std::vector<OdDbObjectId> Picker::at(const QPointF& pixel, double reach) {
  const QPointF corner(reach, reach);
  std::vector<OdDbObjectId> found = find(QRectF(pixel - corner, pixel + corner), false);
  std::ranges::reverse(found);
  return found;
}

std::vector<OdDbObjectId> Picker::inside(const QRectF& rect) {
  return find(rect.normalized(), true);
}

std::vector<OdDbObjectId> Picker::crossing(const QRectF& rect) {
  return find(rect.normalized(), false);
}

} // namespace drafton
