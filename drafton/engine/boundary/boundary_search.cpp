#include "drafton/engine/boundary/boundary_search.h"

#include "drafton/engine/boundary/gap_bridges.h"
#include "drafton/engine/boundary/ring_tree.h"

#include <algorithm>
#include <numeric>

namespace drafton {
namespace {

OdGeExtents3d squareAround(const OdGePoint3d& center, double half) {
  OdGeExtents3d box;
  box.addPoint({center.x - half, center.y - half, 0});
  box.addPoint({center.x + half, center.y + half, 0});
  return box;
}

/// True if `inner` stays `margin` away from the sides of `outer`.
bool isWellInside(const OdGeExtents3d& inner, const OdGeExtents3d& outer, double margin) {
  const OdGeVector3d low = inner.minPoint() - outer.minPoint();
  const OdGeVector3d high = outer.maxPoint() - inner.maxPoint();
  return std::min({low.x, low.y, high.x, high.y}) > margin;
}

OdGeExtents3d common(const OdGeExtents3d& a, const OdGeExtents3d& b) {
  OdGeExtents3d box;
  box.addPoint(
      {std::max(a.minPoint().x, b.minPoint().x), std::max(a.minPoint().y, b.minPoint().y), 0});
  box.addPoint(
      {std::min(a.maxPoint().x, b.maxPoint().x), std::min(a.maxPoint().y, b.maxPoint().y), 0});
  return box;
}

bool meets(const OdGeExtents3d& a, const OdGeExtents3d& b) {
  return a.minPoint().x <= b.maxPoint().x && b.minPoint().x <= a.maxPoint().x &&
         a.minPoint().y <= b.maxPoint().y && b.minPoint().y <= a.maxPoint().y;
}

/// The graph of curves with their gaps closed, without loose ends.
PlanarGraph closedGraph(OdGeCurveSegments curves, double tolerance, double gap) {
  PlanarGraph graph(curves, tolerance);
  if (gap > tolerance)
    if (const OdGeCurveSegments bridges = gapBridges(graph, gap); !bridges.empty()) {
      curves.insert(curves.end(), bridges.begin(), bridges.end());
      graph = PlanarGraph(curves, tolerance);
    }
  graph.dropLooseEdges();
  return graph;
}

bool liesOnCurve(const OdGeCurveSegments& curves, const OdGePoint3d& point, double tolerance) {
  return std::any_of(curves.begin(), curves.end(), [&](const OdGeCurveSegment& curve) {
    return meets(curve.extents(), squareAround(point, tolerance)) &&
           curve.pointAt(curve.closestTo(point)).distanceTo(point) <= tolerance;
  });
}

/// Sources are places in the whole list of curves; bridges over gaps are no curves.
void nameSources(BoundaryLoops& loops, const std::vector<std::uint32_t>& places) {
  for (BoundaryLoop& loop : loops) {
    std::erase_if(loop.curves, [&](PlanarGraph::Index curve) { return curve >= places.size(); });
    for (PlanarGraph::Index& curve : loop.curves) curve = places[curve];
  }
}

} // namespace

/// A square part of the drawing.
struct BoundarySearch::Window {
  OdGeExtents3d box;
  std::vector<std::uint32_t> curves; ///< all that reach into it
};

BoundarySearch::BoundarySearch(OdGeCurveSegments curves, BoundaryLoops texts,
                               const OdGePoint3d& origin, double gap)
  : m_curves(std::move(curves))
  , m_texts(std::move(texts))
  , m_origin(origin)
  , m_gap(gap)
  , m_box(boxAround(m_curves))
  , m_index(m_curves) {}

BoundarySearch::Result BoundarySearch::around(const OdGePoint3d& point, IslandStyle style) const {
  if (m_curves.empty()) return {};
  // An area inside of a window is the same whatever lies outside, so the windows grow until the
  // area has room in one.
  constexpr unsigned kNearest = 16;
  double nearest = std::numeric_limits<double>::max();
  for (const std::uint32_t near : m_index.nearest(point, kNearest)) {
    const OdGeCurveSegment& curve = m_curves[near];
    nearest = std::min(nearest, curve.pointAt(curve.closestTo(point)).distanceTo(point));
  }
  double half = 8 * nearest + 2 * m_gap;
  std::optional<Result> found;
  for (; !found; half *= 2) found = searchIn(window(point, half), point);
  Result result = std::move(*found);
  dropIslands(result.loops, style);
  if (style != IslandStyle::kIgnore && result.outcome == Outcome::kFound)
    keepTextsFree(result.loops);
  return result;
}

BoundarySearch::Window BoundarySearch::window(const OdGePoint3d& center, double half) const {
  Window window{squareAround(center, half), {}};
  if (isWellInside(m_box, window.box, 0) || !std::isfinite(half)) {
    window.curves.resize(m_curves.size());
    std::iota(window.curves.begin(), window.curves.end(), 0u);
  } else {
    window.curves = m_index.in(window.box);
    std::sort(window.curves.begin(), window.curves.end());
  }
  return window;
}

std::optional<BoundarySearch::Result> BoundarySearch::searchIn(const Window& window,
                                                               const OdGePoint3d& point) const {
  OdGeCurveSegments curves;
  for (const std::uint32_t curve : window.curves) curves.push_back(m_curves[curve]);
  // What reaches far out of the window must not make it coarse.
  const double tolerance = drawingTolerance(common(boxAround(curves), window.box), m_origin);
  if (liesOnCurve(curves, point, tolerance)) return Result{Outcome::kOnCurve, {}};
  const PlanarGraph graph = closedGraph(std::move(curves), tolerance, m_gap);
  const RingTree rings(graph);
  const bool isEverything = window.curves.size() == m_curves.size();
  const PlanarGraph::Index ring = rings.ringAround(point);
  if (ring == PlanarGraph::kNone) return isEverything ? std::optional(Result{}) : std::nullopt;
  if (!isEverything && !isWellInside(rings.ring(ring).box, window.box, m_gap)) return std::nullopt;
  Result result{Outcome::kFound, rings.loopsIn(ring)};
  nameSources(result.loops, window.curves);
  return result;
}

void BoundarySearch::keepTextsFree(BoundaryLoops& loops) const {
  BoundaryLoops near;
  for (const BoundaryLoop& text : m_texts)
    if (meets(text.box, loops.front().box)) near.push_back(text);
  if (near.empty()) return;
  OdGeCurveSegments pieces;
  for (const BoundaryLoop& loop : loops)
    pieces.insert(pieces.end(), loop.pieces.begin(), loop.pieces.end());
  BoundaryLoops free = withoutTexts(loops, near, drawingTolerance(boxAround(pieces), m_origin));
  if (!free.empty()) loops = std::move(free);
}

BoundaryLoops closedOutlines(const OdGeCurveSegments& curves, const OdGePoint3d& origin,
                             double gap) {
  const PlanarGraph graph = closedGraph(curves, drawingTolerance(boxAround(curves), origin), gap);
  std::vector<std::uint32_t> places(curves.size());
  std::iota(places.begin(), places.end(), 0u);
  BoundaryLoops loops = RingTree(graph).outlines();
  nameSources(loops, places);
  return loops;
}

} // namespace drafton
