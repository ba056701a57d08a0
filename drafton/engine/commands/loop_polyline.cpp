#include "drafton/engine/commands/loop_polyline.h"

#include <algorithm>

namespace drafton {
namespace {

void addVertex(OdDbPolyline& polyline, const OdGePoint3d& point, double bulge = 0) {
  polyline.addVertexAt(polyline.numVerts(), {point.x, point.y}, bulge);
}

/// Adds the corners of a piece without its end, which is the start of the next one.
void addPiece(OdDbPolyline& polyline, const OdGeCurveSegment& piece, double deviation) {
  if (piece.isLine()) return addVertex(polyline, piece.start);
  const double turn = crossOf(piece.u, piece.v) < 0 ? -piece.sweep : piece.sweep;
  if (piece.isCircular()) {
    // A bulge reaches less than a full turn.
    const int parts = std::abs(turn) > 1.5 * kOdaPi ? 2 : 1;
    for (int i = 0; i < parts; ++i)
      addVertex(polyline, i == 0 ? piece.start : piece.pointAt(0.5), std::tan(turn / parts / 4));
    return;
  }
  const double longest = std::max(piece.u.length(), piece.v.length());
  const double step = 2 * std::acos(1 - std::min(deviation / longest, 1.0));
  const int chords = std::max(2, static_cast<int>(std::ceil(std::abs(piece.sweep) / step)));
  for (int i = 0; i < chords; ++i)
    addVertex(polyline, i == 0 ? piece.start : piece.pointAt(static_cast<double>(i) / chords));
}

} // namespace

OdDbPolylinePtr polylineOf(const BoundaryLoop& loop, double elevation) {
  const OdDbPolylinePtr polyline = odrxMake<OdDbPolyline>();
  const OdGeVector3d size = loop.box.maxPoint() - loop.box.minPoint();
  const double deviation = std::max(size.x, size.y) / 20000;
  for (const OdGeCurveSegment& piece : loop.pieces) addPiece(*polyline, piece, deviation);
  polyline->setClosed(true);
  polyline->setElevation(elevation);
  return polyline;
}

} // namespace drafton
