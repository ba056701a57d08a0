// Lines over the gaps of a drawing.
#pragma once

#include "drafton/engine/boundary/planar_graph.h"

namespace drafton {

/// The lines that close gaps up to the length `gap`: from each loose end to the loose ends nearest
/// to it, on in its own direction to what it would meet, or else to the nearest piece.
OdGeCurveSegments gapBridges(const PlanarGraph& graph, double gap);

} // namespace drafton
