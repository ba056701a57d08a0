// Keeping the boxes of texts free.

#include "drafton/engine/boundary/boundary_loop.h"

#include <algorithm>

namespace drafton {
namespace {

using Index = PlanarGraph::Index;

/// A point close to the left of a side.
OdGePoint3d leftOf(const PlanarGraph& graph, Index side) {
  const OdGeCurveSegment piece = graph.pieceOf(side);
  const OdGeVector3d along = piece.derivAt(0.5).normal();
  const double step = std::min(8 * graph.tolerance(), piece.length() / 8);
  return piece.pointAt(0.5) + OdGeVector3d{-along.y, along.x, 0} * step;
}

bool contains(const BoundaryLoops& loops, const OdGePoint3d& point) {
  return std::any_of(loops.begin(), loops.end(),
                     [&](const BoundaryLoop& loop) { return loop.contains(point); });
}

} // namespace

BoundaryLoops withoutTexts(const BoundaryLoops& loops, const BoundaryLoops& texts,
                           double tolerance) {
  OdGeCurveSegments pieces;
  std::vector<const BoundaryLoop*> loopOfPiece;
  for (const BoundaryLoops* const list : {&loops, &texts})
    for (const BoundaryLoop& loop : *list)
      for (const OdGeCurveSegment& piece : loop.pieces) {
        pieces.push_back(piece);
        loopOfPiece.push_back(&loop);
      }
  PlanarGraph graph(pieces, tolerance);
  const auto isHatched = [&](Index side) {
    const OdGePoint3d point = leftOf(graph, side);
    return isInArea(loops, point) && !contains(texts, point);
  };
  for (Index edge = 0; edge < graph.edges().size(); ++edge)
    if (isHatched(2 * edge) == isHatched(2 * edge + 1)) graph.drop(edge);
  graph.sortSides();

  BoundaryLoops result;
  for (const PlanarGraph::Ring& ring : graph.rings()) {
    // Each border is walked on both sides; the one with the hatched area on its left counts.
    if (!isHatched(ring.sides.front())) continue;
    for (BoundaryLoop& loop : loopsOf(graph, ring)) {
      std::vector<Index> curves;
      bool isText = true;
      for (const Index curve : loop.curves) {
        const BoundaryLoop& source = *loopOfPiece[curve];
        isText = isText && source.isText;
        curves.insert(curves.end(), source.curves.begin(), source.curves.end());
      }
      std::sort(curves.begin(), curves.end());
      curves.erase(std::unique(curves.begin(), curves.end()), curves.end());
      loop.curves = std::move(curves);
      loop.isText = isText;
      result.push_back(std::move(loop));
    }
  }
  setDepths(result);
  std::stable_sort(result.begin(), result.end(),
                   [](const BoundaryLoop& a, const BoundaryLoop& b) { return a.depth < b.depth; });
  return result;
}

} // namespace drafton
