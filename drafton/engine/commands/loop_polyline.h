// Loops as polylines.
#pragma once

#include "drafton/engine/boundary/boundary_loop.h"
#include "drawing/entities/polyline.h"

namespace drafton {

/// A closed polyline along a loop in world coordinates. Arcs of circles are exact; those of
/// ellipses become chords that leave them by less than a ten thousandth of the loop's size.
OdDbPolylinePtr polylineOf(const BoundaryLoop& loop, double elevation);

} // namespace drafton
