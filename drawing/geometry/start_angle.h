// Where curves that go round start.
#pragma once

#include "drawing/geometry/geometry.h"

/// An angle where a curve starts, in radians, fit to count turns from: as it stands within a few
/// turns, and turned into the first one beyond. Files may hold numbers so large that adding a turn
/// changes nothing.
inline double odgeStartAngle(double angle) {
  return std::abs(angle) > 8 * kOdaPi ? odgeNormalAngle(angle) : angle;
}
