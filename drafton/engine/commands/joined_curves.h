// Making one curve of several.
#pragma once

#include "drafton/engine/selection_picker.h"
#include "drawing/entities/entity.h"

namespace drafton {

/// What several curves become, in the place of the first one.
struct JoinedCurve {
  OdDbEntityPtr curve; ///< with the properties of the first one; in no drawing
  Selection from;      ///< in the order of the choice
};

/// The line from the one far end of lines on one line to the other; gaps between them are closed.
/// None if they are not all lines, or lie otherwise.
std::optional<JoinedCurve> joinedLine(const Selection& curves);

/// The arc over all arcs of one circle, counterclockwise from the first one, gaps closed; the
/// circle if it comes round. None if they are not all arcs, or lie otherwise.
std::optional<JoinedCurve> joinedArc(const Selection& curves);

/// Polylines along lines, arcs and open polylines that lie level and touch end to end. What touches
/// nothing is in none of them.
std::vector<JoinedCurve> joinedPolylines(const Selection& curves);

} // namespace drafton
