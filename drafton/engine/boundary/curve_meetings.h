// Where two pieces of curves cross or touch.
#pragma once

#include "drafton/engine/boundary/flat_segment.h"

namespace drafton {

/// A point that two segments share, as a part of each.
struct CurveMeeting {
  double onFirst = 0, onSecond = 0;
};

/// Adds the points that two segments share. What is nearer than `tolerance` touches; segments that
/// lie upon each other for a while meet where one of them ends. Both are flat (flat_segment.h).
void appendMeetings(const OdGeCurveSegment& first, const OdGeCurveSegment& second, double tolerance,
                    std::vector<CurveMeeting>& meetings);

} // namespace drafton
