#include "drafton/engine/hatch_loops.h"

namespace drafton {
namespace {

int flagsOf(const HatchLoop& loop) {
  int flags = loop.isPicked ? OdDbHatchLoop::kDerived : 0;
  if (loop.loop.isText)
    flags |= OdDbHatchLoop::kTextbox;
  else if (loop.loop.depth == 0)
    flags |= OdDbHatchLoop::kExternal;
  else if (loop.loop.depth == 1)
    flags |= OdDbHatchLoop::kOutermost;
  return flags;
}

} // namespace

BoundaryLoop placedLoop(const BoundaryLoop& flat, const OdGePoint3d& origin, double elevation) {
  const OdGeMatrix3d toWorld = OdGeMatrix3d::translation({origin.x, origin.y, elevation});
  BoundaryLoop placed = flat;
  for (OdGeCurveSegment& piece : placed.pieces) {
    // The ends are moved by themselves, so that the pieces still meet exactly.
    const OdGePoint3d start = toWorld * piece.start, end = toWorld * piece.end;
    piece = piece.transformed(toWorld);
    piece.start = start;
    piece.end = end;
  }
  placed.box = boxAround(placed.pieces);
  return placed;
}

std::vector<HatchLoop> placedLoops(const BoundaryLoops& flat, const BoundarySources& sources,
                                   double elevation, bool isPicked) {
  std::vector<HatchLoop> loops;
  for (const BoundaryLoop& loop : flat)
    loops.push_back(
        {placedLoop(loop, sources.origin, elevation), sources.ownersOf(loop.curves), isPicked});
  return loops;
}

std::vector<OdDbHatchLoop> boundaryOf(const std::vector<HatchLoop>& loops, bool isAssociative) {
  std::vector<OdDbHatchLoop> boundary;
  for (const HatchLoop& loop : loops) {
    boundary.push_back(OdDbHatchLoop::fromSegments(loop.loop.pieces, flagsOf(loop)));
    if (isAssociative) boundary.back().sources = loop.sources;
  }
  return boundary;
}

} // namespace drafton
