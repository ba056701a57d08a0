// The closed area around a point.
#pragma once

#include "drafton/engine/boundary/boundary_loop.h"
#include "drafton/engine/boundary/curve_index.h"

#include <optional>

namespace drafton {

/// Finds areas among curves. The curves are cut at their crossings only as far around a point as
/// its area reaches, so that a search in a large drawing takes no longer than one in a small one.
class BoundarySearch {
 public:
  enum class Outcome {
    kFound,
    kOpen,    ///< nothing closed around the point
    kOnCurve, ///< the point lies on a curve: it has no area around it
  };
  struct Result {
    Outcome outcome = Outcome::kOpen;
    /// The outer loop first, then the islands by their depth.
    BoundaryLoops loops;
  };

  /// `curves` and `texts` (boxes of texts, that islands keep free) are flat (flat_segment.h);
  /// `origin` is where their 0 lies. Gaps up to `gap` are closed.
  BoundarySearch(OdGeCurveSegments curves, BoundaryLoops texts, const OdGePoint3d& origin,
                 double gap);

  /// The smallest area around a point of the curves' coordinates.
  Result around(const OdGePoint3d& point, IslandStyle style) const;

  const OdGeCurveSegments& curves() const { return m_curves; }

 private:
  struct Window;
  Window window(const OdGePoint3d& center, double half) const;
  std::optional<Result> searchIn(const Window& window, const OdGePoint3d& point) const;
  void keepTextsFree(BoundaryLoops& loops) const;

  OdGeCurveSegments m_curves;
  BoundaryLoops m_texts;
  OdGePoint3d m_origin;
  double m_gap;
  OdGeExtents3d m_box;
  CurveIndex m_index;
};

/// Everything that is closed among curves: the outlines of what hangs together, by their depth.
BoundaryLoops closedOutlines(const OdGeCurveSegments& curves, const OdGePoint3d& origin,
                             double gap);

} // namespace drafton
