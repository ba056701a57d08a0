#include "drafton/render/shape_recorder.h"

#include "drafton/render/text_shapes.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/patterns/pattern_strokes.h"

#include <algorithm>
#include <limits>

namespace drafton {
namespace {

bool isFinite(const OdGeVector3d& v) {
  return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

/// Patterns with fewer strokes than this are recorded.
constexpr std::size_t kFewStrokes = 20000;

/// The length of the lines of a pattern in an area of 1; dots count for nothing.
double inkOf(const std::vector<OdHatchPatternLine>& lines) {
  double ink = 0;
  for (const OdHatchPatternLine& line : lines) {
    const double distance =
        std::abs(line.offset.y * std::cos(line.angle) - line.offset.x * std::sin(line.angle));
    if (!(distance > 0)) continue;
    double drawn = 0, period = 0;
    for (const double dash : line.dashes) {
      drawn += std::max(dash, 0.0);
      period += std::abs(dash);
    }
    ink += (period > 0 ? drawn / period : 1) / distance;
  }
  return ink;
}

} // namespace

void ShapeRecorder::record(const OdDbEntity& entity) {
  m_arrayOf = nullptr;
  const auto* const hatch = odrxCast<OdDbHatch>(&entity);
  if (hatch != nullptr && !hatch->isSolidFill() && !hatch->isGradient())
    pattern(*hatch);
  else
    entity.worldDraw(*this);
}

void ShapeRecorder::pattern(const OdDbHatch& hatch) {
  const OdGiRings rings = hatch.filledRings(m_deviation);
  if (rings.empty()) return;
  if (!hatch.backgroundColor().isNone()) {
    setPieceColor(hatch.backgroundColor());
    area(rings);
    setPieceColor(std::nullopt);
  }
  PatternPiece piece;
  piece.area = addRings(rings);
  piece.lines = hatch.patternLines();
  piece.ink = inkOf(piece.lines);
  piece.toWorld = OdGeMatrix3d::planeToWorld(hatch.normal()) *
                  OdGeMatrix3d::translation({0, 0, hatch.elevation()});
  piece.rings = hatch.filledPlaneRings(m_deviation);
  std::vector<OdGePoint2d> ends;
  if (odpattern::appendStrokes(piece.rings, piece.lines, kFewStrokes, ends)) {
    piece.rings.clear();
    piece.firstStroke = static_cast<std::uint32_t>(m_list.points.size());
    piece.strokeCount = static_cast<std::uint32_t>(ends.size());
    for (const OdGePoint2d& p : ends)
      m_list.points.push_back(piece.toWorld * OdGePoint3d{p.x, p.y, 0});
  }
  add(PieceKind::kPattern, m_list.patterns.size(), 1);
  m_list.patterns.push_back(std::move(piece));
}

void ShapeRecorder::add(PieceKind kind, std::size_t first, std::size_t count) {
  Piece piece{.kind = kind,
              .hasColor = m_color.has_value(),
              .linetype = m_linetype,
              .first = static_cast<std::uint32_t>(first),
              .count = static_cast<std::uint32_t>(count),
              .color = 0,
              .length = 0};
  if (m_color) piece.color = m_color->color();
  m_list.pieces.push_back(piece);
}

bool ShapeRecorder::areFinite(std::span<const OdGePoint3d> points) const {
  return std::ranges::all_of(points, odgeIsFinite);
}

void ShapeRecorder::addPoints(std::span<const OdGePoint3d> points) {
  for (const OdGePoint3d& p : points) m_box.addPoint(p);
  m_list.points.insert(m_list.points.end(), points.begin(), points.end());
}

void ShapeRecorder::polyline(std::span<const OdGePoint3d> points, bool closed) {
  if (points.empty() || !areFinite(points)) return;
  m_isCoarse = m_isCoarse || points.size() > 2;
  add(closed ? PieceKind::kRing : PieceKind::kPolyline, m_list.points.size(), points.size());
  addPoints(points);
}

void ShapeRecorder::arc(const OdGiArc& arc) {
  if (!odgeIsFinite(arc.center) || !isFinite(arc.u) || !isFinite(arc.v) ||
      !std::isfinite(arc.start) || !std::isfinite(arc.sweep))
    return;
  add(PieceKind::kArc, m_list.arcs.size(), 1);
  // Axes that start where the arc does save each drawing a sine and a cosine.
  const double c = std::cos(arc.start), s = std::sin(arc.start);
  OdGiArc turned = arc;
  turned.u = arc.u * c + arc.v * s;
  turned.v = arc.v * c - arc.u * s;
  turned.start = 0;
  m_list.arcs.push_back(turned);
  m_box.addExt(odgi::extentsOf(arc));
}

void ShapeRecorder::endless(const OdGePoint3d& origin, const OdGeVector3d& direction,
                            bool bothWays) {
  const OdGePoint3d ends[] = {origin, origin + direction.normal()};
  if (!areFinite(ends) || direction.isZeroLength()) return;
  m_isEndless = true;
  add(bothWays ? PieceKind::kXline : PieceKind::kRay, m_list.points.size(), 2);
  m_list.points.insert(m_list.points.end(), std::begin(ends), std::end(ends));
}

void ShapeRecorder::setPieceLinetype(OdDbObjectId linetype) {
  m_linetype = 0;
  if (linetype.isNull()) return;
  auto& all = m_list.linetypes;
  auto at = std::ranges::find(all, linetype);
  if (at == all.end()) {
    if (all.size() >= std::numeric_limits<std::uint16_t>::max()) return;
    at = all.insert(all.end(), linetype);
  }
  m_linetype = static_cast<std::uint16_t>(at - all.begin() + 1);
}

void ShapeRecorder::wideLine(std::span<const OdGiWidePoint> points, bool dashesRunThrough) {
  for (const OdGiWidePoint& p : points)
    if (!odgeIsFinite(p.middle) || !odgeIsFinite(p.left) || !odgeIsFinite(p.right)) return;
  add(PieceKind::kWide, m_list.wides.size(), 1);
  m_list.wides.push_back({static_cast<std::uint32_t>(m_list.widePoints.size()),
                          static_cast<std::uint32_t>(points.size()), dashesRunThrough});
  m_list.widePoints.insert(m_list.widePoints.end(), points.begin(), points.end());
  for (const OdGiWidePoint& p : points)
    for (const OdGePoint3d& edge : {p.left, p.right}) m_box.addPoint(edge);
  m_isCoarse = true;
}

AreaPiece ShapeRecorder::addRings(const OdGiRings& rings) {
  AreaPiece area{static_cast<std::uint32_t>(m_list.ringSizes.size()), 0};
  for (const auto& ring : rings) {
    if (ring.empty() || !areFinite(ring)) continue;
    m_list.ringStarts.push_back(static_cast<std::uint32_t>(m_list.points.size()));
    m_list.ringSizes.push_back(static_cast<std::uint32_t>(ring.size()));
    addPoints(ring);
    ++area.ringCount;
    m_isCoarse = m_isCoarse || ring.size() > 4;
  }
  return area;
}

void ShapeRecorder::area(const OdGiRings& rings) {
  const AreaPiece area = addRings(rings);
  if (area.ringCount == 0) return;
  add(PieceKind::kArea, m_list.areas.size(), 1);
  m_list.areas.push_back(area);
}

void ShapeRecorder::gradient(const OdGiRings& rings, const OdGiGradient& gradient) {
  const AreaPiece area = addRings(rings);
  if (area.ringCount == 0) return;
  add(PieceKind::kGradient, m_list.gradients.size(), 1);
  m_list.gradients.push_back({gradient, area});
}

void ShapeRecorder::strokes(std::span<const OdGePoint3d> ends) {
  const std::span pairs = ends.first(ends.size() / 2 * 2);
  if (pairs.empty() || !areFinite(pairs)) return;
  add(PieceKind::kStrokes, m_list.points.size(), pairs.size());
  double length = 0;
  for (std::size_t i = 0; i < pairs.size(); i += 2) length += pairs[i].distanceTo(pairs[i + 1]);
  m_list.pieces.back().length = static_cast<float>(length);
  addPoints(pairs);
}

void ShapeRecorder::text(const OdGiTextRun& run) {
  if (run.text.isEmpty() || !odgeIsFinite(run.origin) || !isFinite(run.along) || !isFinite(run.up))
    return;
  add(PieceKind::kText, m_list.texts.size(), 1);
  m_list.texts.push_back(run);
  const OdGiTextMetrics& metrics = OdGiTextMetrics::current();
  const double width =
      metrics.advance(run.text, run.font) + run.tracking * static_cast<double>(run.text.size());
  m_list.pieces.back().length = static_cast<float>(width);
  const double depth = metrics.descent(run.font);
  // Accents reach above the height of capitals.
  constexpr double kAbove = 1.35;
  double low = -depth, left = 0, right = width;
  if (run.font.vertical) {
    // A column, below and on both sides of its origin.
    low = -TextShapes::kColumnStep * static_cast<double>(run.text.size());
    left = -width / 2;
    right = width / 2;
  }
  for (const double along : {left, right}) {
    const OdGePoint3d p = run.origin + run.along * along;
    m_box.addPoint(p + run.up * low);
    m_box.addPoint(p + run.up * kAbove);
  }
}

void ShapeRecorder::point(const OdGePoint3d& position, const OdGeVector3d& normal) {
  if (!odgeIsFinite(position)) return;
  add(PieceKind::kPoint, m_list.marks.size(), 1);
  m_list.marks.push_back({position, normal});
  m_box.addPoint(position);
}

void ShapeRecorder::block(OdDbObjectId block, const OdGeMatrix3d& transform,
                          const OdDbEntity& entity) {
  const auto* const insert = odrxCast<OdDbBlockReference>(&entity);
  const bool isArray = insert && insert->isMInsert();
  if (isArray && std::exchange(m_arrayOf, &entity) == &entity) return;
  for (int row = 0; row < 3; ++row)
    for (int column = 0; column < 4; ++column)
      if (!std::isfinite(transform(row, column))) return;
  add(PieceKind::kBlock, m_list.blocks.size(), 1);
  m_list.blocks.push_back({block, transform});
  if (!isArray) return;
  const OdGeMatrix3d frame = OdGeMatrix3d::planeToWorld(insert->normal()) *
                             OdGeMatrix3d::rotation(insert->rotation(), OdGeVector3d::zAxis());
  m_list.arrays.push_back({insert->numColumns(), insert->numRows(),
                           frame * OdGeVector3d{insert->columnSpacing(), 0, 0},
                           frame * OdGeVector3d{0, insert->rowSpacing(), 0}});
  m_list.blocks.back().array = static_cast<std::uint32_t>(m_list.arrays.size());
}

void ShapeRecorder::addObject(PieceKind kind, const OdDbEntity& entity,
                              std::span<const OdGePoint3d> corners) {
  if (!areFinite(corners)) return;
  add(kind, m_list.objects.size(), 1);
  ObjectPiece piece{.id = entity.objectId(), .own = {}};
  if (piece.id.isNull()) piece.own = const_cast<OdDbEntity*>(&entity);
  m_list.objects.push_back(std::move(piece));
  for (const OdGePoint3d& p : corners) m_box.addPoint(p);
}

void ShapeRecorder::image(const OdDbRasterImage& image) {
  addObject(PieceKind::kImage, image, image.corners());
}

void ShapeRecorder::viewport(const OdDbViewport& viewport) {
  // The one that stands for the sheet shows nothing and is not on it.
  if (viewport.isOverall()) return;
  const OdGePoint3d& middle = viewport.centerPoint();
  const OdGeVector3d half{viewport.width() / 2, viewport.height() / 2, 0};
  const OdGePoint3d corners[] = {middle - half, middle + half};
  addObject(PieceKind::kViewport, viewport, corners);
}

} // namespace drafton
