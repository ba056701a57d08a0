#include "drafton/engine/commands/curve_cutting.h"

#include "drafton/engine/boundary/curve_meetings.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

#include <algorithm>

namespace drafton {
namespace {

/// The pieces of the edges, without their heights.
OdGeCurveSegments flatEdges(const Selection& edges, OdDbObjectId but, const OdGePoint3d& origin) {
  OdGeCurveSegments flat;
  for (const OdDbObjectId& id : edges) {
    const OdDbObjectPtr object = id.openObject();
    const auto* const curve = id == but ? nullptr : odrxCast<OdDbCurve>(object.get());
    if (!curve || !curve->hasShape()) continue;
    for (const OdGeCurveSegment& segment : curve->segments()) appendFlat(segment, origin, flat);
  }
  return flat;
}

/// The parts of a piece at which it meets edges. None for a piece that has no width from above.
std::vector<double> partsAtEdges(const OdGeCurveSegment& segment, const OdGeCurveSegments& edges,
                                 const OdGePoint3d& origin) {
  OdGeCurveSegments flat;
  appendFlat(segment, origin, flat);
  std::vector<double> parts;
  if (flat.size() != 1) return parts;
  const double tolerance = drawingTolerance(flat[0].extents(), origin);
  std::vector<CurveMeeting> meetings;
  for (const OdGeCurveSegment& edge : edges) appendMeetings(flat[0], edge, tolerance, meetings);
  for (const CurveMeeting& meeting : meetings) parts.push_back(meeting.onFirst);
  std::sort(parts.begin(), parts.end());
  return parts;
}

/// A length by which a line surely reaches past all edges.
double reachPast(const OdGeCurveSegments& edges, const OdGePoint3d& from) {
  const OdGeExtents3d box = boxAround(edges);
  if (box.isEmpty()) return 0;
  const double far = std::max(from.distanceTo(box.minPoint()), from.distanceTo(box.maxPoint()));
  return 2 * far + (box.maxPoint() - box.minPoint()).length();
}

/// How an end piece would go on: a line for ever, an arc all around.
OdGeCurveSegment continued(const OdGeCurveSegment& last, double reach) {
  if (last.isLine())
    return OdGeCurveSegment::line(last.end, last.end + (last.end - last.start).normal() * reach);
  const double rest = 2 * kOdaPi - std::abs(last.sweep);
  return OdGeCurveSegment::arc(last.center, last.u, last.v, last.from + last.sweep,
                               last.sweep < 0 ? -rest : rest);
}

/// The first edge on the way onward, as a part of it.
std::optional<double> firstEdgeOn(const OdGeCurveSegment& way, const OdGeCurveSegments& edges,
                                  const OdGePoint3d& origin) {
  constexpr double kAlreadyThere = 1e-9;
  for (const double part : partsAtEdges(way, edges, origin))
    if (part > kAlreadyThere) return part;
  return std::nullopt;
}

void setEnd(OdDbLine& line, bool atStart, const OdGePoint3d& end) {
  atStart ? line.setStartPoint(end) : line.setEndPoint(end);
}

/// By which angle the arc grows is told by the part of its rest.
void growArc(OdDbArc& arc, bool atStart, double part) {
  const double sweep = odgeNormalAngle(arc.endAngle() - arc.startAngle());
  const double growth = (2 * kOdaPi - sweep) * part;
  if (atStart)
    arc.setStartAngle(odgeNormalAngle(arc.startAngle() - growth));
  else
    arc.setEndAngle(odgeNormalAngle(arc.endAngle() + growth));
}

void growPolyline(OdDbPolyline& polyline, bool atStart, const OdGePoint3d& end, double part) {
  const unsigned last = polyline.numVerts() - 1;
  const unsigned piece = atStart ? 0 : last - 1;
  const OdGePoint3d flat = OdGeMatrix3d::planeToWorld(polyline.normal()).inverse() * end;
  polyline.setPointAt(atStart ? 0 : last, {flat.x, flat.y});
  const double sweep = 4 * std::atan(polyline.getBulgeAt(piece));
  if (sweep == 0) return;
  const double grown = std::abs(sweep) + (2 * kOdaPi - std::abs(sweep)) * part;
  polyline.setBulgeAt(piece, std::copysign(std::tan(grown / 4), sweep));
}

bool canGrow(const OdDbCurve& curve) {
  if (const auto* const polyline = odrxCast<OdDbPolyline>(&curve))
    return !polyline->isClosed() && polyline->numVerts() >= 2;
  return odrxCast<OdDbLine>(&curve) || (odrxCast<OdDbArc>(&curve) && !curve.isClosed());
}

} // namespace

std::vector<double> meetingsWith(const OdDbCurve& curve, const Selection& edges) {
  const OdGeCurveSegments segments = curve.segments();
  std::vector<double> params;
  if (segments.empty()) return params;
  const OdGePoint3d origin = segments.front().start;
  const OdGeCurveSegments flat = flatEdges(edges, curve.objectId(), origin);
  for (const OdGeCurveSegment& segment : segments)
    for (const double part : partsAtEdges(segment, flat, origin)) {
      double param = 0;
      curve.getClosestPointTo(segment.pointAt(part), &param);
      params.push_back(param);
    }
  std::sort(params.begin(), params.end());
  const double near = 1e-9 * (curve.getEndParam() - curve.getStartParam());
  params.erase(std::unique(params.begin(), params.end(),
                           [near](double a, double b) { return b - a <= near; }),
               params.end());
  // Where the curve only begins or ends there is nothing to cut.
  if (!curve.isClosed())
    std::erase_if(params, [&](double p) {
      return p - curve.getStartParam() <= near || curve.getEndParam() - p <= near;
    });
  return params;
}

std::optional<std::vector<OdDbEntityPtr>> trimmed(const OdDbCurve& curve, const Selection& edges,
                                                  const OdGePoint3d& point) {
  const std::vector<double> params = meetingsWith(curve, edges);
  const bool isClosed = curve.isClosed();
  if (params.size() < (isClosed ? 2u : 1u)) return std::nullopt;
  double at = 0;
  curve.getClosestPointTo(point, &at);
  const auto next = std::upper_bound(params.begin(), params.end(), at);
  std::vector<double> cuts;
  if (next != params.begin()) cuts.push_back(*(next - 1));
  if (next != params.end()) cuts.push_back(*next);
  if (isClosed && cuts.size() == 1) cuts = {params.front(), params.back()};
  std::vector<OdDbEntityPtr> pieces;
  if (!curve.getSplitCurves(cuts, pieces)) return std::nullopt;
  // The pieces stand in their order; that around the point goes.
  std::size_t doomed = next == params.begin() ? 0 : 1;
  if (isClosed) doomed = at >= cuts.front() && at < cuts.back() ? 0 : 1;
  if (doomed < pieces.size()) pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(doomed));
  return pieces;
}

