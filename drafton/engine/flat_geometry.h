// Straight pieces and polygons in the plane.
#pragma once

#include "drawing/geometry/geometry.h"

#include <span>
#include <vector>

namespace drafton {

/// The distance of `p` from the straight piece between `a` and `b`.
double distanceToPiece(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& p);

/// True if the two closed pieces have a point in common.
bool piecesMeet(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& c,
                const OdGePoint2d& d);
/// True if the pieces cross, each leaving the other's line on both sides.
bool piecesCross(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& c,
                 const OdGePoint2d& d);

/// True if the point lies in an odd number of the closed rings; what lies on them counts as it
/// happens to.
bool isInRings(std::span<const std::vector<OdGePoint2d>> rings, const OdGePoint2d& point);

} // namespace drafton
