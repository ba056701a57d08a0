#include "drafton/engine/commands/arc_path.h"

#include "drafton/engine/commands/circle_geometry.h"

#include <algorithm>

namespace drafton {
namespace {

constexpr double kTurn = 2 * kOdaPi;
// Bulges below this are straight and angles within it of a full turn have no arc.
constexpr double kNoAngle = 1e-10;

OdGePoint3d atHeightOf(const OdGePoint3d& point, const OdGePoint3d& other) {
  return {point.x, point.y, other.z};
}

bool samePlace(const OdGePoint3d& a, const OdGePoint3d& b) { return a.x == b.x && a.y == b.y; }

/// An angle turned into the range from -pi (left out) to pi.
double signedAngle(double angle) {
  const double turned = odgeNormalAngle(angle);
  return turned > kOdaPi ? turned - kTurn : turned;
}

/// An angle from 0 to a full turn; what is a full turn but for rounding is 0.
double cleanAngle(double angle) {
  const double turned = odgeNormalAngle(angle);
  return kTurn - turned < kNoAngle ? 0 : turned;
}

OdGePoint3d turnedAbout(const OdGePoint3d& point, const OdGePoint3d& center, double angle) {
  const double dx = point.x - center.x;
  const double dy = point.y - center.y;
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {center.x + dx * c - dy * s, center.y + dx * s + dy * c, point.z};
}

} // namespace

double directionOf(const OdGePoint3d& from, const OdGePoint3d& to) {
  return std::atan2(to.y - from.y, to.x - from.x);
}

OdGePoint3d pointAlong(const OdGePoint3d& from, double direction, double distance) {
  return {from.x + distance * std::cos(direction), from.y + distance * std::sin(direction), from.z};
}

std::optional<CircularArc> circularArcOf(const ArcPath& path) {
  const double dx = path.end.x - path.start.x;
  const double dy = path.end.y - path.start.y;
  const double chord = std::hypot(dx, dy);
  if (chord == 0 || std::abs(path.bulge) < kNoAngle) return std::nullopt;
  // From the middle of the chord the centre lies to the left by this part of the chord.
  const double left = (1 / path.bulge - path.bulge) / 4;
  CircularArc arc;
  const OdGePoint3d middle{(path.start.x + path.end.x) / 2, (path.start.y + path.end.y) / 2,
                           path.start.z};
  arc.center =
      path.center.value_or(OdGePoint3d{middle.x - dy * left, middle.y + dx * left, middle.z});
  arc.radius = std::hypot(path.start.x - arc.center.x, path.start.y - arc.center.y);
  const bool ccw = path.bulge > 0;
  arc.startAngle = cleanAngle(directionOf(arc.center, ccw ? path.start : path.end));
  arc.endAngle = cleanAngle(directionOf(arc.center, ccw ? path.end : path.start));
  return arc;
}

double endDirectionOf(const ArcPath& path) {
  return directionOf(path.start, path.end) + path.includedAngle() / 2;
}

std::optional<ArcPath> arcThrough(const OdGePoint3d& start, const OdGePoint3d& second,
                                  const OdGePoint3d& end) {
  const std::optional<Circle2d> circle = circleThrough(start, second, end);
  if (!circle) return std::nullopt;
  const double from = directionOf(circle->center, start);
  const double whole = odgeNormalAngle(directionOf(circle->center, end) - from);
  const double part = odgeNormalAngle(directionOf(circle->center, second) - from);
  return arcByAngle(start, end, part < whole ? whole : whole - kTurn);
}

std::optional<ArcPath> arcAround(const OdGePoint3d& center, const OdGePoint3d& start,
                                 const OdGePoint3d& end) {
  if (samePlace(center, start) || samePlace(center, end)) return std::nullopt;
  return arcAroundByAngle(center, start,
                          odgeNormalAngle(directionOf(center, end) - directionOf(center, start)));
}

std::optional<ArcPath> arcAroundByAngle(const OdGePoint3d& center, const OdGePoint3d& start,
                                        double includedAngle) {
  std::optional<ArcPath> path =
      arcByAngle(start, turnedAbout(start, center, includedAngle), includedAngle);
  if (path) path->center = atHeightOf(center, start);
  return path;
}

std::optional<ArcPath> arcAroundByChord(const OdGePoint3d& center, const OdGePoint3d& start,
                                        double chord) {
  const double diameter = 2 * atHeightOf(center, start).distanceTo(start);
  if (chord == 0 || std::abs(chord) > diameter) return std::nullopt;
  const double angle = 2 * std::asin(std::abs(chord) / diameter);
  return arcAroundByAngle(center, start, chord > 0 ? angle : kTurn - angle);
}

std::optional<ArcPath> arcByAngle(const OdGePoint3d& start, const OdGePoint3d& end,
                                  double includedAngle) {
  const double size = std::abs(includedAngle);
  if (samePlace(start, end) || size < kNoAngle || size > kTurn - kNoAngle) return std::nullopt;
  return ArcPath{start, atHeightOf(end, start), std::tan(includedAngle / 4)};
}

std::optional<ArcPath> arcByDirection(const OdGePoint3d& start, const OdGePoint3d& end,
                                      double direction) {
  return arcByAngle(start, end, 2 * signedAngle(directionOf(start, end) - direction));
}

std::optional<ArcPath> arcByRadius(const OdGePoint3d& start, const OdGePoint3d& end,
                                   double radius) {
  const double chord = start.distanceTo(atHeightOf(end, start));
  const double diameter = 2 * std::abs(radius);
  // A half circle must not fail by the last digit of its chord.
  if (diameter == 0 || chord > diameter * (1 + kNoAngle)) return std::nullopt;
  const double angle = 2 * std::asin(std::min(1.0, chord / diameter));
  return arcByAngle(start, end, radius > 0 ? angle : kTurn - angle);
}

std::optional<ArcPath> arcByRadiusAndAngle(const OdGePoint3d& start, double radius,
                                           double includedAngle, double chordDirection) {
  const double chord = 2 * std::abs(radius * std::sin(includedAngle / 2));
  return arcByAngle(start, pointAlong(start, chordDirection, chord), includedAngle);
}

} // namespace drafton