bool extendTo(OdDbCurve& curve, const Selection& edges, const OdGePoint3d& point) {
  if (!canGrow(curve)) return false;
  const OdGeCurveSegments segments = curve.segments();
  if (segments.empty()) return false;
  const OdGePoint3d origin = segments.front().start;
  const OdGePoint3d nearest = curve.getClosestPointTo(point);
  const bool atStart = curve.getDistAtParam([&] {
    double param = 0;
    curve.getClosestPointTo(nearest, &param);
    return param;
  }()) < curve.length() / 2;
  const OdGeCurveSegment last = atStart ? segments.front().reversed() : segments.back();
  const OdGeCurveSegments flat = flatEdges(edges, curve.objectId(), origin);
  const OdGeCurveSegment way = continued(last, reachPast(flat, flatPoint(last.end, origin)));
  const std::optional<double> part = firstEdgeOn(way, flat, origin);
  if (!part) return false;
  const OdGePoint3d end = way.pointAt(*part);
  if (auto* const line = odrxCast<OdDbLine>(&curve)) setEnd(*line, atStart, end);
  if (auto* const arc = odrxCast<OdDbArc>(&curve)) growArc(*arc, atStart, *part);
  if (auto* const polyline = odrxCast<OdDbPolyline>(&curve))
    growPolyline(*polyline, atStart, end, *part);
  return true;
}

} // namespace drafton
