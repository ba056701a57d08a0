// What rounds or cuts the corner between two curves.
#pragma once

#include "drawing/geometry/curve_segment.h"

#include <optional>

namespace drafton {

// All of it lies in one plane parallel to that of the world's x and y. Straight pieces and pieces
// of circles count as if they went on.

/// A piece and the place at which the user pointed: of several corners the nearest is meant.
struct CornerSide {
  OdGeCurveSegment piece;
  OdGePoint3d picked;
};

/// Where one of two curves ends at a corner, and the direction in which the rest of it lies.
struct CornerEnd {
  OdGePoint3d point;
  OdGeVector3d rest;
};

struct Corner {
  CornerEnd first, second;
  /// Of the arc between the ends; without it a straight line joins them, if they differ.
  std::optional<OdGePoint3d> center;
  /// The tangent of a quarter of the angle of the arc from the first to the second end, above 0
  /// counterclockwise.
  double bulge = 0;
};

/// The corner with an arc that touches both; without a radius, the point where they cross. None if
/// there is no such arc or point.
std::optional<Corner> roundedCorner(const CornerSide& first, const CornerSide& second,
                                    double radius);

/// The corner of two straight pieces from which something is cut: so much of each, from where they
/// cross. None for parallel ones and for arcs.
std::optional<Corner> cutCorner(const CornerSide& first, const CornerSide& second, double fromFirst,
                                double fromSecond);

} // namespace drafton
