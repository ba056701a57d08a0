// Exact pieces of curves.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/geometry/matrix.h"

#include <cstdint>
#include <vector>

/// A straight line or a part of a circle or an ellipse, in world coordinates. Runs from `start` to
/// `end`; a curved piece is center + u cos t + v sin t for t from `from` over `sweep` (radians,
/// either sign, at most a full turn). Places on it are told by a part from 0 to 1.
struct OdGeCurveSegment {
  enum Kind : std::uint8_t { kLine, kArc };

  Kind kind = kLine;
  OdGePoint3d start, end;
  OdGePoint3d center;
  OdGeVector3d u, v; ///< at right angles to each other only for circles and true axes
  double from = 0, sweep = 0;

  static OdGeCurveSegment line(const OdGePoint3d& start, const OdGePoint3d& end);
  static OdGeCurveSegment arc(const OdGePoint3d& center, const OdGeVector3d& u,
                              const OdGeVector3d& v, double from, double sweep);

  bool isLine() const { return kind == kLine; }
  /// True for a piece of a circle.
  bool isCircular() const;
  /// Of a circle.
  double radius() const { return u.length(); }
  OdGePoint3d pointAt(double part) const;
  /// The derivative by the part: its length is the speed.
  OdGeVector3d derivAt(double part) const;
  double length() const { return lengthTo(1); }
  /// The length from the start to a part.
  double lengthTo(double part) const;
  /// The part at a length from the start.
  double partAtLength(double length) const;
  /// The part that is nearest to a point.
  double closestTo(const OdGePoint3d& point) const;
  OdGeExtents3d extents() const;
  OdGeCurveSegment reversed() const;
  OdGeCurveSegment transformed(const OdGeMatrix3d& transform) const;
  /// The piece between two parts, the first below the second.
  OdGeCurveSegment between(double first, double second) const;
};
using OdGeCurveSegments = std::vector<OdGeCurveSegment>;
