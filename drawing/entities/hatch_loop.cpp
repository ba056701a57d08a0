#include "drawing/entities/hatch_loop.h"

#include "drawing/geometry/nurbs.h"
#include "drawing/graphics/world_draw.h"

namespace {

using namespace OdHatchEdge;

constexpr double kTurn = 2 * kOdaPi;

OdGePoint3d lifted(const OdGePoint2d& p) { return {p.x, p.y, 0}; }
OdGePoint2d flat(const OdGePoint3d& p) { return {p.x, p.y}; }
OdGeVector3d direction(const OdGePoint2d& p) { return {p.x, p.y, 0}; }
OdGePoint2d moved(const OdGeMatrix3d& m, const OdGePoint2d& p) { return flat(m * lifted(p)); }
OdGePoint2d turned(const OdGeMatrix3d& m, const OdGePoint2d& v) {
  const OdGeVector3d d = m * direction(v);
  return {d.x, d.y};
}

/// The sweep from one angle to another, above 0.
double sweepOf(double start, double end) {
  const double sweep = std::fmod(end - start, kTurn);
  if (std::abs(end - start) >= kTurn - 1e-12) return kTurn;
  return sweep <= 0 ? sweep + kTurn : sweep;
}

/// The angle next to another one that points in a direction.
double nextTo(double angle, double y, double x) {
  return angle + std::remainder(std::atan2(y, x) - angle, kTurn);
}

/// The parameter of an ellipse at an angle from its major axis, and back; both lie in the same
/// quarter, so that full turns stay.
double paramOf(double angle, double ratio) {
  return nextTo(angle, std::sin(angle), ratio * std::cos(angle));
}
double angleOf(double param, double ratio) {
  return nextTo(param, ratio * std::sin(param), std::cos(param));
}

OdGeCurveSegment segmentOf(const Arc& arc) {
  const double sense = arc.counterclockwise ? 1 : -1;
  return OdGeCurveSegment::arc(lifted(arc.center), {arc.radius, 0, 0}, {0, arc.radius, 0},
                               sense * arc.startAngle,
                               sense * sweepOf(arc.startAngle, arc.endAngle));
}

OdGeCurveSegment segmentOf(const Ellipse& e) {
  const double sense = e.counterclockwise ? 1 : -1;
  const double from = paramOf(e.startAngle, e.ratio);
  const double sweep = sweepOf(from, paramOf(e.endAngle, e.ratio));
  return OdGeCurveSegment::arc(lifted(e.center), direction(e.majorAxis),
                               OdGeVector3d{-e.majorAxis.y, e.majorAxis.x, 0} * e.ratio,
                               sense * from, sense * sweep);
}

OdGeNurbs nurbsOf(const Spline& spline) {
  OdGeNurbs curve;
  curve.degree = spline.degree;
  for (const OdGePoint2d& p : spline.controlPoints) curve.points.push_back(lifted(p));
  curve.knots = spline.knots;
  if (spline.rational) curve.weights = spline.weights;
  if (curve.isValid()) return curve;
  std::vector<OdGePoint3d> through;
  for (const OdGePoint2d& p : spline.fitPoints) through.push_back(lifted(p));
  return OdGeNurbs::through(through, direction(spline.startTangent), direction(spline.endTangent));
}

/// An arc or an elliptic edge with the shape of a curved piece.
OdDbHatchEdge curvedEdge(const OdGeCurveSegment& piece) {
  // The axes: where the distance from the centre is largest and smallest.
  const OdGeVector3d& u = piece.u;
  const OdGeVector3d& v = piece.v;
  double offset = piece.isCircular()
                      ? 0
                      : 0.5 * std::atan2(2 * u.dotProduct(v), u.lengthSqrd() - v.lengthSqrd());
  const OdGeVector3d a = u * std::cos(offset) + v * std::sin(offset);
  const OdGeVector3d b = v * std::cos(offset) - u * std::sin(offset);
  const double side = u.x * v.y - u.y * v.x < 0 ? -1 : 1;
  const double sense = side * piece.sweep < 0 ? -1 : 1;
  if (piece.isCircular()) {
    // Angles of a circle count from the x axis.
    const double start = std::atan2(a.y, a.x) + side * piece.from;
    Arc arc{flat(piece.center), a.length(), odgeNormalAngle(sense * start), 0, sense > 0};
    arc.endAngle = arc.startAngle + std::abs(piece.sweep);
    return arc;
  }
  const double ratio = b.length() / a.length();
  const double start = odgeNormalAngle(sense * side * (piece.from - offset));
  return Ellipse{flat(piece.center),
                 {a.x, a.y},
                 ratio,
                 angleOf(start, ratio),
                 angleOf(start + std::abs(piece.sweep), ratio),
                 sense > 0};
}

OdDbHatchEdge edgeOf(const OdGeCurveSegment& piece) {
  if (piece.isLine()) return Line{flat(piece.start), flat(piece.end)};
  return curvedEdge(piece);
}

void addBulged(std::vector<OdDbHatchLoop::Vertex>& vertices, const OdGeCurveSegment& piece) {
  if (piece.isLine()) {
    vertices.push_back({flat(piece.start), 0});
    return;
  }
  const double side = piece.u.x * piece.v.y - piece.u.y * piece.v.x < 0 ? -1 : 1;
  // No bulge tells of more than a half circle well.
  const int parts = std::abs(piece.sweep) > kOdaPi + 1e-9 ? 2 : 1;
  for (int i = 0; i < parts; ++i)
    vertices.push_back({flat(piece.pointAt(static_cast<double>(i) / parts)),
                        side * std::tan(piece.sweep / parts / 4)});
}

/// The piece between two corners.
OdGeCurveSegment pieceOf(const OdDbHatchLoop::Vertex& from, const OdGePoint2d& to) {
  if (from.bulge == 0) return OdGeCurveSegment::line(lifted(from.point), lifted(to));
  const double sweep = 4 * std::atan(from.bulge);
  const double dx = to.x - from.point.x;
  const double dy = to.y - from.point.y;
  const double shift = (1 - from.bulge * from.bulge) / (4 * from.bulge);
  const OdGePoint3d center{from.point.x + dx / 2 - dy * shift, from.point.y + dy / 2 + dx * shift,
                           0};
  const OdGeVector3d u = lifted(from.point) - center;
  return OdGeCurveSegment::arc(center, u, {-u.y, u.x, 0}, 0, sweep);
}

bool isSimilar(const OdGeMatrix3d& m) {
  const OdGeVector3d x = m * OdGeVector3d::xAxis();
  const OdGeVector3d y = m * OdGeVector3d::yAxis();
  const double size = x.lengthSqrd();
  return std::abs(y.lengthSqrd() - size) <= 1e-9 * size && std::abs(x.dotProduct(y)) <= 1e-9 * size;
}

} // namespace

