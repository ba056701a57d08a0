#include "drafton/render/surface.h"

#include <QPaintEngine>

#include <cmath>

namespace drafton {
namespace {

/// Lines up to this width, in pixels, are thin.
constexpr double kThin = 1.25;
constexpr std::size_t kMostGathered = 4096;
/// A painter's arithmetic ends some ten thousand pixels away.
constexpr double kFar = 8000;

/// A side of a rectangle, as a distance that is 0 or more inside.
struct Side {
  double (*inside)(const QRectF& rect, const QPointF& p);
};

constexpr Side kSides[] = {
    {[](const QRectF& rect, const QPointF& p) { return p.x() - rect.left(); }},
    {[](const QRectF& rect, const QPointF& p) { return rect.right() - p.x(); }},
    {[](const QRectF& rect, const QPointF& p) { return p.y() - rect.top(); }},
    {[](const QRectF& rect, const QPointF& p) { return rect.bottom() - p.y(); }},
};

QPolygonF cutAt(const QPolygonF& polygon, const QRectF& rect, const Side& side) {
  QPolygonF result;
  for (qsizetype i = 0; i < polygon.size(); ++i) {
    const QPointF& a = polygon[i];
    const QPointF& b = polygon[(i + 1) % polygon.size()];
    const double da = side.inside(rect, a), db = side.inside(rect, b);
    if (da >= 0) result << a;
    if ((da >= 0) != (db >= 0)) result << a + (b - a) * (da / (da - db));
  }
  return result;
}

/// True for what records paths as they are: one is less than its chords one by one.
bool isVector(const QPainter& painter) {
  const QPaintEngine* const engine = painter.paintEngine();
  return engine != nullptr &&
         (engine->type() == QPaintEngine::SVG || engine->type() == QPaintEngine::Pdf);
}

} // namespace

Surface::Surface(QPainter& painter, const QRectF& rect, TileRaster* raster)
  : m_painter(painter)
  , m_clip(rect)
  , m_raster(raster)
  , m_usesRaster(raster != nullptr)
  , m_keepsPaths(raster == nullptr && isVector(painter))
  , m_hasFonts(painter.paintEngine()->type() == QPaintEngine::Pdf) {
  if (m_raster != nullptr) m_raster->setClip(rect.toAlignedRect());
}

Surface::~Surface() { flush(); }

void Surface::clip(const QPainterPath& outline) {
  flush();
  m_saved.push_back({m_clip, m_usesRaster});
  m_painter.save();
  const QRectF box = outline.boundingRect();
  // Upright rectangles are what nearly all windows are; thin lines know these only.
  QPainterPath rectangle;
  rectangle.addRect(box);
  const bool isRectangle = outline.elementCount() <= 5 && (rectangle - outline).isEmpty();
  if (isRectangle)
    m_painter.setClipRect(box, Qt::IntersectClip);
  else
    m_painter.setClipPath(outline, Qt::IntersectClip);
  m_clip &= box;
  m_usesRaster = m_usesRaster && isRectangle;
  if (m_raster != nullptr) m_raster->setClip(m_clip.toRect());
}

void Surface::restore() {
  flush();
  m_painter.restore();
  m_clip = m_saved.back().clip;
  m_usesRaster = m_saved.back().usesRaster;
  m_saved.pop_back();
  if (m_raster != nullptr) m_raster->setClip(m_clip.toAlignedRect());
  m_penApplied = false;
}

void Surface::setPen(QRgb color, double width) {
  const bool isThin = width <= kThin;
  if (color == m_color && isThin == m_isThin && (isThin || width == m_width)) return;
  if (!m_lines.empty()) flush();
  m_color = color;
  m_width = width;
  m_isThin = isThin;
  m_penApplied = false;
  if (m_raster != nullptr) m_raster->setColor(color);
}

void Surface::applyPen() {
  if (m_penApplied) return;
  m_penApplied = true;
  QPen pen(QColor::fromRgba(m_color), m_isThin ? std::min(1.0, std::max(m_width, 0.01)) : m_width);
  if (m_raster != nullptr && m_isThin) pen.setWidthF(1);
  pen.setCapStyle(m_isThin ? Qt::FlatCap : Qt::RoundCap);
  pen.setJoinStyle(Qt::RoundJoin);
  m_painter.setPen(pen);
}

QPainter& Surface::painter() {
  flush();
  m_penApplied = false;
  return m_painter;
}

/// Ends what was gathered, so that the painter may go on.
void Surface::flush() {
  if (m_raster != nullptr) m_raster->flush();
  if (m_lines.empty()) return;
  applyPen();
  m_painter.drawLines(m_lines.data(), static_cast<int>(m_lines.size()));
  m_lines.clear();
}

void Surface::line(const QPointF& from, const QPointF& to) {
  if (m_isThin && m_usesRaster) return m_raster->line(from, to);
  double enters = 0, leaves = 1;
  const double reach = m_width + 2;
  if (!clipLine(m_clip.adjusted(-reach, -reach, reach, reach), from, to, enters, leaves)) return;
  const QRectF near = m_clip.adjusted(-kFar, -kFar, kFar, kFar);
  if (near.contains(from) && near.contains(to)) {
    m_lines.emplace_back(from, to);
  } else {
    const QPointF way = to - from;
    m_lines.emplace_back(from + way * enters, from + way * leaves);
  }
  if (m_lines.size() >= kMostGathered) flush();
}

void Surface::polyline(std::span<const QPointF> points, bool closed) {
  if (points.size() < 2) {
    if (!points.empty()) dot(points[0]);
    return;
  }
  if (m_isThin && !m_keepsPaths) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) line(points[i], points[i + 1]);
    if (closed) line(points.back(), points.front());
    return;
  }
  if (points.size() == 2) return line(points[0], points[1]);
  // Thick lines need their corners, and so the whole path at once, unless it goes far away.
  const QRectF near = m_clip.adjusted(-kFar, -kFar, kFar, kFar);
  const bool isNear =
      std::all_of(points.begin(), points.end(), [&](const QPointF& p) { return near.contains(p); });
  if (!isNear) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) line(points[i], points[i + 1]);
    if (closed) line(points.back(), points.front());
    return;
  }
  flush();
  applyPen();
  m_painter.setBrush(Qt::NoBrush);
  if (closed)
    m_painter.drawPolygon(points.data(), static_cast<int>(points.size()));
  else
    m_painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

