#include "drawing/entities/flat_polyline.h"

#include "drawing/graphics/world_draw.h"

#include <algorithm>

OdGeFlatPath OdDbFlatPolyline::path() const {
  OdGeFlatPath path;
  path.closed = closed;
  for (const Corner& c : corners) path.corners.push_back({c.point, c.bulge});
  return path;
}

bool OdDbFlatPolyline::isWide() const {
  for (std::size_t i = 0; i < pieces(); ++i)
    if (corners[i].startWidth != 0 || corners[i].endWidth != 0) return true;
  return false;
}

void OdDbFlatPolyline::appendSegments(OdGeCurveSegments& segments) const {
  const auto space = [&](const OdGePoint2d& p) { return toWorld * OdGePoint3d{p.x, p.y, 0}; };
  for (std::size_t i = 0; i < pieces(); ++i) {
    const OdGeFlatPiece p(corners[i].point, after(i).point, corners[i].bulge);
    if (p.isLine()) {
      segments.push_back(OdGeCurveSegment::line(space(p.start), space(p.end)));
      continue;
    }
    OdGeCurveSegment arc =
        OdGeCurveSegment::arc(space(p.center), toWorld * OdGeVector3d{p.radius, 0, 0},
                              toWorld * OdGeVector3d{0, p.radius, 0}, p.from, p.sweep);
    // The corners themselves, so that pieces meet to the last digit.
    arc.start = space(p.start);
    arc.end = space(p.end);
    segments.push_back(arc);
  }
}

namespace {

/// The two edges of a wide piece, from its start to its end.
struct Edges {
  std::vector<OdGePoint2d> left, right;
};

Edges edgesOf(const OdDbFlatPolyline::Corner& from, const OdGePoint2d& to, double deviation) {
  Edges edges;
  const OdGeFlatPiece piece(from.point, to, from.bulge);
  int chords = 1;
  if (!piece.isLine()) {
    std::vector<OdGePoint3d> points;
    const double r = piece.radius + std::max(from.startWidth, from.endWidth) / 2;
    odgi::appendChords({{}, {r, 0, 0}, {0, r, 0}, 0, piece.sweep}, deviation, points);
    chords = static_cast<int>(points.size()) - 1;
  }
  for (int i = 0; i <= chords; ++i) {
    const double part = static_cast<double>(i) / chords;
    const double half = (from.startWidth + (from.endWidth - from.startWidth) * part) / 2;
    const OdGePoint2d at = piece.pointAt(part);
    const OdGePoint2d along = piece.directionAt(part);
    edges.left.push_back({at.x - along.y * half, at.y + along.x * half});
    edges.right.push_back({at.x + along.y * half, at.y - along.x * half});
  }
  return edges;
}

/// Moves the ends of two edges of straight pieces to where they meet.
void miter(std::vector<OdGePoint2d>& a, std::vector<OdGePoint2d>& b, double width) {
  const OdGeFlatPiece first(a[a.size() - 2], a.back(), 0);
  const OdGeFlatPiece second(b[0], b[1], 0);
  const auto meeting = odge::meetings(first, second, true);
  if (meeting.empty()) return;
  const OdGePoint2d tip = first.pointAt(meeting[0].first);
  if (tip.distanceTo(a.back()) > 2 * width) return;
  a.back() = tip;
  b.front() = tip;
}

} // namespace

