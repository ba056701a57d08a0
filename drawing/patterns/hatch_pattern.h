// Hatch patterns.
#pragma once

#include "drawing/geometry/geometry.h"
#include "frame/string.h"

#include <vector>

/// One family of parallel lines, as a hatch keeps it: everything in the coordinates of the hatch's
/// plane, turned and scaled.
struct OdHatchPatternLine {
  double angle = 0;           ///< radians
  OdGePoint2d base;           ///< a point that one line goes through and its dashes start from
  OdGePoint2d offset;         ///< from one line to the next
  std::vector<double> dashes; ///< above 0 a dash, 0 a dot, below 0 a gap; none: continuous

  bool operator==(const OdHatchPatternLine&) const = default;
};

/// A pattern by its name: families of lines at scale 1 and angle 0.
struct OdHatchPattern {
  OdString name, description;
  std::vector<OdHatchPatternLine> lines;

  /// The lines as a hatch takes them: scaled, turned by `angle` (radians) and moved to `origin`.
  std::vector<OdHatchPatternLine> placed(double scale, double angle, OdGePoint2d origin = {}) const;
  /// The pattern of a user-defined hatch: lines `spacing` apart, with `isDouble` a second family
  /// across.
  static OdHatchPattern userDefined(double spacing, bool isDouble);
};
