// The areas of a planar graph and what stands in them.
#pragma once

#include "drafton/engine/boundary/boundary_loop.h"

namespace drafton {

/// The rings of a graph without loose edges.
class RingTree {
 public:
  using Index = PlanarGraph::Index;

  explicit RingTree(const PlanarGraph& graph);

  /// The ring around the smallest area with the point; kNone if there is none.
  Index ringAround(const OdGePoint3d& point) const;
  const PlanarGraph::Ring& ring(Index index) const { return m_rings[index]; }

  /// The outer loop of an area, and all islands in it by their depth.
  BoundaryLoops loopsIn(Index ring) const;
  /// The outlines of everything, by their depth.
  BoundaryLoops outlines() const;

 private:
  bool contains(const PlanarGraph::Ring& ring, const OdGePoint3d& point) const;
  /// The smallest area that a clockwise ring stands in; kNone for none.
  Index areaAround(const PlanarGraph::Ring& outline) const;
  /// The clockwise rings of other components in the box of `outer`, the largest first.
  std::vector<Index> outlinesIn(const PlanarGraph::Ring& outer) const;

  const PlanarGraph& m_graph;
  std::vector<PlanarGraph::Ring> m_rings;
};

} // namespace drafton
