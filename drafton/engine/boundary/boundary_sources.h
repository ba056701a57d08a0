// The curves and texts of a drawing that bound areas.
#pragma once

#include "drafton/engine/boundary/boundary_loop.h"
#include "drawing/object_id.h"

class OdDbDatabase;

namespace drafton {

/// What a search for areas works on: curves seen from above, in coordinates that have `origin` at
/// 0. The lines of dimensions and leaders, hatches and pictures bound nothing.
struct BoundarySources {
  OdGePoint3d origin;
  OdGeCurveSegments curves;
  /// By curve: the entity of the space that it belongs to, an insert for the curves of its block.
  std::vector<OdDbObjectId> owners;
  BoundaryLoops texts;                  ///< the boxes around texts, with some room
  std::vector<OdDbObjectId> textOwners; ///< by text

  /// The entities of some curves, each once.
  std::vector<OdDbObjectId> ownersOf(const std::vector<PlanarGraph::Index>& curves) const;
};

/// Everything that is seen in the current space.
BoundarySources visibleSources(const OdDbDatabase& database, const OdGePoint3d& origin);

/// Some entities, seen or not.
BoundarySources sourcesOf(const std::vector<OdDbObjectId>& entities, const OdGePoint3d& origin);

} // namespace drafton
