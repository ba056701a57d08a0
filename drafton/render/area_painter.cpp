// Draws areas and what fills them.
#include "drafton/render/chords.h"
#include "drafton/render/gradient_brush.h"
#include "drafton/render/piece_painter.h"
#include "drafton/render/pixel_mix.h"
#include "drawing/patterns/pattern_strokes.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// The part of an area's pixels that a pattern may cover before it is thinned out.
constexpr double kDensestStrokes = 0.6;
/// How much colour stands for a pattern that is too dense or too large to draw.
constexpr double kLightestTint = 0.25, kDarkestTint = 0.75;

} // namespace

std::vector<QPolygonF> PiecePainter::ringsOf(const ShapeList& list, const AreaPiece& area) const {
  std::vector<QPolygonF> rings(area.ringCount);
  for (std::uint32_t r = 0; r < area.ringCount; ++r) {
    const auto ring = list.ring(area.firstRing + r);
    rings[r].reserve(static_cast<qsizetype>(ring.size()));
    for (const OdGePoint3d& p : ring) rings[r] << (*m_projection)(p);
  }
  return rings;
}

void PiecePainter::area(const ShapeList& list, const AreaPiece& area) {
  if (area.ringCount == 1) {
    // What is thinner than a pixel is a line, so that it does not fade away.
    const auto ring = list.ring(area.firstRing);
    double doubled = 0, around = 0;
    QPointF before = (*m_projection)(ring.back());
    for (const OdGePoint3d& p : ring) {
      const QPointF at = (*m_projection)(p);
      doubled += before.x() * at.y() - before.y() * at.x();
      around += lengthOf(at - before);
      before = at;
    }
    if (std::abs(doubled) < around) return plainLine(ring, true);
  }
  m_surface.fill(ringsOf(list, area), Qt::OddEvenFill);
}

void PiecePainter::gradient(const ShapeList& list, const GradientPiece& piece) {
  const double c = std::cos(piece.gradient.angle), s = std::sin(piece.gradient.angle);
  QPolygonF corners;
  QPainterPath path;
  for (const QPolygonF& ring : ringsOf(list, piece.area)) {
    corners << ring;
    path.addPolygon(ring);
    path.closeSubpath();
  }
  const QBrush brush =
      gradientBrush(piece.gradient, corners, (*m_projection)(OdGeVector3d{c, s, 0}),
                    (*m_projection)(OdGeVector3d{-s, c, 0}), m_options.ground, m_style.alpha);
  m_surface.painter().fillPath(m_surface.cut(std::move(path)), brush);
}

void PiecePainter::strokes(const ShapeList& list, const Piece& piece, const QRectF& itemBox) {
  const auto ends = list.pointsOf(piece);
  const double extent = std::max(1.0, itemBox.width() * itemBox.height());
  const double ink =
      std::max(static_cast<double>(piece.length) * m_scale, static_cast<double>(ends.size()) / 2);
  std::size_t every = 1;
  if (m_options.simplifies && ink > extent * kDensestStrokes)
    every = static_cast<std::size_t>(std::ceil(ink / (extent * kDensestStrokes)));
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2 * every) stroke(ends[i], ends[i + 1]);
}

void PiecePainter::stroke(const OdGePoint3d& from, const OdGePoint3d& to) {
  const QPointF a = (*m_projection)(from), b = (*m_projection)(to);
  if (a == b)
    m_surface.dot(a);
  else
    m_surface.line(a, b);
}

void PiecePainter::pattern(const ShapeList& list, const PatternPiece& pattern) {
  const double cover = m_scale > 0 ? pattern.ink / m_scale : 0;
  if (m_haloWidth > 0 || !m_options.simplifies || cover < kDensestStrokes) {
    const auto ends = std::span(list.points).subspan(pattern.firstStroke, pattern.strokeCount);
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2) stroke(ends[i], ends[i + 1]);
    if (pattern.rings.empty() || seenStrokes(pattern)) return;
  }
  // The eye sees a tint where lines are so close.
  const double tint = std::clamp(cover, kLightestTint, kDarkestTint);
  m_surface.setPen(withAlpha(m_color, static_cast<std::uint8_t>(qAlpha(m_color) * tint)), m_width);
  m_surface.fill(ringsOf(list, pattern.area), Qt::OddEvenFill);
}

/// Draws the part of a large pattern that is seen; false if that is still too much.
bool PiecePainter::seenStrokes(const PatternPiece& pattern) {
  bool canInvert = false;
  const QTransform back = m_projection->planeOf(pattern.toWorld).inverted(&canInvert);
  if (!canInvert) return false;
  const QRectF seen = back.mapRect(m_surface.clipRect());
  odpattern::Rings rings;
  for (const auto& ring : pattern.rings) {
    QPolygonF polygon;
    for (const OdGePoint2d& p : ring) polygon << QPointF(p.x, p.y);
    auto& cut = rings.emplace_back();
    for (const QPointF& p : cutPolygon(polygon, seen)) cut.push_back({p.x(), p.y()});
    if (cut.size() < 3) rings.pop_back();
  }
  m_ends.clear();
  if (!odpattern::appendStrokes(rings, pattern.lines, odpattern::kUsualLimit, m_ends)) return false;
  for (std::size_t i = 0; i + 1 < m_ends.size(); i += 2)
    stroke(pattern.toWorld * OdGePoint3d{m_ends[i].x, m_ends[i].y, 0},
           pattern.toWorld * OdGePoint3d{m_ends[i + 1].x, m_ends[i + 1].y, 0});
  return true;
}

} // namespace drafton
