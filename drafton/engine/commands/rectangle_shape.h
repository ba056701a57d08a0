// The outline of a rectangle with cut or rounded corners.
#pragma once

#include "drawing/entities/polyline.h"

#include <vector>

namespace drafton {

/// How RECTANG draws: the corners, and what the polyline gets.
struct RectangleModes {
  /// Cut from the side before and behind a corner.
  double chamferBefore = 0, chamferBehind = 0;
  double fillet = 0; ///< radius; corners are either cut or rounded
  double elevation = 0, thickness = 0, width = 0;
  double rotation = 0; ///< radians
};

/// A rectangle by one corner and its two sides; a negative one goes the other way.
struct RectangleSides {
  double length = 0, width = 0;
};

/// The sides of the rectangle whose opposite corners are given, if it is turned by `rotation`.
RectangleSides sidesBetween(const OdGePoint3d& corner, const OdGePoint3d& opposite,
                            double rotation);

/// The corners of the outline, from the given corner along the length. Corners are not treated if
/// the sides are too short for it.
std::vector<OdDbPolyline::Vertex> rectangleOutline(const OdGePoint3d& corner,
                                                   const RectangleSides& sides,
                                                   const RectangleModes& modes);

/// The side that with `side` gives a rectangle of `area`, of which the corners' treatment has taken
/// its part.
double sideForArea(double area, double side, const RectangleModes& modes);

} // namespace drafton
