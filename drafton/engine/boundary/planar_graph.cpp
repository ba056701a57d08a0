#include "drafton/engine/boundary/planar_graph.h"

#include "drafton/engine/boundary/curve_index.h"
#include "drafton/engine/boundary/curve_meetings.h"
#include "drafton/engine/boundary/side_order.h"

#include <algorithm>
#include <unordered_map>

namespace drafton {

/// Finds nodes by their place.
class PlanarGraph::NodeGrid {
 public:
  NodeGrid(std::vector<OdGePoint3d>& nodes, double tolerance)
    : m_nodes(nodes)
    , m_tolerance(tolerance)
    , m_cell(2 * tolerance) {}

  /// The nearest node within the tolerance, or a new one.
  Index at(const OdGePoint3d& point) {
    const std::int64_t x = cellOf(point.x), y = cellOf(point.y);
    Index best = kNone;
    double least = m_tolerance;
    for (std::int64_t i = x - 1; i <= x + 1; ++i)
      for (std::int64_t k = y - 1; k <= y + 1; ++k) {
        const auto range = m_cells.equal_range(keyOf(i, k));
        for (auto found = range.first; found != range.second; ++found)
          if (const double d = m_nodes[found->second].distanceTo(point); d <= least) {
            least = d;
            best = found->second;
          }
      }
    if (best != kNone) return best;
    m_nodes.push_back(point);
    const Index added = static_cast<Index>(m_nodes.size() - 1);
    m_cells.emplace(keyOf(x, y), added);
    return added;
  }

 private:
  std::int64_t cellOf(double value) const {
    return static_cast<std::int64_t>(std::floor(value / m_cell));
  }
  // Cells far apart may share a key; the distance decides.
  static std::uint64_t keyOf(std::int64_t x, std::int64_t y) {
    return static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15u ^
           static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4Fu;
  }

  std::vector<OdGePoint3d>& m_nodes;
  double m_tolerance, m_cell;
  std::unordered_multimap<std::uint64_t, Index> m_cells;
};

PlanarGraph::PlanarGraph(std::span<const OdGeCurveSegment> curves, double tolerance)
  : m_tolerance(tolerance) {
  NodeGrid grid(m_nodes, tolerance);
  m_grid = &grid;
  cut(curves);
  m_grid = nullptr;
  sortSides();
}

void PlanarGraph::cut(std::span<const OdGeCurveSegment> curves) {
  std::vector<std::vector<double>> parts(curves.size());
  std::vector<CurveMeeting> meetings;
  const CurveIndex index(curves);
  index.forEachPair(m_tolerance, [&](Index a, Index b) {
    meetings.clear();
    appendMeetings(curves[a], curves[b], m_tolerance, meetings);
    for (const CurveMeeting& meeting : meetings) {
      parts[a].push_back(meeting.onFirst);
      parts[b].push_back(meeting.onSecond);
    }
  });
  // Ends are where drawings are exact: they make the nodes that crossings fall upon.
  for (const OdGeCurveSegment& curve : curves) {
    if (curve.length() <= m_tolerance) continue;
    nodeAt(curve.start);
    nodeAt(curve.end);
  }
  for (Index i = 0; i < curves.size(); ++i) addEdges(curves[i], i, std::move(parts[i]));
}

PlanarGraph::Index PlanarGraph::nodeAt(const OdGePoint3d& point) {
  const Index node = m_grid->at(point);
  if (node >= m_edgesOfNode.size()) m_edgesOfNode.resize(m_nodes.size());
  return node;
}

void PlanarGraph::addEdges(const OdGeCurveSegment& curve, Index index, std::vector<double> parts) {
  if (curve.length() <= m_tolerance) return;
  // A closed curve is cut only where others meet it.
  const bool isRing = curve.start.distanceTo(curve.end) <= m_tolerance;
  std::erase_if(parts, [](double part) { return part <= 0 || part >= 1; });
  parts.push_back(0);
  parts.push_back(1);
  std::sort(parts.begin(), parts.end());
  double last = 0;
  Index from = nodeAt(curve.start);
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const bool isEnd = i + 1 == parts.size();
    const Index to = nodeAt(isEnd ? curve.end : curve.pointAt(parts[i]));
    if (to == from) {
      const double length = curve.lengthTo(parts[i]) - curve.lengthTo(last);
      // Back at the same node: nothing, or a ring of its own.
      if (length <= 8 * m_tolerance || !isRing || curve.isLine()) continue;
    }
    Edge edge{curve.between(last, parts[i]), from, to, index};
    edge.piece.start = m_nodes[from];
    edge.piece.end = m_nodes[to];
    last = parts[i];
    from = to;
    if (isThere(edge)) continue;
    const Index added = static_cast<Index>(m_edges.size());
    m_edges.push_back(edge);
    m_edgesOfNode[edge.from].push_back(added);
    if (edge.to != edge.from) m_edgesOfNode[edge.to].push_back(added);
  }
}

