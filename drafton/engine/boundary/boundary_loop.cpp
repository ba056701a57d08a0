#include "drafton/engine/boundary/boundary_loop.h"

#include <algorithm>

namespace drafton {
namespace {

using Index = PlanarGraph::Index;

/// Joins `next` to `last`, which runs along the same curve in the same direction.
void lengthen(OdGeCurveSegment& last, const OdGeCurveSegment& next) {
  last.end = next.end;
  if (!last.isLine()) last.sweep += next.sweep;
}

/// The loop along sides of a graph; clockwise ones are turned round.
BoundaryLoop loopAlong(const PlanarGraph& graph, const std::vector<Index>& sides) {
  OdGeCurveSegments pieces;
  std::vector<std::pair<Index, Index>> ways; // the curve of each piece and its direction
  for (const Index side : sides) {
    const std::pair way(graph.edges()[PlanarGraph::edgeOf(side)].curve, side % 2);
    const OdGeCurveSegment piece = graph.pieceOf(side);
    if (!ways.empty() && ways.back() == way) {
      lengthen(pieces.back(), piece);
    } else {
      pieces.push_back(piece);
      ways.push_back(way);
    }
  }
  if (ways.size() > 1 && ways.front() == ways.back()) {
    lengthen(pieces.back(), pieces.front());
    pieces.front() = pieces.back();
    pieces.pop_back();
    ways.pop_back();
  }
  BoundaryLoop loop = loopOf(std::move(pieces));
  for (const auto& [curve, direction] : ways) loop.curves.push_back(curve);
  std::sort(loop.curves.begin(), loop.curves.end());
  loop.curves.erase(std::unique(loop.curves.begin(), loop.curves.end()), loop.curves.end());
  return loop;
}

} // namespace

bool BoundaryLoop::contains(const OdGePoint3d& point) const {
  if (box.isEmpty() || point.x < box.minPoint().x || point.x > box.maxPoint().x ||
      point.y < box.minPoint().y || point.y > box.maxPoint().y)
    return false;
  int crossings = 0;
  for (const OdGeCurveSegment& piece : pieces) crossings += crossingsOfRay(piece, point);
  return crossings % 2 != 0;
}

OdGePoint3d BoundaryLoop::innerPoint() const {
  const auto longest =
      std::max_element(pieces.begin(), pieces.end(),
                       [](const auto& a, const auto& b) { return a.length() < b.length(); });
  const OdGePoint3d middle = longest->pointAt(0.5);
  const OdGeVector3d along = longest->derivAt(0.5).normal();
  const OdGeVector3d left{-along.y, along.x, 0};
  // As far from the loop as the shape allows, since loops that touch differ by their tolerance.
  double step = std::sqrt(area) / 16;
  for (int i = 0; i < 30 && !contains(middle + left * step); ++i) step /= 2;
  return middle + left * step;
}

BoundaryLoop loopOf(OdGeCurveSegments pieces) {
  BoundaryLoop loop;
  for (const OdGeCurveSegment& piece : pieces) loop.area += sweptArea(piece);
  loop.box = boxAround(pieces);
  loop.pieces = std::move(pieces);
  if (loop.area < 0) {
    loop.area = -loop.area;
    std::reverse(loop.pieces.begin(), loop.pieces.end());
    for (OdGeCurveSegment& piece : loop.pieces) piece = turnedRound(piece);
  }
  return loop;
}

BoundaryLoops loopsOf(const PlanarGraph& graph, const PlanarGraph::Ring& ring) {
  BoundaryLoops loops;
  // Where the walk comes to a node again, what lies between is a loop of its own.
  std::vector<Index> walk;
  std::vector<Index> placeOf(graph.nodes().size(), PlanarGraph::kNone);
  for (const Index side : ring.sides) {
    const Index start = graph.startOf(side);
    placeOf[start] = static_cast<Index>(walk.size());
    walk.push_back(side);
    const Index back = placeOf[graph.endOf(side)];
    if (back == PlanarGraph::kNone) continue;
    const std::vector<Index> sides(walk.begin() + back, walk.end());
    for (const Index closed : sides) placeOf[graph.startOf(closed)] = PlanarGraph::kNone;
    walk.resize(back);
    loops.push_back(loopAlong(graph, sides));
  }
  return loops;
}

bool isInArea(const BoundaryLoops& loops, const OdGePoint3d& point) {
  return std::count_if(loops.begin(), loops.end(),
                       [&](const BoundaryLoop& loop) { return loop.contains(point); }) %
             2 !=
         0;
}

void setDepths(BoundaryLoops& loops) {
  std::vector<OdGePoint3d> points;
  for (const BoundaryLoop& loop : loops) points.push_back(loop.innerPoint());
  for (BoundaryLoop& loop : loops)
    loop.depth =
        static_cast<int>(std::count_if(loops.begin(), loops.end(), [&](const BoundaryLoop& other) {
          return &other != &loop && other.area > loop.area &&
                 other.contains(points[static_cast<std::size_t>(&loop - loops.data())]);
        }));
}

void dropIslands(BoundaryLoops& loops, IslandStyle style) {
  if (style == IslandStyle::kNormal) return;
  const int deepest = style == IslandStyle::kOuter ? 1 : 0;
  std::erase_if(loops, [&](const BoundaryLoop& loop) { return loop.depth > deepest; });
}

} // namespace drafton
