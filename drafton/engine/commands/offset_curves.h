// Curves at a distance from another one.
#pragma once

#include "drawing/entities/curve.h"

#include <optional>

namespace drafton {

/// True for a curve that has a side to offset to.
bool canBeOffset(OdDbObjectId entity);

/// The curves at `distance` from `curve` on the side where the point is, or those through the point
/// if there is no distance. Empty if there are none.
std::vector<OdDbEntityPtr> offsetTowards(const OdDbCurve& curve, const OdGePoint3d& point,
                                         std::optional<double> distance);

} // namespace drafton
