#include "drafton/engine/boundary/ring_tree.h"

#include <algorithm>
#include <unordered_map>

namespace drafton {
namespace {

bool isInBox(const OdGePoint3d& p, const OdGeExtents3d& box) {
  return p.x >= box.minPoint().x && p.x <= box.maxPoint().x && p.y >= box.minPoint().y &&
         p.y <= box.maxPoint().y;
}

bool isInBox(const OdGeExtents3d& inner, const OdGeExtents3d& outer) {
  return isInBox(inner.minPoint(), outer) && isInBox(inner.maxPoint(), outer);
}

void sortByDepth(BoundaryLoops& loops) {
  std::stable_sort(loops.begin(), loops.end(),
                   [](const BoundaryLoop& a, const BoundaryLoop& b) { return a.depth < b.depth; });
}

} // namespace

RingTree::RingTree(const PlanarGraph& graph)
  : m_graph(graph)
  , m_rings(graph.rings()) {}

bool RingTree::contains(const PlanarGraph::Ring& ring, const OdGePoint3d& point) const {
  if (!isInBox(point, ring.box)) return false;
  int crossings = 0;
  for (const Index side : ring.sides)
    crossings += crossingsOfRay(m_graph.edges()[PlanarGraph::edgeOf(side)].piece, point);
  return crossings % 2 != 0;
}

RingTree::Index RingTree::ringAround(const OdGePoint3d& point) const {
  Index best = PlanarGraph::kNone;
  for (Index i = 0; i < m_rings.size(); ++i) {
    const PlanarGraph::Ring& ring = m_rings[i];
    const bool isSmaller = best == PlanarGraph::kNone || ring.area < m_rings[best].area;
    if (ring.area > 0 && isSmaller && contains(ring, point)) best = i;
  }
  return best;
}

RingTree::Index RingTree::areaAround(const PlanarGraph::Ring& outline) const {
  const OdGePoint3d& point = m_graph.nodes()[m_graph.startOf(outline.sides.front())];
  Index best = PlanarGraph::kNone;
  for (Index i = 0; i < m_rings.size(); ++i) {
    const PlanarGraph::Ring& ring = m_rings[i];
    if (ring.area <= 0 || ring.component == outline.component) continue;
    const bool isSmaller = best == PlanarGraph::kNone || ring.area < m_rings[best].area;
    if (isSmaller && isInBox(outline.box, ring.box) && contains(ring, point)) best = i;
  }
  return best;
}

BoundaryLoops RingTree::loopsIn(Index root) const {
  const PlanarGraph::Ring& outer = m_rings[root];
  // Islands that touch the outer loop at a node are a part of its walk.
  BoundaryLoops loops = loopsOf(m_graph, outer);
  std::sort(loops.begin(), loops.end(),
            [](const BoundaryLoop& a, const BoundaryLoop& b) { return a.area > b.area; });
  for (std::size_t i = 1; i < loops.size(); ++i) loops[i].depth = 1;
  const BoundaryLoops touching(loops.begin() + 1, loops.end());

  // What contains comes before what it contains.
  std::unordered_map<Index, int> depthOfComponent;
  for (const Index island : outlinesIn(outer)) {
    const PlanarGraph::Ring& outline = m_rings[island];
    const Index around = areaAround(outline);
    if (around == PlanarGraph::kNone) continue;
    const auto known = depthOfComponent.find(m_rings[around].component);
    const OdGePoint3d& point = m_graph.nodes()[m_graph.startOf(outline.sides.front())];
    int depth = 0;
    if (around == root)
      depth = 1;
    else if (known != depthOfComponent.end())
      depth = known->second + 1;
    else if (std::any_of(touching.begin(), touching.end(),
                         [&](const BoundaryLoop& loop) { return loop.contains(point); }))
      depth = 2;
    else
      continue; // it stands in a neighbouring area
    depthOfComponent[outline.component] = depth;
    for (BoundaryLoop& loop : loopsOf(m_graph, outline)) {
      loop.depth = depth;
      loops.push_back(std::move(loop));
    }
  }
  sortByDepth(loops);
  return loops;
}

std::vector<RingTree::Index> RingTree::outlinesIn(const PlanarGraph::Ring& outer) const {
  std::vector<Index> inside;
  for (Index i = 0; i < m_rings.size(); ++i)
    if (m_rings[i].area < 0 && m_rings[i].component != outer.component &&
        isInBox(m_rings[i].box, outer.box))
      inside.push_back(i);
  std::sort(inside.begin(), inside.end(),
            [&](Index a, Index b) { return m_rings[a].area < m_rings[b].area; });
  return inside;
}

BoundaryLoops RingTree::outlines() const {
  BoundaryLoops loops;
  for (const PlanarGraph::Ring& ring : m_rings)
    if (ring.area < 0)
      for (BoundaryLoop& loop : loopsOf(m_graph, ring)) loops.push_back(std::move(loop));
  setDepths(loops);
  sortByDepth(loops);
  return loops;
}

} // namespace drafton
