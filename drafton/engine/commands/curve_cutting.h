// Cutting curves at others, and making them longer up to others.
#pragma once

#include "drafton/engine/selection_picker.h"
#include "drawing/entities/curve.h"

namespace drafton {

// Curves meet where they are seen to meet from above.

/// The parameters at which a curve meets the edges, rising, each once.
std::vector<double> meetingsWith(const OdDbCurve& curve, const Selection& edges);

/// What is left of a curve when the piece around a point goes: that between the meetings with the
/// edges on both sides of the point, or up to an end. None if nothing cuts the curve there, or if
/// it cannot be cut; empty if nothing is left.
std::optional<std::vector<OdDbEntityPtr>> trimmed(const OdDbCurve& curve, const Selection& edges,
                                                  const OdGePoint3d& point);

/// Makes the end of a line, an arc or an open polyline that is nearer to a point longer, up to the
/// next edge. False, and nothing changed, if there is no such edge or the entity has no such end.
bool extendTo(OdDbCurve& curve, const Selection& edges, const OdGePoint3d& point);

} // namespace drafton
