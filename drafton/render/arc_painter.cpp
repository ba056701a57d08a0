// Draws arcs.
#include "drafton/render/chords.h"
#include "drafton/render/piece_painter.h"

#include <cmath>

namespace drafton {
namespace {

/// Arcs with more chords than this are cut down to what is seen of them.
constexpr int kManyChords = 400;
constexpr int kDeepestCut = 40;
/// A painter's curves end some ten thousand pixels away.
constexpr double kFarRadius = 20000;
/// Dashes are walked along chords of an arc.
constexpr int kMostDashChords = 20000;

/// Cosine and sine, for small angles without the price of exact ones.
std::pair<double, double> turnBy(double angle) {
  constexpr double kSmall = 0.4;
  if (std::abs(angle) > kSmall) return {std::cos(angle), std::sin(angle)};
  const double q = angle * angle;
  return {1 - q / 2 * (1 - q / 12 * (1 - q / 30 * (1 - q / 56 * (1 - q / 90)))),
          angle * (1 - q / 6 * (1 - q / 20 * (1 - q / 42 * (1 - q / 72))))};
}

} // namespace

void PiecePainter::arc(const OdGiArc& arc) {
  const Projection& project = *m_projection;
  const double radius = std::max(lengthOf(project(arc.u)), lengthOf(project(arc.v)));
  const int count = chordCount(radius, arc.sweep);
  if (isDashed()) {
    m_chords.clear();
    const int chords = std::min(count, kMostDashChords);
    for (int i = 0; i <= chords; ++i)
      m_chords.push_back(arc.pointAt(arc.start + arc.sweep * i / chords));
    return dashed(m_chords, false);
  }
  if (!m_options.simplifies && std::abs(radius) < kFarRadius) return smoothArc(arc);
  if (count > kManyChords) return seenArc(arc);
  chordArc(arc, count);
}

void PiecePainter::seenArc(const OdGiArc& arc) {
  const Projection& project = *m_projection;
  // Halves of a turn at most, so that a chord tells where its arc may reach.
  constexpr int kParts = 8;
  const QPointF last = project(arc.pointAt(arc.start + arc.sweep));
  QPointF from = project(arc.pointAt(arc.start));
  for (int i = 0; i < kParts; ++i) {
    const double t0 = arc.start + arc.sweep * i / kParts;
    const double t1 = arc.start + arc.sweep * (i + 1) / kParts;
    const QPointF to = i + 1 == kParts ? last : project(arc.pointAt(t1));
    arcPart(arc, t0, t1, from, to, 0);
    from = to;
  }
}

void PiecePainter::chordArc(const OdGiArc& arc, int count) {
  const Projection& project = *m_projection;
  // The points turn on by the same angle each time, which needs one sine and cosine in all.
  const QPointF center = project(arc.center), u = project(arc.u), v = project(arc.v);
  const auto [turnCos, turnSin] = turnBy(arc.sweep / count);
  double c = 1, s = 0;
  if (arc.start != 0) {
    c = std::cos(arc.start);
    s = std::sin(arc.start);
  }
  const bool closed = arc.isClosed();
  m_buffer.clear();
  for (int i = 0; i <= count - (closed && count > 2 ? 1 : 0); ++i) {
    m_buffer.push_back(center + u * c + v * s);
    const double next = c * turnCos - s * turnSin;
    s = s * turnCos + c * turnSin;
    c = next;
  }
  m_surface.polyline(m_buffer, closed && count > 2);
}

/// An arc as a curve, for pages.
void PiecePainter::smoothArc(const OdGiArc& arc) {
  const Projection& project = *m_projection;
  const QPointF center = project(arc.center), u = project(arc.u), v = project(arc.v);
  const int parts = std::max(1, static_cast<int>(std::ceil(std::abs(arc.sweep) / (kOdaPi / 2))));
  const double step = arc.sweep / parts;
  // How far the handles of a curve reach along its tangents.
  const double reach = 4.0 / 3 * std::tan(step / 4);
  QPainterPath path;
  const auto at = [&](double angle) { return u * std::cos(angle) + v * std::sin(angle); };
  const auto along = [&](double angle) { return v * std::cos(angle) - u * std::sin(angle); };
  path.moveTo(center + at(arc.start));
  for (int i = 0; i < parts; ++i) {
    const double from = arc.start + step * i, to = from + step;
    path.cubicTo(center + at(from) + along(from) * reach, center + at(to) - along(to) * reach,
                 center + at(to));
  }
  if (arc.isClosed()) path.closeSubpath();
  m_surface.outline(path);
}

void PiecePainter::arcPart(const OdGiArc& arc, double from, double to, const QPointF& a,
                           const QPointF& b, int depth) {
  const Projection& project = *m_projection;
  const double radius = std::max(lengthOf(project(arc.u)), lengthOf(project(arc.v)));
  const double angle = std::abs(to - from);
  // How far the arc leaves its chord.
  const double rise = radius * angle * angle / 8;
  const double reach = rise + m_surface.penWidth();
  const QRectF box = QRectF(a, b).normalized().adjusted(-reach, -reach, reach, reach);
  if (!box.intersects(m_surface.clipRect())) return;
  if (rise < kChordError || depth > kDeepestCut) return m_surface.line(a, b);
  const double middle = (from + to) / 2;
  const QPointF at = project(arc.pointAt(middle));
  arcPart(arc, from, middle, a, at, depth + 1);
  arcPart(arc, middle, to, at, b, depth + 1);
}

} // namespace drafton
