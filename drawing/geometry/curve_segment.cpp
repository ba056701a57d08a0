#include "drawing/geometry/curve_segment.h"

#include "drawing/geometry/quadrature.h"

using Segment = OdGeCurveSegment;

Segment Segment::line(const OdGePoint3d& start, const OdGePoint3d& end) {
  Segment s;
  s.start = start;
  s.end = end;
  return s;
}

Segment Segment::arc(const OdGePoint3d& center, const OdGeVector3d& u, const OdGeVector3d& v,
                     double from, double sweep) {
  Segment s;
  s.kind = kArc;
  s.center = center;
  s.u = u;
  s.v = v;
  s.from = from;
  s.sweep = sweep;
  s.start = s.pointAt(0);
  s.end = s.pointAt(1);
  return s;
}

bool Segment::isCircular() const {
  const double size = u.lengthSqrd();
  return kind == kArc && std::abs(v.lengthSqrd() - size) <= 1e-9 * size &&
         std::abs(u.dotProduct(v)) <= 1e-9 * size;
}

OdGePoint3d Segment::pointAt(double part) const {
  if (isLine()) return start + (end - start) * part;
  const double t = from + sweep * part;
  return center + u * std::cos(t) + v * std::sin(t);
}

OdGeVector3d Segment::derivAt(double part) const {
  if (isLine()) return end - start;
  const double t = from + sweep * part;
  return (v * std::cos(t) - u * std::sin(t)) * sweep;
}

double Segment::lengthTo(double part) const {
  if (isLine()) return start.distanceTo(end) * part;
  if (isCircular()) return radius() * std::abs(sweep) * part;
  return odge::integrated([&](double p) { return derivAt(p).length(); }, 0, part, 16);
}

double Segment::partAtLength(double length) const {
  const double whole = lengthTo(1);
  if (!(whole > 0)) return 0;
  const double aim = std::clamp(length, 0.0, whole);
  double part = aim / whole;
  if (isLine() || isCircular()) return part;
  for (int i = 0; i < 20; ++i) {
    const double speed = derivAt(part).length();
    if (!(speed > 0)) break;
    const double step = (aim - lengthTo(part)) / speed;
    part = std::clamp(part + step, 0.0, 1.0);
    if (std::abs(step) < 1e-13) break;
  }
  return part;
}

double Segment::closestTo(const OdGePoint3d& point) const {
  if (isLine()) {
    const OdGeVector3d along = end - start;
    const double size = along.lengthSqrd();
    return size > 0 ? std::clamp((point - start).dotProduct(along) / size, 0.0, 1.0) : 0;
  }
  const auto distance = [&](double part) { return (pointAt(part) - point).lengthSqrd(); };
  // The nearest of some places is near to the nearest of all, which is then found by steps.
  const int count = std::max(4, static_cast<int>(std::ceil(std::abs(sweep) * 16 / kOdaPi)));
  double best = 0;
  for (int i = 1; i <= count; ++i)
    if (const double part = static_cast<double>(i) / count; distance(part) < distance(best))
      best = part;
  for (int i = 0; i < 30; ++i) {
    const double t = from + sweep * best;
    const OdGeVector3d away = pointAt(best) - point;
    const OdGeVector3d first = derivAt(best);
    const OdGeVector3d second = (u * std::cos(t) + v * std::sin(t)) * (-sweep * sweep);
    const double slope = first.lengthSqrd() + away.dotProduct(second);
    if (!(slope > 0)) break;
    const double next = std::clamp(best - away.dotProduct(first) / slope, 0.0, 1.0);
    if (distance(next) > distance(best)) break;
    if (std::abs(next - best) < 1e-15) break;
    best = next;
  }
  return best;
}

OdGeExtents3d Segment::extents() const {
  OdGeExtents3d box;
  box.addPoint(start);
  box.addPoint(end);
  if (isLine()) return box;
  const double low = std::min(from, from + sweep);
  const double high = std::max(from, from + sweep);
  // Each coordinate turns back where u cos t + v sin t is steepest, and half a turn from there.
  for (const double turn : {std::atan2(v.x, u.x), std::atan2(v.y, u.y), std::atan2(v.z, u.z)})
    for (double t = turn + kOdaPi * std::ceil((low - turn) / kOdaPi); t <= high; t += kOdaPi)
      box.addPoint(center + u * std::cos(t) + v * std::sin(t));
  return box;
}

Segment Segment::reversed() const {
  return isLine() ? line(end, start) : arc(center, u, v, from + sweep, -sweep);
}

Segment Segment::transformed(const OdGeMatrix3d& transform) const {
  if (isLine()) return line(transform * start, transform * end);
  return arc(transform * center, transform * u, transform * v, from, sweep);
}

Segment Segment::between(double first, double second) const {
  if (isLine()) return line(pointAt(first), pointAt(second));
  return arc(center, u, v, from + sweep * first, sweep * (second - first));
}
