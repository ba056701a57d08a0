// The lines that a hatch pattern draws in an area.
#pragma once

#include "drawing/patterns/hatch_pattern.h"

#include <cstddef>

namespace odpattern {

/// Closed rings of corners in the plane of a hatch; what lies in an odd number of them is inside.
using Rings = std::vector<std::vector<OdGePoint2d>>;

/// More strokes than this are not worth drawing: the area looks filled.
inline constexpr std::size_t kUsualLimit = 200000;

/// Adds the strokes of a pattern inside `rings` to `ends`, as pairs of ends; a dot is a pair of
/// equal ends. False if there would be more than `limit` strokes, or if the pattern has no usable
/// line: `ends` is then as it was, and whoever draws fills the area with a tint.
bool appendStrokes(const Rings& rings, const std::vector<OdHatchPatternLine>& lines,
                   std::size_t limit, std::vector<OdGePoint2d>& ends);

} // namespace odpattern
