#include "drafton/engine/boundary/side_order.h"

#include <algorithm>

namespace drafton {
namespace {

/// Directions that differ by less than this (radians) may be the same one.
constexpr double kSameDirection = 1e-5;

using Place = std::vector<LeavingPiece>::iterator;

/// Sorts pieces with nearly the same direction by where they are a little further on.
void sortByBend(Place begin, Place end) {
  double reach = begin->length;
  for (Place piece = begin; piece != end; ++piece) reach = std::min(reach, piece->length);
  const auto directionFurtherOn = [&](const LeavingPiece& piece) {
    return piece.angle + piece.curvature * reach / 4;
  };
  std::sort(begin, end, [&](const LeavingPiece& a, const LeavingPiece& b) {
    return directionFurtherOn(a) < directionFurtherOn(b);
  });
}

} // namespace

LeavingPiece leavingPiece(const OdGeCurveSegment& piece, std::uint32_t id) {
  const OdGeVector3d direction = piece.isLine() ? piece.end - piece.start : piece.derivAt(0);
  return {id, std::atan2(direction.y, direction.x), curvatureAt(piece, 0), piece.length()};
}

void sortCounterclockwise(std::vector<LeavingPiece>& pieces) {
  std::sort(pieces.begin(), pieces.end(),
            [](const LeavingPiece& a, const LeavingPiece& b) { return a.angle < b.angle; });
  // The pieces to both sides of the direction -x are neighbours: those at its far end are counted
  // on from the near end.
  if (pieces.front().angle + 2 * kOdaPi - pieces.back().angle < kSameDirection) {
    while (pieces.back().angle > kOdaPi / 2 &&
           pieces.front().angle + 2 * kOdaPi - pieces.back().angle < kSameDirection) {
      LeavingPiece last = pieces.back();
      last.angle -= 2 * kOdaPi;
      pieces.pop_back();
      pieces.insert(pieces.begin(), last);
    }
  }
  for (Place begin = pieces.begin(); begin != pieces.end();) {
    Place end = begin + 1;
    while (end != pieces.end() && end->angle - (end - 1)->angle < kSameDirection) ++end;
    if (end - begin > 1) sortByBend(begin, end);
    begin = end;
  }
}

} // namespace drafton
