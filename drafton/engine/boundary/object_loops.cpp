#include "drafton/engine/boundary/object_loops.h"

#include "drafton/engine/boundary/boundary_search.h"
#include "drawing/database.h"

#include <algorithm>

namespace drafton {
namespace {

/// True if the segments follow each other and come back to their start.
bool isClosedChain(std::span<const OdGeCurveSegment> segments, double tolerance) {
  for (std::size_t i = 0; i < segments.size(); ++i) {
    const OdGeCurveSegment& next = segments[(i + 1) % segments.size()];
    if (segments[i].end.distanceTo(next.start) > tolerance) return false;
  }
  return !segments.empty();
}

/// The outlines of some of the curves.
BoundaryLoops outlinesOf(const BoundarySources& objects,
                         const std::vector<PlanarGraph::Index>& places, double gap) {
  OdGeCurveSegments curves;
  for (const PlanarGraph::Index place : places) curves.push_back(objects.curves[place]);
  BoundaryLoops loops = closedOutlines(curves, objects.origin, gap);
  for (BoundaryLoop& loop : loops)
    for (PlanarGraph::Index& curve : loop.curves) curve = places[curve];
  return loops;
}

} // namespace

BoundaryLoops loopsWithin(const BoundarySources& objects, IslandStyle style, double gap) {
  const double tolerance = drawingTolerance(boxAround(objects.curves), objects.origin);
  BoundaryLoops loops;
  const auto take = [&](BoundaryLoops found) {
    std::move(found.begin(), found.end(), std::back_inserter(loops));
  };
  std::vector<PlanarGraph::Index> open;
  for (PlanarGraph::Index first = 0, behind = 0; first < objects.curves.size(); first = behind) {
    while (behind < objects.curves.size() && objects.owners[behind] == objects.owners[first])
      ++behind;
    std::vector<PlanarGraph::Index> own;
    for (PlanarGraph::Index i = first; i < behind; ++i) own.push_back(i);
    if (isClosedChain(std::span(objects.curves).subspan(first, behind - first), tolerance))
      take(outlinesOf(objects, own, 0));
    else
      open.insert(open.end(), own.begin(), own.end());
  }
  if (!open.empty()) take(outlinesOf(objects, open, gap));
  setDepths(loops);
  dropIslands(loops, style);
  std::stable_sort(loops.begin(), loops.end(),
                   [](const BoundaryLoop& a, const BoundaryLoop& b) { return a.depth < b.depth; });
  if (loops.empty() || objects.texts.empty() || style == IslandStyle::kIgnore) return loops;
  return withoutTexts(loops, objects.texts, tolerance);
}

OdGePoint3d middleOf(const std::vector<OdDbObjectId>& entities) {
  OdGeExtents3d box;
  for (const OdDbObjectId& id : entities) {
    OdGeExtents3d own;
    const OdDbEntityPtr entity = id.openObject();
    if (entity && entity->getGeomExtents(own)) box.addExt(own);
  }
  if (box.isEmpty()) return {};
  const OdGePoint3d& low = box.minPoint();
  const OdGePoint3d& high = box.maxPoint();
  return {(low.x + high.x) / 2, (low.y + high.y) / 2, low.z};
}

} // namespace drafton
