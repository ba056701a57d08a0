// Closed loops of pieces.
#pragma once

#include "drafton/engine/boundary/planar_graph.h"

namespace drafton {

/// How islands in an area are treated; the numbers are those of the variable HPISLANDDETECTION and
/// of hatches.
enum class IslandStyle { kNormal = 0, kOuter = 1, kIgnore = 2 };

/// One closed loop, counterclockwise. Pieces that were cut only for what meets them from outside of
/// the loop are whole again.
struct BoundaryLoop {
  OdGeCurveSegments pieces;
  double area = 0; ///< above 0
  OdGeExtents3d box;
  /// How many loops of the same area it lies in: even ones bound what is hatched from outside.
  int depth = 0;
  bool isText = false; ///< the box of a text
  /// The curves that it runs along, each once, by their place in the list that was searched.
  std::vector<PlanarGraph::Index> curves;

  /// Points upon the loop may give either answer.
  bool contains(const OdGePoint3d& point) const;
  /// A point inside, close to the loop.
  OdGePoint3d innerPoint() const;
};
using BoundaryLoops = std::vector<BoundaryLoop>;

/// A loop of pieces that follow each other in either direction.
BoundaryLoop loopOf(OdGeCurveSegments pieces);

/// The loops of a ring: one, or several where it meets itself at a node.
BoundaryLoops loopsOf(const PlanarGraph& graph, const PlanarGraph::Ring& ring);

/// True if the point lies in an odd number of loops.
bool isInArea(const BoundaryLoops& loops, const OdGePoint3d& point);

/// Gives each loop the number of other loops that it lies in.
void setDepths(BoundaryLoops& loops);
/// Leaves out the loops that count for nothing in a style.
void dropIslands(BoundaryLoops& loops, IslandStyle style);

/// What odd numbers of `loops` enclose without what `texts` enclose. Islands in texts are lost with
/// them. The curves of what is cut are kept.
BoundaryLoops withoutTexts(const BoundaryLoops& loops, const BoundaryLoops& texts,
                           double tolerance);

} // namespace drafton
