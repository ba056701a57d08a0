// Typed text as numbers, angles and points.
#pragma once

#include "frame/string.h"

#include "drawing/geometry/geometry.h"

#include <optional>

namespace drafton {

// All of these take the whole text or give nothing. Numbers have a point whatever the locale, may
// have an exponent, and are finite.

std::optional<double> parseReal(QStringView text);
/// Within the range of an int.
std::optional<int> parseInteger(QStringView text);
/// Degrees, given in radians.
std::optional<double> parseAngle(QStringView text);

/// From where typed points are measured.
struct PointOrigins {
  OdGePoint3d last; ///< for `@`
  std::optional<OdGePoint3d> base;
  double elevation = 0;              ///< of absolute points without z
  std::optional<OdGePoint3d> cursor; ///< where a window's cursor is
};
/// `x,y` and `x,y,z`; `@dx,dy[,dz]` and `@d<a` from the last point, `@` alone for that point
/// itself; `d<a` from the prompt's base point, or from the origin without one. Angles are in
/// degrees. A z that is not given is that of the point measured from, or the elevation.
std::optional<OdGePoint3d> parsePoint(QStringView text, const PointOrigins& origins);
/// A number alone: so far from the base towards the cursor, as seen from above. None without a base
/// or a cursor, or with the cursor on the base.
std::optional<OdGePoint3d> parseDistanceToCursor(QStringView text, const PointOrigins& origins);

/// A number in the shortest form that reads back as the same, but at most `decimals` behind the
/// point.
OdString shownReal(double value, int decimals = 4);
/// Radians as degrees.
OdString shownAngle(double radians);
OdString shownPoint(const OdGePoint3d& point);

} // namespace drafton