OdGeCurveSegments OdDbHatchLoop::segments(double deviation) const {
  OdGeCurveSegments pieces;
  if (isPolyline()) {
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      const OdGePoint2d& to = vertices[(i + 1) % vertices.size()].point;
      if (vertices[i].point != to) pieces.push_back(pieceOf(vertices[i], to));
    }
    return pieces;
  }
  for (const OdDbHatchEdge& edge : edges) {
    if (const auto* line = std::get_if<Line>(&edge)) {
      pieces.push_back(OdGeCurveSegment::line(lifted(line->start), lifted(line->end)));
    } else if (const auto* arc = std::get_if<Arc>(&edge)) {
      pieces.push_back(segmentOf(*arc));
    } else if (const auto* ellipse = std::get_if<Ellipse>(&edge)) {
      pieces.push_back(segmentOf(*ellipse));
    } else {
      const OdGeNurbs curve = nurbsOf(std::get<Spline>(edge));
      std::vector<OdGePoint3d> chords;
      if (curve.isValid()) curve.appendChords(deviation, chords);
      for (std::size_t i = 1; i < chords.size(); ++i)
        pieces.push_back(OdGeCurveSegment::line(chords[i - 1], chords[i]));
    }
  }
  return pieces;
}

std::vector<OdGePoint2d> OdDbHatchLoop::points(double deviation) const {
  std::vector<OdGePoint2d> all;
  const auto add = [&](const OdGePoint3d& p) {
    if (all.empty() || all.back() != flat(p)) all.push_back(flat(p));
  };
  std::vector<OdGePoint3d> chords;
  OdGeCurveSegments pieces = segments(deviation);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    OdGeCurveSegment& piece = pieces[i];
    // Programs do not always let an edge start where the one before ends.
    const auto far = [&](const OdGePoint3d& p) {
      return all.empty() ? 0 : p.distanceTo(lifted(all.back()));
    };
    if (i > 0 && far(piece.end) < far(piece.start)) piece = piece.reversed();
    add(piece.start);
    if (!piece.isLine()) {
      chords.clear();
      odgi::appendChords({piece.center, piece.u, piece.v, piece.from, piece.sweep}, deviation,
                         chords);
      for (const OdGePoint3d& p : chords) add(p);
    }
    add(piece.end);
  }
  if (all.size() > 1 && all.front().distanceTo(all.back()) <= 1e-9) all.pop_back();
  return all;
}

