// Arcs as a way from one point to another, and the ways in which users describe them.
#pragma once

#include "drawing/geometry/geometry.h"

#include <optional>

namespace drafton {

// Everything here lies in a plane parallel to that of the world's x and y, at the height of the
// start point. Angles are in radians; positive ones run counterclockwise.

/// An arc from `start` to `end`. The bulge is the tangent of a quarter of the included angle:
/// 0 is straight, above 0 counterclockwise, 1 a half circle.
struct ArcPath {
  OdGePoint3d start, end;
  double bulge = 0;
  /// Where the user gave it; otherwise it follows from the rest, but for the last digits.
  std::optional<OdGePoint3d> center = {};

  double includedAngle() const { return 4 * std::atan(bulge); }
};

/// The circle of an arc, and its two ends counterclockwise.
struct CircularArc {
  OdGePoint3d center;
  double radius = 0;
  double startAngle = 0, endAngle = 0;
};

/// The angle of the direction from one point to another.
double directionOf(const OdGePoint3d& from, const OdGePoint3d& to);
/// The point at a distance in a direction.
OdGePoint3d pointAlong(const OdGePoint3d& from, double direction, double distance);

/// Centre, radius and angles; none for a straight way.
std::optional<CircularArc> circularArcOf(const ArcPath& path);
/// The direction of travel at the end of the path; that of the line if it is straight.
double endDirectionOf(const ArcPath& path);

// Each of these gives none if there is no such arc: points that coincide or stand in a line, an
// angle of 0 or of a full turn, a radius or chord that does not fit.

std::optional<ArcPath> arcThrough(const OdGePoint3d& start, const OdGePoint3d& second,
                                  const OdGePoint3d& end);
/// Counterclockwise; `end` gives only the direction in which the arc ends.
std::optional<ArcPath> arcAround(const OdGePoint3d& center, const OdGePoint3d& start,
                                 const OdGePoint3d& end);
std::optional<ArcPath> arcAroundByAngle(const OdGePoint3d& center, const OdGePoint3d& start,
                                        double includedAngle);
/// Counterclockwise, the smaller arc over the chord; a negative chord gives the greater.
std::optional<ArcPath> arcAroundByChord(const OdGePoint3d& center, const OdGePoint3d& start,
                                        double chord);
std::optional<ArcPath> arcByAngle(const OdGePoint3d& start, const OdGePoint3d& end,
                                  double includedAngle);
/// `direction` is the direction of travel at the start. A direction along the chord gives none.
std::optional<ArcPath> arcByDirection(const OdGePoint3d& start, const OdGePoint3d& end,
                                      double direction);
/// Counterclockwise, the smaller arc; a negative radius gives the greater.
std::optional<ArcPath> arcByRadius(const OdGePoint3d& start, const OdGePoint3d& end, double radius);
/// The end follows from the angle of the chord.
std::optional<ArcPath> arcByRadiusAndAngle(const OdGePoint3d& start, double radius,
                                           double includedAngle, double chordDirection);

} // namespace drafton