bool PlanarGraph::isThere(const Edge& edge) const {
  const OdGePoint3d middle = edge.piece.pointAt(0.5);
  for (const Index other : m_edgesOfNode[edge.from]) {
    const Edge& known = m_edges[other];
    const bool hasSameEnds = (known.from == edge.from && known.to == edge.to) ||
                             (known.from == edge.to && known.to == edge.from);
    if (!hasSameEnds) continue;
    if (known.piece.isLine() && edge.piece.isLine()) return true;
    if (known.piece.pointAt(known.piece.closestTo(middle)).distanceTo(middle) <= 4 * m_tolerance)
      return true;
  }
  return false;
}

PlanarGraph::Index PlanarGraph::startOf(Index side) const {
  const Edge& edge = m_edges[edgeOf(side)];
  return side % 2 == 0 ? edge.from : edge.to;
}

OdGeCurveSegment PlanarGraph::pieceOf(Index side) const {
  const OdGeCurveSegment& piece = m_edges[edgeOf(side)].piece;
  return side % 2 == 0 ? piece : turnedRound(piece);
}

void PlanarGraph::sortSides() {
  m_leaving.assign(m_nodes.size(), {});
  m_placeInLeaving.assign(2 * m_edges.size(), 0);
  for (Index side = 0; side < 2 * m_edges.size(); ++side)
    if (m_edges[edgeOf(side)].isAlive) m_leaving[startOf(side)].push_back(side);
  std::vector<LeavingPiece> pieces;
  for (std::vector<Index>& leaving : m_leaving) {
    if (leaving.size() > 2) {
      pieces.clear();
      for (const Index side : leaving) pieces.push_back(leavingPiece(pieceOf(side), side));
      sortCounterclockwise(pieces);
      std::transform(pieces.begin(), pieces.end(), leaving.begin(),
                     [](const LeavingPiece& piece) { return piece.id; });
    }
    for (Index i = 0; i < leaving.size(); ++i) m_placeInLeaving[leaving[i]] = i;
  }
}

PlanarGraph::Index PlanarGraph::nextOf(Index side) const {
  const Index twin = twinOf(side);
  const std::vector<Index>& leaving = m_leaving[startOf(twin)];
  const Index place = m_placeInLeaving[twin];
  return leaving[place == 0 ? leaving.size() - 1 : place - 1];
}

std::vector<PlanarGraph::Ring> PlanarGraph::rings() const {
  std::vector<Ring> rings;
  std::vector<Index> ringOf(2 * m_edges.size(), kNone);
  for (Index first = 0; first < ringOf.size(); ++first) {
    if (ringOf[first] != kNone || !m_edges[edgeOf(first)].isAlive) continue;
    Ring ring;
    for (Index side = first; ringOf[side] == kNone; side = nextOf(side)) {
      ringOf[side] = static_cast<Index>(rings.size());
      ring.sides.push_back(side);
      const OdGeCurveSegment& piece = m_edges[edgeOf(side)].piece;
      ring.area += side % 2 == 0 ? sweptArea(piece) : -sweptArea(piece);
      ring.box.addExt(piece.extents());
    }
    rings.push_back(std::move(ring));
  }
  // The rings on the two sides of an edge belong together.
  std::vector<Index> parent(rings.size());
  for (Index i = 0; i < parent.size(); ++i) parent[i] = i;
  const auto rootOf = [&](Index ring) {
    while (parent[ring] != ring) ring = parent[ring] = parent[parent[ring]];
    return ring;
  };
  for (Index side = 0; side < ringOf.size(); side += 2)
    if (ringOf[side] != kNone) parent[rootOf(ringOf[side])] = rootOf(ringOf[side + 1]);
  // They may also share no more than a node.
  for (const std::vector<Index>& leaving : m_leaving)
    for (const Index side : leaving) parent[rootOf(ringOf[side])] = rootOf(ringOf[leaving.front()]);
  for (Index i = 0; i < rings.size(); ++i) rings[i].component = rootOf(i);
  return rings;
}

void PlanarGraph::dropLooseEdges() {
  std::vector<Index> ringOf(2 * m_edges.size(), kNone);
  const std::vector<Ring> all = rings();
  for (Index i = 0; i < all.size(); ++i)
    for (const Index side : all[i].sides) ringOf[side] = i;
  for (Index edge = 0; edge < m_edges.size(); ++edge)
    if (m_edges[edge].isAlive && ringOf[2 * edge] == ringOf[2 * edge + 1]) drop(edge);
  sortSides();
}

} // namespace drafton
