// Pieces of curves as they are seen from above.
#pragma once

#include "drawing/geometry/curve_segment.h"

#include <span>

namespace drafton {

// All of the search for boundaries works on segments whose z is 0.

/// Adds `segment` without its heights, in coordinates that have `origin` at 0. A circle that is
/// seen from its edge gives straight pieces; nothing is added for a segment whose numbers are not
/// finite, or too large to calculate with.
void appendFlat(const OdGeCurveSegment& segment, const OdGePoint3d& origin,
                OdGeCurveSegments& flat);

/// The area between the segment and the origin, positive if it turns to the left around it. Summed
/// up over a loop it is the loop's area.
double sweptArea(const OdGeCurveSegment& segment);

/// The part of an angle of the segment's own; beyond 1 if the segment does not reach it.
double partOfAngle(const OdGeCurveSegment& segment, double angle);

/// 1 / radius, positive if the segment bends to the left.
double curvatureAt(const OdGeCurveSegment& segment, double part);

/// How many times a ray from `point` along x crosses the segment.
int crossingsOfRay(const OdGeCurveSegment& segment, const OdGePoint3d& point);

/// The segment in the other direction, with exactly the same ends.
OdGeCurveSegment turnedRound(const OdGeCurveSegment& segment);

/// The box around segments.
OdGeExtents3d boxAround(std::span<const OdGeCurveSegment> segments);

/// A length that is no difference in a part of a drawing: by the size of `box` and the largest
/// coordinate in it. `origin` is where the box has its 0.
double drawingTolerance(const OdGeExtents3d& box, const OdGePoint3d& origin);

inline double crossOf(const OdGeVector3d& a, const OdGeVector3d& b) {
  return a.x * b.y - a.y * b.x;
}
inline OdGePoint3d flatPoint(const OdGePoint3d& p, const OdGePoint3d& origin) {
  return {p.x - origin.x, p.y - origin.y, 0};
}

} // namespace drafton
