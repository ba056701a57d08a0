#include "drawing/entities/flat_polyline.h"

#include "drawing/graphics/world_draw.h"

#include <algorithm>
#include <optional>

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

/// A place of a wide piece in its plane.
struct Place {
  OdGePoint2d middle, left, right;
};
using Places = std::vector<Place>;

Place square(const OdGePoint2d& at, const OdGePoint2d& along, double width) {
  const OdGePoint2d across{-along.y * width / 2, along.x * width / 2};
  return {at, {at.x + across.x, at.y + across.y}, {at.x - across.x, at.y - across.y}};
}

/// A wide piece from its start to its end.
Places placesOf(const OdDbFlatPolyline::Corner& from, const OdGePoint2d& to, double deviation) {
  Places places;
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
    places.push_back(square(piece.pointAt(part), piece.directionAt(part),
                            from.startWidth + (from.endWidth - from.startWidth) * part));
  }
  return places;
}

/// Moves the ends of two edges of straight pieces to where they meet.
void miter(Places& a, Places& b, OdGePoint2d Place::*edge, double width) {
  const OdGeFlatPiece first(a[a.size() - 2].*edge, a.back().*edge, 0);
  const OdGeFlatPiece second(b[0].*edge, b[1].*edge, 0);
  const auto meeting = odge::meetings(first, second, true);
  if (meeting.empty()) return;
  const OdGePoint2d tip = first.pointAt(meeting[0].first);
  if (tip.distanceTo(a.back().*edge) > 2 * width) return;
  a.back().*edge = tip;
  b.front().*edge = tip;
}

/// Puts a straight end behind each slanted one of a straight piece, so that dashes between them end
/// straight.
void squareOff(Places& places, const OdDbFlatPolyline::Corner& corner) {
  const Place start = places.front(), end = places.back();
  const double length = start.middle.distanceTo(end.middle);
  if (places.size() != 2 || !(length > 0)) return;
  const OdGePoint2d along{(end.middle.x - start.middle.x) / length,
                          (end.middle.y - start.middle.y) / length};
  const auto depth = [&](const Place& place, double side) {
    double deepest = 0;
    for (const OdGePoint2d& edge : {place.left, place.right})
      deepest = std::max(deepest, side * ((edge.x - place.middle.x) * along.x +
                                          (edge.y - place.middle.y) * along.y));
    return deepest;
  };
  const auto add = [&](double at) {
    const double width = corner.startWidth + (corner.endWidth - corner.startWidth) * at / length;
    places.insert(
        places.end() - 1,
        square({start.middle.x + along.x * at, start.middle.y + along.y * at}, along, width));
  };
  const double first = depth(start, 1), last = depth(end, -1);
  const double slack = 1e-9 * length;
  if (first + last >= length) return;
  if (first > slack) add(first);
  if (last > slack) add(length - last);
}

/// What is missing at the outside of a corner between two square ends, as a piece without length.
std::optional<Places> bevel(const Place& end, const Place& start) {
  const double turn = (end.left.x - end.middle.x) * (start.left.y - end.middle.y) -
                      (end.left.y - end.middle.y) * (start.left.x - end.middle.x);
  if (turn == 0) return std::nullopt;
  const OdGePoint2d& m = end.middle;
  if (turn > 0) return Places{{m, m, end.right}, {m, m, start.right}};
  return Places{{m, end.left, m}, {m, start.left, m}};
}

} // namespace

void OdDbFlatPolyline::drawWide(OdGiWorldDraw& draw, bool dashesRunThrough) const {
  // The edges of wide arcs show their chords more than thin ones do.
  const double deviation = draw.deviation() / 4;
  std::vector<Places> all;
  for (std::size_t i = 0; i < pieces(); ++i)
    all.push_back(placesOf(corners[i], after(i).point, deviation));
  std::vector<std::optional<Places>> bevels(all.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    const std::size_t next = (i + 1) % all.size();
    if (next == 0 && !closed) break;
    const double width = corners[i].endWidth;
    if (!(width > 0) || width != corners[next].startWidth || next == i) continue;
    if (corners[i].bulge == 0 && corners[next].bulge == 0) {
      miter(all[i], all[next], &Place::left, width);
      miter(all[i], all[next], &Place::right, width);
    }
    bevels[i] = bevel(all[i].back(), all[next].front());
  }
  const auto space = [&](const OdGePoint2d& p) { return toWorld * OdGePoint3d{p.x, p.y, 0}; };
  std::vector<OdGiWidePoint> wide;
  const auto append = [&](const Places& places) {
    for (const Place& p : places)
      wide.push_back({space(p.middle), space(p.left), space(p.right), &p == &places.front()});
  };
  const auto flush = [&] {
    if (!wide.empty()) draw.wideLine(wide, dashesRunThrough);
    wide.clear();
  };
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (corners[i].startWidth == 0 && corners[i].endWidth == 0) {
      flush();
      std::vector<OdGePoint3d> line;
      for (const Place& p : all[i]) line.push_back(space(p.middle));
      draw.polyline(line, false);
      continue;
    }
    if (corners[i].bulge == 0) squareOff(all[i], corners[i]);
    append(all[i]);
    if (bevels[i]) append(*bevels[i]);
  }
  flush();
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
      for (const Place& place : placesOf(corners[i], after(i).point, 1))
        for (const OdGePoint2d& p : {place.left, place.right})
          box.addPoint(toWorld * OdGePoint3d{p.x, p.y, 0});
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

std::vector<OdDbFlatPolyline::ChordCorner>
OdDbFlatPolyline::chordsOf(const OdGeCurveSegments& segments, const OdGeMatrix3d& worldToPlane) {
  // Fine enough that nobody sees the chords at the size of the piece.
  constexpr double kDeviation = 1e-3;
  std::vector<ChordCorner> corners;
  const auto add = [&](const OdGePoint3d& point, std::size_t piece, double part) {
    const OdGePoint3d q = worldToPlane * point;
    corners.push_back({{q.x, q.y}, piece, part});
  };
  std::vector<OdGePoint3d> points;
  for (std::size_t piece = 0; piece < segments.size(); ++piece) {
    const OdGeCurveSegment& s = segments[piece];
    points.clear();
    if (s.isLine()) {
      points = {s.start, s.end};
    } else {
      const double size = std::max(s.u.length(), s.v.length());
      odgi::appendChords({s.center, s.u, s.v, s.from, s.sweep}, kDeviation * size, points);
    }
    const double chords = static_cast<double>(points.size() - 1);
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
      add(points[i], piece, static_cast<double>(i) / chords);
  }
  if (!points.empty()) add(points.back(), segments.size(), 0);
  return corners;
}