void OdDbHatchLoop::transformBy(const OdGeMatrix3d& m) {
  const OdGeVector3d x = m * OdGeVector3d::xAxis();
  const OdGeVector3d y = m * OdGeVector3d::yAxis();
  const bool mirrors = x.x * y.y - x.y * y.x < 0;
  if (isPolyline()) {
    const bool curved =
        std::any_of(vertices.begin(), vertices.end(), [](const Vertex& v) { return v.bulge != 0; });
    if (!curved || isSimilar(m)) {
      for (Vertex& v : vertices) v = {moved(m, v.point), mirrors ? 0 - v.bulge : v.bulge};
      return;
    }
    OdGeCurveSegments pieces = segments(0);
    edges.clear();
    for (const OdGeCurveSegment& piece : pieces) edges.push_back(edgeOf(piece.transformed(m)));
    vertices.clear();
    flags &= ~kPolyline;
    return;
  }
  for (OdDbHatchEdge& edge : edges) {
    if (auto* line = std::get_if<Line>(&edge)) {
      *line = {moved(m, line->start), moved(m, line->end)};
    } else if (const auto* arc = std::get_if<Arc>(&edge)) {
      edge = curvedEdge(segmentOf(*arc).transformed(m));
    } else if (const auto* ellipse = std::get_if<Ellipse>(&edge)) {
      edge = curvedEdge(segmentOf(*ellipse).transformed(m));
    } else {
      auto& spline = std::get<Spline>(edge);
      for (OdGePoint2d& p : spline.controlPoints) p = moved(m, p);
      for (OdGePoint2d& p : spline.fitPoints) p = moved(m, p);
      spline.startTangent = turned(m, spline.startTangent);
      spline.endTangent = turned(m, spline.endTangent);
    }
  }
}

OdDbHatchLoop OdDbHatchLoop::fromSegments(const OdGeCurveSegments& segments, int flags) {
  OdDbHatchLoop loop;
  loop.flags = flags & ~kPolyline;
  const bool plain = std::all_of(segments.begin(), segments.end(), [](const OdGeCurveSegment& s) {
    return s.isLine() || s.isCircular();
  });
  if (plain) {
    loop.flags |= kPolyline;
    for (const OdGeCurveSegment& piece : segments) addBulged(loop.vertices, piece);
  } else {
    for (const OdGeCurveSegment& piece : segments) loop.edges.push_back(edgeOf(piece));
  }
  return loop;
}
