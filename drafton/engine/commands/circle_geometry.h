// Circles as users describe them.
#pragma once

#include "drawing/geometry/geometry.h"

#include <optional>

namespace drafton {

/// A circle parallel to the plane of the world's x and y.
struct Circle2d {
  OdGePoint3d center;
  double radius = 0;
};

/// The circle through three points, at the height of the first; none if they stand in a line.
std::optional<Circle2d> circleThrough(const OdGePoint3d& a, const OdGePoint3d& b,
                                      const OdGePoint3d& c);
/// The circle that has the line between two points as its diameter, at the height of the first;
/// none if they coincide.
std::optional<Circle2d> circleOnDiameter(const OdGePoint3d& a, const OdGePoint3d& b);

} // namespace drafton
