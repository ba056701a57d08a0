// Where ellipses meet.
#pragma once

#include "drafton/engine/boundary/flat_segment.h"

namespace drafton {

/// One point of two ellipses, by the angle on each.
struct AnglePair {
  double first = 0, second = 0;
};

/// The points that two whole ellipses or circles share, at most four; where they come nearer than
/// `tolerance` without crossing they touch. None for ellipses that lie upon each other.
std::vector<AnglePair> ellipseMeetings(const OdGeCurveSegment& first,
                                       const OdGeCurveSegment& second, double tolerance);

} // namespace drafton
