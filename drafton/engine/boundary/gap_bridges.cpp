#include "drafton/engine/boundary/gap_bridges.h"

#include "drafton/engine/boundary/curve_index.h"
#include "drafton/engine/boundary/curve_meetings.h"

#include <algorithm>
#include <optional>

namespace drafton {
namespace {

using Index = PlanarGraph::Index;

OdGeCurveSegments piecesOf(const PlanarGraph& graph) {
  OdGeCurveSegments pieces;
  for (const PlanarGraph::Edge& edge : graph.edges()) pieces.push_back(edge.piece);
  return pieces;
}

OdGeExtents3d around(const OdGePoint3d& point) {
  OdGeExtents3d box;
  box.addPoint(point);
  return box;
}

/// The search for what the loose ends of one graph may be joined to.
class Bridges {
 public:
  Bridges(const PlanarGraph& graph, double gap)
    : m_graph(graph)
    , m_gap(gap)
    , m_pieces(piecesOf(graph))
    , m_index(m_pieces) {
    for (Index node = 0; node < graph.nodes().size(); ++node)
      if (graph.sidesAt(node).size() == 1) m_ends.push_back(node);
  }

  OdGeCurveSegments find() {
    for (const Index end : m_ends) {
      const std::size_t before = m_bridges.size();
      joinEnds(end);
      goOn(end);
      if (m_bridges.size() == before) joinNearest(end);
    }
    return std::move(m_bridges);
  }

 private:
  const OdGePoint3d& at(Index node) const { return m_graph.nodes()[node]; }
  Index sideAt(Index end) const { return m_graph.sidesAt(end).front(); }

  void bridge(const OdGePoint3d& from, const OdGePoint3d& to) {
    m_bridges.push_back(OdGeCurveSegment::line(from, to));
  }

  /// To the nearest loose ends. A door has two on each side, and the nearest one may be that of the
  /// wall's other face, so the nearest alone is not enough.
  void joinEnds(Index end) {
    constexpr std::size_t kMost = 4;
    std::vector<std::pair<double, Index>> others;
    for (const Index piece : m_index.in(around(at(end)), m_gap)) {
      const PlanarGraph::Edge& edge = m_graph.edges()[piece];
      for (const Index node : {edge.from, edge.to}) {
        const bool isOwnLine = PlanarGraph::edgeOf(sideAt(end)) == piece && edge.piece.isLine();
        const double distance = at(node).distanceTo(at(end));
        if (node != end && !isOwnLine && m_graph.sidesAt(node).size() == 1 && distance <= m_gap)
          others.emplace_back(distance, node);
      }
    }
    std::sort(others.begin(), others.end());
    others.erase(std::unique(others.begin(), others.end()), others.end());
    if (others.size() > kMost) others.resize(kMost);
    for (const auto& [distance, node] : others) bridge(at(end), at(node));
  }

  /// On in the direction of the loose end.
  void goOn(Index end) {
    const OdGeVector3d back = m_graph.pieceOf(sideAt(end)).derivAt(0).normal();
    const OdGeCurveSegment way = OdGeCurveSegment::line(at(end), at(end) - back * m_gap);
    double nearest = 2;
    std::vector<CurveMeeting> meetings;
    for (const Index piece : m_index.in(way.extents())) {
      meetings.clear();
      appendMeetings(way, m_pieces[piece], m_graph.tolerance(), meetings);
      for (const CurveMeeting& meeting : meetings)
        if (meeting.onFirst * m_gap > 2 * m_graph.tolerance())
          nearest = std::min(nearest, meeting.onFirst);
    }
    if (nearest <= 1) bridge(at(end), way.pointAt(nearest));
  }

  /// Straight to the nearest piece that is not simply the next one on the way back.
  void joinNearest(Index end) {
    const PlanarGraph::Edge& own = m_graph.edges()[PlanarGraph::edgeOf(sideAt(end))];
    const Index inner = own.from == end ? own.to : own.from;
    const bool isStub = own.piece.length() <= m_gap;
    std::optional<OdGePoint3d> nearest;
    double least = m_gap;
    for (const Index piece : m_index.in(around(at(end)), m_gap)) {
      const PlanarGraph::Edge& edge = m_graph.edges()[piece];
      if (&edge == &own || (isStub && (edge.from == inner || edge.to == inner))) continue;
      const OdGePoint3d foot = edge.piece.pointAt(edge.piece.closestTo(at(end)));
      if (const double distance = foot.distanceTo(at(end)); distance <= least) {
        least = distance;
        nearest = foot;
      }
    }
    if (nearest) bridge(at(end), *nearest);
  }

  const PlanarGraph& m_graph;
  double m_gap;
  OdGeCurveSegments m_pieces;
  CurveIndex m_index;
  std::vector<Index> m_ends;
  OdGeCurveSegments m_bridges;
};

} // namespace

OdGeCurveSegments gapBridges(const PlanarGraph& graph, double gap) {
  return Bridges(graph, gap).find();
}

} // namespace drafton
