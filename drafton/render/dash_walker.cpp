#include "drafton/render/dash_walker.h"

#include <cmath>

namespace drafton {

DashWalker::DashWalker(Surface& surface, const Projection& projection, const DashPattern& pattern,
                       double scale, double reach, DrawOrnament drawOrnament)
  : m_surface(surface)
  , m_projection(projection)
  , m_pattern(pattern)
  , m_scale(scale)
  , m_seen(surface.clipRect().adjusted(-reach, -reach, reach, reach))
  , m_drawOrnament(std::move(drawOrnament)) {}

void DashWalker::draw(std::span<const OdGePoint3d> points, bool closed) {
  if (points.size() < 2) return;
  double total = 0;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) total += points[i].distanceTo(points[i + 1]);
  if (closed) total += points.back().distanceTo(points.front());
  const std::optional<double> start = m_pattern.startFor(total / m_scale);
  if (!start) {
    std::vector<QPointF> shown;
    for (const OdGePoint3d& p : points) shown.push_back(m_projection(p));
    m_surface.polyline(shown, closed);
    return;
  }
  m_position = closed ? 0 : *start * m_scale;
  seek(m_position);
  m_points.clear();
  for (std::size_t i = 0; i + 1 < points.size(); ++i) segment(points[i], points[i + 1]);
  if (closed) segment(points.back(), points.front());
  endDash();
}

/// Finds the dash at a position; one before the pattern's start is in its first dash, which is then
/// longer than usual.
void DashWalker::seek(double position) {
  const double length = m_pattern.length() * m_scale;
  m_dash = 0;
  if (position < 0) {
    m_left = std::abs(m_pattern.dashes()[0].length) * m_scale - position;
    return;
  }
  double inside = std::fmod(position, length);
  for (;; m_dash = (m_dash + 1) % m_pattern.dashes().size()) {
    m_left = std::abs(m_pattern.dashes()[m_dash].length) * m_scale - inside;
    if (m_left > 0 || (m_left == 0 && m_pattern.dashes()[m_dash].length == 0)) return;
    inside = -m_left;
  }
}

void DashWalker::addPoint(const QPointF& point) {
  if (m_pattern.dashes()[m_dash].length > 0) m_points.push_back(point);
}

void DashWalker::endDash() {
  if (m_points.size() > 1) m_surface.polyline(m_points, false);
  m_points.clear();
}

void DashWalker::segment(const OdGePoint3d& from, const OdGePoint3d& to) {
  const double length = from.distanceTo(to);
  if (!(length > 0)) return;
  const QPointF a = m_projection(from), b = m_projection(to);
  double enters = 0, leaves = 1;
  if (!clipLine(m_seen, a, b, enters, leaves)) {
    endDash();
    m_position += length;
    seek(m_position);
    return;
  }
  const double start = m_position;
  double at = 0;
  if (enters > 0) {
    endDash();
    at = enters * length;
    seek(start + at);
  }
  const double last = leaves * length;
  const OdGeVector3d along = (to - from) * (1 / length);
  addPoint(a + (b - a) * (at / length));
  while (at + m_left <= last) {
    at += m_left;
    const DashPattern::Dash& dash = m_pattern.dashes()[m_dash];
    const QPointF point = a + (b - a) * (at / length);
    if (dash.length == 0) m_surface.dot(point);
    addPoint(point);
    endDash();
    if (dash.ornament >= 0 && m_drawOrnament)
      m_drawOrnament(m_pattern.ornaments()[static_cast<std::size_t>(dash.ornament)],
                     from + along * at, along);
    m_dash = (m_dash + 1) % m_pattern.dashes().size();
    m_left = std::abs(m_pattern.dashes()[m_dash].length) * m_scale;
    addPoint(point);
  }
  m_left -= last - at;
  addPoint(a + (b - a) * (last / length));
  m_position = start + length;
  if (leaves < 1) {
    endDash();
    seek(m_position);
  }
}

} // namespace drafton
