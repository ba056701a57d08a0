#include "drawing/graphics/world_draw.h"

#include <algorithm>

namespace {

/// Curves never get coarser than this many chords a turn, nor finer than that.
constexpr double kFewestChords = 8, kMostChords = 4096;

} // namespace

void OdGiWorldDraw::endless(const OdGePoint3d&, const OdGeVector3d&, bool) {}
void OdGiWorldDraw::setPieceLinetype(OdDbObjectId) {}

void OdGiWorldDraw::wideLine(std::span<const OdGiWidePoint> points, bool) {
  std::vector<OdGePoint3d> ring;
  while (!points.empty()) {
    points = points.subspan(odgi::outlineOf(points, ring));
    area({ring});
  }
}

std::size_t odgi::outlineOf(std::span<const OdGiWidePoint> points, std::vector<OdGePoint3d>& ring) {
  std::size_t count = 1;
  while (count < points.size() && !points[count].startsPiece) ++count;
  ring.clear();
  for (std::size_t i = 0; i < count; ++i) ring.push_back(points[i].left);
  for (std::size_t i = count; i-- > 0;) ring.push_back(points[i].right);
  return count;
}

void OdGiWorldDraw::arc(const OdGiArc& arc) {
  std::vector<OdGePoint3d> points;
  odgi::appendChords(arc, deviation(), points);
  const bool closed = arc.isClosed();
  if (closed) points.pop_back();
  polyline(points, closed);
}

void odgi::appendChords(const OdGiArc& arc, double deviation, std::vector<OdGePoint3d>& points) {
  const double radius = std::max(arc.u.length(), arc.v.length());
  // A chord over the angle a leaves its circle by r (1 - cos a/2).
  double perTurn = kFewestChords;
  if (radius > deviation && deviation > 0)
    perTurn = std::clamp(kOdaPi / std::acos(1 - deviation / radius), kFewestChords, kMostChords);
  const int count =
      std::max(1, static_cast<int>(std::ceil(perTurn * std::abs(arc.sweep) / (2 * kOdaPi))));
  points.reserve(points.size() + static_cast<std::size_t>(count) + 1);
  for (int i = 0; i <= count; ++i) points.push_back(arc.pointAt(arc.start + arc.sweep * i / count));
}

OdGeExtents3d odgi::extentsOf(const OdGiArc& arc) {
  OdGeExtents3d box;
  box.addPoint(arc.pointAt(arc.start));
  box.addPoint(arc.pointAt(arc.start + arc.sweep));
  const double from = std::min(arc.start, arc.start + arc.sweep);
  const double to = std::max(arc.start, arc.start + arc.sweep);
  // Each coordinate turns back where u cos t + v sin t is steepest, and half a turn from there.
  for (const double turn :
       {std::atan2(arc.v.x, arc.u.x), std::atan2(arc.v.y, arc.u.y), std::atan2(arc.v.z, arc.u.z)}) {
    for (double t = turn + kOdaPi * std::ceil((from - turn) / kOdaPi); t <= to; t += kOdaPi)
      box.addPoint(arc.pointAt(t));
  }
  return box;
}
