// Curves cut at their crossings, and the areas between them.
#pragma once

#include "drafton/engine/boundary/flat_segment.h"

#include <cstdint>
#include <span>

namespace drafton {

/// Takes curves, cuts them where they meet, and joins the pieces at common nodes. Each piece is an
/// edge with two sides; walking along sides, with the area to the left, gives the rings around the
/// areas: counterclockwise ones around an area, clockwise ones around what stands in an area.
class PlanarGraph {
 public:
  using Index = std::uint32_t;
  static constexpr Index kNone = ~Index{0};

  /// A piece of one of the curves.
  struct Edge {
    OdGeCurveSegment piece; ///< its ends are those of its nodes
    Index from, to;         ///< nodes
    Index curve;            ///< the first curve that runs here
    bool isAlive = true;
  };

  struct Ring {
    std::vector<Index> sides; ///< in the order of the walk
    double area = 0;          ///< above 0 if it runs counterclockwise
    OdGeExtents3d box;
    Index component = kNone; ///< rings of one component hang together
  };

  /// `curves` are flat (flat_segment.h). Nodes nearer than `tolerance` are one; shorter pieces
  /// vanish, of pieces that lie upon each other one is kept.
  PlanarGraph(std::span<const OdGeCurveSegment> curves, double tolerance);

  double tolerance() const { return m_tolerance; }
  const std::vector<OdGePoint3d>& nodes() const { return m_nodes; }
  const std::vector<Edge>& edges() const { return m_edges; }

  // Side 2e runs along edge e, side 2e + 1 against it.

  static Index twinOf(Index side) { return side ^ 1; }
  static Index edgeOf(Index side) { return side / 2; }
  Index startOf(Index side) const;
  Index endOf(Index side) const { return startOf(twinOf(side)); }
  /// The piece in the direction of the side.
  OdGeCurveSegment pieceOf(Index side) const;
  /// The living sides that leave a node, counterclockwise.
  const std::vector<Index>& sidesAt(Index node) const { return m_leaving[node]; }

  /// Takes away edges that have the same area on both sides: loose ends, and links between things
  /// that are closed by themselves.
  void dropLooseEdges();
  /// The rings of all living edges.
  std::vector<Ring> rings() const;
  /// Takes an edge away.
  void drop(Index edge) { m_edges[edge].isAlive = false; }
  /// Brings sidesAt() up to date after drop().
  void sortSides();

 private:
  void cut(std::span<const OdGeCurveSegment> curves);
  void addEdges(const OdGeCurveSegment& curve, Index index, std::vector<double> parts);
  bool isThere(const Edge& edge) const;
  Index nodeAt(const OdGePoint3d& point);
  Index nextOf(Index side) const;

  double m_tolerance;
  std::vector<OdGePoint3d> m_nodes;
  std::vector<Edge> m_edges;
  std::vector<std::vector<Index>> m_leaving;
  std::vector<Index> m_placeInLeaving; // by side
  std::vector<std::vector<Index>> m_edgesOfNode;
  class NodeGrid;
  NodeGrid* m_grid = nullptr; // while cutting
};

} // namespace drafton