void OdDbFlatPolyline::drawWide(OdGiWorldDraw& draw) const {
  std::vector<Edges> all;
  for (std::size_t i = 0; i < pieces(); ++i)
    all.push_back(edgesOf(corners[i], after(i).point, draw.deviation()));
  for (std::size_t i = 0; i < all.size(); ++i) {
    const std::size_t next = (i + 1) % all.size();
    if (next == 0 && !closed) break;
    const double width = corners[i].endWidth;
    const bool meet = width > 0 && width == corners[next].startWidth && corners[i].bulge == 0 &&
                      corners[next].bulge == 0 && next != i;
    if (!meet) continue;
    miter(all[i].left, all[next].left, width);
    miter(all[i].right, all[next].right, width);
  }
  const auto space = [&](const OdGePoint2d& p) { return toWorld * OdGePoint3d{p.x, p.y, 0}; };
  for (std::size_t i = 0; i < all.size(); ++i) {
    std::vector<OdGePoint3d> ring;
    for (const OdGePoint2d& p : all[i].left) ring.push_back(space(p));
    if (corners[i].startWidth == 0 && corners[i].endWidth == 0) {
      draw.polyline(ring, false);
      continue;
    }
    std::for_each(all[i].right.rbegin(), all[i].right.rend(),
                  [&](const OdGePoint2d& p) { ring.push_back(space(p)); });
    draw.area({ring});
  }
}

OdGeExtents3d OdDbFlatPolyline::extents() const {
  OdGeExtents3d box;
  OdGeCurveSegments segments;
  appendSegments(segments);
  for (std::size_t i = 0; i < segments.size(); ++i) {
    const OdGeCurveSegment& s = segments[i];
    const double half = std::max(corners[i].startWidth, corners[i].endWidth) / 2;
    if (half == 0) {
      box.addExt(s.extents());
    } else if (!s.isLine()) {
      for (const double r : {s.radius() + half, std::max(s.radius() - half, 0.0)}) {
        const double f = r / s.radius();
        box.addExt(OdGeCurveSegment::arc(s.center, s.u * f, s.v * f, s.from, s.sweep).extents());
      }
    } else {
      const Edges edges = edgesOf(corners[i], after(i).point, 1);
      for (const auto* edge : {&edges.left, &edges.right})
        for (const OdGePoint2d& p : *edge) box.addPoint(toWorld * OdGePoint3d{p.x, p.y, 0});
    }
  }
  return box;
}

std::vector<OdDbFlatPolyline::Corner> OdDbFlatPolyline::between(double first, double second) const {
  std::vector<Corner> cut;
  const std::size_t count = pieces();
  const double limit = static_cast<double>(count);
  // A piece through the start of a closed polyline goes on behind its end.
  if (second <= first) second += limit;
  double at = first;
  while (at < second) {
    const auto index = static_cast<std::size_t>(std::floor(at));
    const double next = std::min(std::floor(at) + 1, second);
    const Corner& c = corners[index % count];
    const OdGeFlatPiece whole(c.point, after(index % count).point, c.bulge);
    const double a = at - static_cast<double>(index);
    const double b = next - static_cast<double>(index);
    const auto width = [&](double part) {
      return c.startWidth + (c.endWidth - c.startWidth) * part;
    };
    const OdGeFlatPiece piece = a == 0 && b == 1 ? whole : whole.between(a, b);
    cut.push_back({piece.start, piece.bulge, width(a), width(b)});
    at = next;
    if (at >= second) cut.push_back({piece.end, 0, width(b), width(b)});
  }
  return cut;
}

std::vector<OdGePoint2d> OdDbFlatPolyline::chordsOf(const OdGeCurveSegments& segments,
                                                    const OdGeMatrix3d& worldToPlane) {
  // Fine enough that nobody sees the chords at the size of the piece.
  constexpr double kDeviation = 1e-3;
  std::vector<OdGePoint3d> points;
  for (const OdGeCurveSegment& s : segments) {
    if (!points.empty()) points.pop_back();
    if (s.isLine()) {
      points.push_back(s.start);
      points.push_back(s.end);
    } else {
      const double size = std::max(s.u.length(), s.v.length());
      odgi::appendChords({s.center, s.u, s.v, s.from, s.sweep}, kDeviation * size, points);
    }
  }
  std::vector<OdGePoint2d> flat;
  for (const OdGePoint3d& p : points) {
    const OdGePoint3d q = worldToPlane * p;
    flat.push_back({q.x, q.y});
  }
  return flat;
}
