// The order of pieces around the point where they begin.
#pragma once

#include "drafton/engine/boundary/flat_segment.h"

#include <cstdint>

namespace drafton {

/// How a piece leaves its start.
struct LeavingPiece {
  std::uint32_t id;
  double angle;     ///< of its direction there, from -pi to pi
  double curvature; ///< above 0 to the left
  double length;
};

LeavingPiece leavingPiece(const OdGeCurveSegment& piece, std::uint32_t id);

/// Sorts pieces that leave one point counterclockwise. Pieces that leave in the same direction are
/// told apart by the way they bend.
void sortCounterclockwise(std::vector<LeavingPiece>& pieces);

} // namespace drafton