void Surface::outline(const QPainterPath& path) {
  const double reach = m_width + 1;
  if (!path.controlPointRect().adjusted(-reach, -reach, reach, reach).intersects(m_clip)) return;
  flush();
  applyPen();
  m_painter.setBrush(Qt::NoBrush);
  m_painter.drawPath(path);
}

void Surface::dot(const QPointF& at) {
  if (m_isThin && m_usesRaster) {
    // The whole pixel: shared between its neighbours it would be too faint to see.
    const QPointF middle(std::floor(at.x()) + 0.5, std::floor(at.y()) + 0.5);
    return m_raster->line(middle - QPointF(0.5, 0), middle + QPointF(0.5, 0));
  }
  if (m_isThin) return line(at - QPointF(0.5, 0), at + QPointF(0.5, 0));
  if (!m_clip.adjusted(-m_width, -m_width, m_width, m_width).contains(at)) return;
  QPainterPath spot;
  spot.addEllipse(at, m_width / 2, m_width / 2);
  fill(spot);
}

QPolygonF cutPolygon(QPolygonF polygon, const QRectF& rect) {
  for (const Side& side : kSides) polygon = cutAt(polygon, rect, side);
  return polygon;
}

QPainterPath Surface::cut(QPainterPath path) const {
  const QRectF near = m_clip.adjusted(-kFar, -kFar, kFar, kFar);
  if (near.contains(path.controlPointRect())) return path;
  const Qt::FillRule rule = path.fillRule();
  QPainterPath result;
  for (QPolygonF polygon : path.toSubpathPolygons()) {
    polygon = cutPolygon(polygon, near);
    if (polygon.size() > 2) result.addPolygon(polygon);
  }
  result.setFillRule(rule);
  return result;
}

bool Surface::fillSmall(std::span<const QPolygonF> rings, const QRectF& box, Qt::FillRule rule) {
  if (!m_usesRaster || !SmallAreas::fits(box)) return false;
  if (!m_lines.empty()) flush();
  if (box.intersects(m_clip)) m_raster->area(rings, box, rule == Qt::OddEvenFill);
  return true;
}

void Surface::fill(const QPainterPath& path) {
  const QRectF box = path.controlPointRect();
  if (m_usesRaster && SmallAreas::fits(box)) {
    const QList<QPolygonF> rings = path.toSubpathPolygons();
    if (fillSmall(rings, box, path.fillRule())) return;
  }
  flush();
  m_painter.fillPath(path, QColor::fromRgba(m_color));
}

void Surface::fill(std::span<const QPolygonF> rings, Qt::FillRule rule) {
  QRectF box;
  for (const QPolygonF& ring : rings) box |= ring.boundingRect();
  if (fillSmall(rings, box, rule)) return;
  QPainterPath path;
  path.setFillRule(rule);
  for (const QPolygonF& ring : rings) {
    path.addPolygon(ring);
    path.closeSubpath();
  }
  flush();
  m_painter.fillPath(cut(std::move(path)), QColor::fromRgba(m_color));
}

} // namespace drafton
