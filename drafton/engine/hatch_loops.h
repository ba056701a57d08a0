// The boundaries that a search finds, as hatches keep them.
#pragma once

#include "drafton/engine/boundary/boundary_sources.h"
#include "drawing/entities/hatch_loop.h"

namespace drafton {

/// One loop of a chosen area, in world coordinates.
struct HatchLoop {
  BoundaryLoop loop;
  std::vector<OdDbObjectId> sources; ///< the entities that it runs along
  bool isPicked = true;              ///< found around a point, and not by choosing objects
};

/// A loop in coordinates that have `origin` at 0, moved to its place in the world at a height.
BoundaryLoop placedLoop(const BoundaryLoop& flat, const OdGePoint3d& origin, double elevation);

/// Loops in the coordinates of `sources`, moved to their place in the world at a height.
std::vector<HatchLoop> placedLoops(const BoundaryLoops& flat, const BoundarySources& sources,
                                   double elevation, bool isPicked);

/// The loops as those of a hatch that lies flat; with their sources if it is associative.
std::vector<OdDbHatchLoop> boundaryOf(const std::vector<HatchLoop>& loops, bool isAssociative);

} // namespace drafton
