#include "drafton/engine/boundary/flat_segment.h"

#include <algorithm>

namespace drafton {
namespace {

/// Under this ratio of its axes an ellipse is a line.
constexpr double kThinnest = 1e-9;

/// Larger numbers cannot be multiplied with each other as often as areas and crossings need.
constexpr double kFarthest = 1e60;

bool isUsable(double x, double y) { return std::abs(x) <= kFarthest && std::abs(y) <= kFarthest; }

bool isUsable(const OdGeCurveSegment& s) {
  if (!isUsable(s.start.x, s.start.y) || !isUsable(s.end.x, s.end.y)) return false;
  return s.isLine() || (isUsable(s.center.x, s.center.y) && isUsable(s.u.x, s.u.y) &&
                        isUsable(s.v.x, s.v.y) && isUsable(s.from, s.sweep));
}

/// The angles strictly within the segment at which the wave `a` cos t + `b` sin t turns back, in
/// the order in which they are met.
std::vector<double> turningAngles(const OdGeCurveSegment& segment, double a, double b) {
  std::vector<double> angles;
  if (a == 0 && b == 0) return angles;
  const double top = std::atan2(b, a);
  for (const double angle : {top, top + kOdaPi})
    if (const double part = partOfAngle(segment, angle); part > 0 && part < 1)
      angles.push_back(segment.from + part * segment.sweep);
  std::sort(angles.begin(), angles.end(),
            [&](double x, double y) { return segment.sweep > 0 ? x < y : x > y; });
  return angles;
}

OdGePoint3d pointAtAngle(const OdGeCurveSegment& s, double angle) {
  return s.center + s.u * std::cos(angle) + s.v * std::sin(angle);
}

/// A circle seen from its edge goes to and fro along a line.
void appendSeenFromEdge(const OdGeCurveSegment& s, OdGeCurveSegments& flat) {
  const bool alongX = std::hypot(s.u.x, s.v.x) >= std::hypot(s.u.y, s.v.y);
  OdGePoint3d last = s.start;
  const auto goTo = [&](const OdGePoint3d& point) {
    flat.push_back(OdGeCurveSegment::line(last, point));
    last = point;
  };
  for (const double angle : turningAngles(s, alongX ? s.u.x : s.u.y, alongX ? s.v.x : s.v.y))
    goTo(pointAtAngle(s, angle));
  goTo(s.end);
}

} // namespace

void appendFlat(const OdGeCurveSegment& segment, const OdGePoint3d& origin,
                OdGeCurveSegments& flat) {
  if (!isUsable(segment)) return;
  OdGeCurveSegment seen = segment;
  seen.start = flatPoint(segment.start, origin);
  seen.end = flatPoint(segment.end, origin);
  if (seen.isLine()) {
    flat.push_back(seen);
    return;
  }
  seen.center = flatPoint(segment.center, origin);
  seen.u.z = seen.v.z = 0;
  const double longest = std::max(seen.u.lengthSqrd(), seen.v.lengthSqrd());
  if (std::abs(crossOf(seen.u, seen.v)) <= kThinnest * longest)
    appendSeenFromEdge(seen, flat);
  else
    flat.push_back(seen);
}

double sweptArea(const OdGeCurveSegment& s) {
  if (s.isLine()) return crossOf(s.start.asVector(), s.end.asVector()) / 2;
  return (crossOf(s.center.asVector(), s.end - s.start) + crossOf(s.u, s.v) * s.sweep) / 2;
}

double partOfAngle(const OdGeCurveSegment& segment, double angle) {
  const double turned = segment.sweep < 0 ? segment.from - angle : angle - segment.from;
  return odgeNormalAngle(turned) / std::abs(segment.sweep);
}

double curvatureAt(const OdGeCurveSegment& s, double part) {
  if (s.isLine()) return 0;
  const double t = s.from + part * s.sweep;
  const OdGeVector3d speed = s.v * std::cos(t) - s.u * std::sin(t);
  // The second derivative looks back to the centre, so that the cross product is that of the axes.
  const double turn = s.sweep < 0 ? -1 : 1;
  return turn * crossOf(s.u, s.v) / std::pow(speed.lengthSqrd(), 1.5);
}

int crossingsOfRay(const OdGeCurveSegment& s, const OdGePoint3d& point) {
  // A piece counts if just one of its ends lies above, so that a corner on the ray counts once.
  const auto isAbove = [&](const OdGePoint3d& p) { return p.y > point.y; };
  if (s.isLine()) {
    if (isAbove(s.start) == isAbove(s.end)) return 0;
    const double part = (point.y - s.start.y) / (s.end.y - s.start.y);
    return s.start.x + part * (s.end.x - s.start.x) > point.x;
  }
  int crossings = 0;
  const double rise = std::hypot(s.u.y, s.v.y);
  const double top = std::atan2(s.v.y, s.u.y);
  const auto countPiece = [&](const OdGePoint3d& a, double from, const OdGePoint3d& b, double to) {
    if (isAbove(a) == isAbove(b)) return;
    // Within the piece, y is center + rise cos(t - top); of the two angles one lies in it.
    const double off = std::acos(std::clamp((point.y - s.center.y) / rise, -1.0, 1.0));
    const double middle = (from + to) / 2;
    const double side = std::sin(middle - top) >= 0 ? off : -off;
    crossings += pointAtAngle(s, top + side).x > point.x;
  };
  OdGePoint3d last = s.start;
  double lastAngle = s.from;
  for (const double angle : turningAngles(s, s.u.y, s.v.y)) {
    const OdGePoint3d at = pointAtAngle(s, angle);
    countPiece(last, lastAngle, at, angle);
    last = at;
    lastAngle = angle;
  }
  countPiece(last, lastAngle, s.end, s.from + s.sweep);
  return crossings;
}

OdGeCurveSegment turnedRound(const OdGeCurveSegment& segment) {
  OdGeCurveSegment turned = segment.reversed();
  turned.start = segment.end;
  turned.end = segment.start;
  return turned;
}

OdGeExtents3d boxAround(std::span<const OdGeCurveSegment> segments) {
  OdGeExtents3d box;
  for (const OdGeCurveSegment& segment : segments) box.addExt(segment.extents());
  return box;
}

double drawingTolerance(const OdGeExtents3d& box, const OdGePoint3d& origin) {
  constexpr double kOfSize = 1e-7;
  constexpr double kOfNumbers = 32 * std::numeric_limits<double>::epsilon();
  if (box.isEmpty()) return kOfSize;
  const OdGeVector3d size = box.maxPoint() - box.minPoint();
  double farthest = 0;
  for (const double value :
       {box.minPoint().x, box.minPoint().y, box.maxPoint().x, box.maxPoint().y, origin.x, origin.y})
    farthest = std::max(farthest, std::abs(value));
  return std::max(kOfSize * std::max(size.x, size.y), kOfNumbers * farthest);
}

} // namespace drafton
