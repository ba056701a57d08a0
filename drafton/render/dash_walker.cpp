#include "drafton/render/dash_walker.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace drafton {
namespace {

constexpr double kEndless = std::numeric_limits<double>::infinity();
constexpr double kAstray = 1e-6;

} // namespace

DashWalker::DashWalker(Surface& surface, const Projection& projection, const DashPattern& pattern,
                       double scale, double reach, DrawOrnament drawOrnament, DrawDash drawDash)
  : m_surface(surface)
  , m_projection(projection)
  , m_pattern(pattern)
  , m_scale(scale)
  , m_seen(surface.clipRect().adjusted(-reach, -reach, reach, reach))
  , m_drawOrnament(std::move(drawOrnament))
  , m_drawDash(std::move(drawDash)) {}

void DashWalker::draw(std::span<const OdGePoint3d> points, bool closed) {
  if (points.size() < 2) return;
  double total = 0;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) total += points[i].distanceTo(points[i + 1]);
  if (closed) total += points.back().distanceTo(points.front());
  const std::optional<double> end = m_pattern.endFor(total / m_scale);
  // A path may be longer than numbers go.
  if (!end || !std::isfinite(total)) {
    if (m_drawDash) return m_drawDash(0, std::min(total, std::numeric_limits<double>::max()));
    std::vector<QPointF> shown;
    for (const OdGePoint3d& p : points) shown.push_back(m_projection(p));
    m_surface.polyline(shown, closed);
    return;
  }
  const double first = std::max(0.0, m_pattern.dashes()[0].length) * m_scale;
  m_start = closed ? first : *end * m_scale;
  m_lastStart = closed || first == 0 ? kEndless : total - *end * m_scale;
  m_position = 0;
  seek(0);
  m_points.clear();
  for (std::size_t i = 0; i + 1 < points.size(); ++i) segment(points[i], points[i + 1]);
  if (closed) segment(points.back(), points.front());
  endDash();
}

/// Goes on with a dash at a position.
void DashWalker::startDash(std::size_t dash, double position) {
  m_dash = dash;
  m_left = std::abs(m_pattern.dashes()[dash].length) * m_scale;
  // The last one has what is left; a little arithmetic may have gone astray on the way.
  if (dash == 0 && position > m_lastStart - kAstray * m_scale * m_pattern.length())
    m_left = kEndless;
}

/// Finds the dash at a position.
void DashWalker::seek(double position) {
  if (position < m_start || position > m_lastStart) {
    m_dash = 0;
    m_left = position < m_start ? m_start - position : kEndless;
    return;
  }
  const double length = m_pattern.length() * m_scale;
  const double first = std::abs(m_pattern.dashes()[0].length) * m_scale;
  double inside = std::fmod(position - m_start + first, length);
  for (std::size_t dash = 0;; dash = (dash + 1) % m_pattern.dashes().size()) {
    startDash(dash, position);
    m_left -= inside;
    if (m_left > 0 || (inside == 0 && m_pattern.dashes()[dash].length == 0)) return;
    inside = -m_left;
  }
}

void DashWalker::addPoint(const QPointF& point, double position) {
  if (!(m_pattern.dashes()[m_dash].length > 0)) return;
  if (m_points.empty()) m_from = position;
  m_to = position;
  m_points.push_back(point);
}

void DashWalker::endDash() {
  if (m_points.size() > 1 && m_drawDash)
    m_drawDash(m_from, m_to);
  else if (m_points.size() > 1)
    m_surface.polyline(m_points, false);
  m_points.clear();
}

/// Lines that run away from whoever looks have many dashes in few pixels, and where a line is so
/// long that arithmetic ends, it seems to have more pixels than there are.
bool DashWalker::isTooFine(double length, double pixels) const {
  const double patterns = length / (m_pattern.length() * m_scale);
  const double visible = std::min(pixels, QLineF(m_seen.topLeft(), m_seen.bottomRight()).length());
  return (patterns - 1) * kFinestPattern > visible;
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
  if (isTooFine(last - at, QLineF(a, b).length() * (leaves - enters))) {
    endDash();
    if (m_drawDash)
      m_drawDash(start + at, start + last);
    else
      m_surface.line(a + (b - a) * (at / length), a + (b - a) * (last / length));
    m_position = start + length;
    return seek(m_position);
  }
  const OdGeVector3d along = (to - from) * (1 / length);
  addPoint(a + (b - a) * (at / length), start + at);
  while (at + m_left <= last) {
    at += m_left;
    const DashPattern::Dash& dash = m_pattern.dashes()[m_dash];
    const QPointF point = a + (b - a) * (at / length);
    if (dash.length == 0 && m_drawDash)
      m_drawDash(start + at, start + at);
    else if (dash.length == 0)
      m_surface.dot(point);
    addPoint(point, start + at);
    endDash();
    if (dash.ornament >= 0 && m_drawOrnament)
      m_drawOrnament(m_pattern.ornaments()[static_cast<std::size_t>(dash.ornament)],
                     from + along * at, along);
    startDash((m_dash + 1) % m_pattern.dashes().size(), start + at);
    addPoint(point, start + at);
  }
  m_left -= last - at;
  addPoint(a + (b - a) * (last / length), start + last);
  m_position = start + length;
  if (leaves < 1) {
    endDash();
    seek(m_position);
  }
}

} // namespace drafton
