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

/// A straight part of the path.
struct DashWalker::Stretch {
  OdGePoint3d from;
  OdGeVector3d along; ///< of length 1
  QPointF a, b;       ///< its ends on the picture
  double length;
  double position; ///< of its beginning along the path

  QPointF pixelAt(double at) const { return a + (b - a) * (at / length); }
};

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
  const Stretch stretch{
      from, (to - from) * (1 / length), m_projection(from), m_projection(to), length, m_position};
  double enters = 0, leaves = 1;
  if (!clipLine(m_seen, stretch.a, stretch.b, enters, leaves)) return goOnBehind(stretch);
  if (enters > 0) {
    endDash();
    seek(m_position + enters * length);
  }
  const double first = enters * length, last = leaves * length;
  if (isTooFine(last - first, QLineF(stretch.a, stretch.b).length() * (leaves - enters))) {
    solid(stretch, first, last);
    return goOnBehind(stretch);
  }
  dashes(stretch, first, last);
  if (leaves < 1) return goOnBehind(stretch);
  m_position += length;
}

/// Leaves out what was not walked of it.
void DashWalker::goOnBehind(const Stretch& stretch) {
  endDash();
  m_position = stretch.position + stretch.length;
  seek(m_position);
}

/// Dashes that cannot be told from each other.
void DashWalker::solid(const Stretch& stretch, double first, double last) {
  endDash();
  if (m_drawDash)
    m_drawDash(stretch.position + first, stretch.position + last);
  else
    m_surface.line(stretch.pixelAt(first), stretch.pixelAt(last));
}

void DashWalker::dashes(const Stretch& stretch, double first, double last) {
  double at = first;
  addPoint(stretch.pixelAt(at), stretch.position + at);
  while (at + m_left <= last) {
    at += m_left;
    const DashPattern::Dash& dash = m_pattern.dashes()[m_dash];
    const QPointF point = stretch.pixelAt(at);
    const double position = stretch.position + at;
    if (dash.length == 0 && m_drawDash)
      m_drawDash(position, position);
    else if (dash.length == 0)
      m_surface.dot(point);
    addPoint(point, position);
    endDash();
    if (dash.ornament >= 0 && m_drawOrnament)
      m_drawOrnament(m_pattern.ornaments()[static_cast<std::size_t>(dash.ornament)],
                     stretch.from + stretch.along * at, stretch.along);
    startDash((m_dash + 1) % m_pattern.dashes().size(), position);
    addPoint(point, position);
  }
  m_left -= last - at;
  addPoint(stretch.pixelAt(last), stretch.position + last);
}

} // namespace drafton
