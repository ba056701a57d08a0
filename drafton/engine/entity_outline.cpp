#include "drafton/engine/entity_outline.h"

#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace drafton {
namespace {

/// A piece of this angle leaves its arc by about 7e-4 of the radius.
constexpr double kPieceAngle = 2 * kOdaPi / 84;

OdGePoint2d flat(const OdGePoint3d& point) { return {point.x, point.y}; }

/// Appends an arc from `from`, which is there already, through the angle `sweep` around `center`.
void appendArc(std::vector<OdGePoint2d>& points, const OdGePoint2d& center, const OdGePoint2d& from,
               double sweep) {
  const double radius = center.distanceTo(from);
  const double start = std::atan2(from.y - center.y, from.x - center.x);
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / kPieceAngle)));
  for (int i = 1; i <= pieces; ++i) {
    const double angle = start + sweep * i / pieces;
    points.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
  }
}

std::vector<OdGePoint2d> arcPoints(const OdDbArc& arc) {
  double sweep = odgeNormalAngle(arc.endAngle() - arc.startAngle());
  if (sweep == 0) sweep = 2 * kOdaPi;
  std::vector<OdGePoint2d> points;
  const int pieces = std::max(1, static_cast<int>(std::ceil(sweep / kPieceAngle)));
  for (int i = 0; i <= pieces; ++i)
    points.push_back(flat(arc.pointAt(arc.startAngle() + sweep * i / pieces)));
  return points;
}

void appendBulge(std::vector<OdGePoint2d>& points, const OdGePoint2d& to, double bulge) {
  const OdGePoint2d from = points.back();
  const double chord = from.distanceTo(to);
  if (bulge == 0 || chord == 0) {
    points.push_back(to);
    return;
  }
  const double sweep = 4 * std::atan(bulge);
  // The centre lies on the chord's perpendicular, at this part of the chord to the left.
  const double aside = (1 - bulge * bulge) / (4 * bulge);
  const OdGePoint2d center{(from.x + to.x) / 2 - (to.y - from.y) * aside,
                           (from.y + to.y) / 2 + (to.x - from.x) * aside};
  appendArc(points, center, from, sweep);
}

std::vector<OdGePoint2d> polylinePoints(const OdDbPolyline& polyline) {
  std::vector<OdGePoint2d> points;
  const unsigned count = polyline.numVerts();
  if (count == 0) return points;
  // Seen from behind, a counterclockwise piece runs clockwise.
  const double turn = polyline.normal().z < 0 ? -1 : 1;
  points.push_back(flat(polyline.worldPointAt(0)));
  const unsigned pieces = polyline.isClosed() ? count : count - 1;
  for (unsigned i = 0; i < pieces; ++i)
    appendBulge(points, flat(polyline.worldPointAt((i + 1) % count)),
                turn * polyline.getBulgeAt(i));
  return points;
}

double distanceToPiece(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& p) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double length = dx * dx + dy * dy;
  const double t =
      length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0;
  return p.distanceTo({a.x + t * dx, a.y + t * dy});
}

bool isIn(const OdGePoint2d& p, const OdGeExtents3d& box) {
  return p.x >= box.minPoint().x && p.x <= box.maxPoint().x && p.y >= box.minPoint().y &&
         p.y <= box.maxPoint().y;
}

/// Cuts the piece at the four sides of the box; true if something is left.
bool pieceMeetsBox(const OdGePoint2d& a, const OdGePoint2d& b, const OdGeExtents3d& box) {
  double enter = 0, leave = 1;
  const double deltas[] = {b.x - a.x, b.y - a.y};
  const double starts[] = {a.x, a.y};
  const double lows[] = {box.minPoint().x, box.minPoint().y};
  const double highs[] = {box.maxPoint().x, box.maxPoint().y};
  for (int axis = 0; axis < 2; ++axis) {
    if (deltas[axis] == 0) {
      if (starts[axis] < lows[axis] || starts[axis] > highs[axis]) return false;
      continue;
    }
    const double t0 = (lows[axis] - starts[axis]) / deltas[axis];
    const double t1 = (highs[axis] - starts[axis]) / deltas[axis];
    enter = std::max(enter, std::min(t0, t1));
    leave = std::min(leave, std::max(t0, t1));
  }
  return enter <= leave;
}

OdGeExtents3d boxOf(const std::vector<OdGePoint2d>& points) {
  OdGeExtents3d box;
  for (const OdGePoint2d& p : points) box.addPoint({p.x, p.y, 0});
  return box;
}

} // namespace

EntityOutline outlineOf(const OdDbEntity& entity) {
  if (const auto* line = odrxCast<OdDbLine>(&entity))
    return {{flat(line->startPoint()), flat(line->endPoint())}};
  if (const auto* arc = odrxCast<OdDbArc>(&entity)) return {arcPoints(*arc)};
  if (const auto* circle = odrxCast<OdDbCircle>(&entity))
    return {arcPoints(
        *odrxMake<OdDbArc>(circle->center(), circle->normal(), circle->radius(), 0.0, 2 * kOdaPi))};
  if (const auto* polyline = odrxCast<OdDbPolyline>(&entity)) return {polylinePoints(*polyline)};
  OdGeExtents3d box;
  if (!entity.getGeomExtents(box) || box.isEmpty()) return {};
  const OdGePoint2d low = flat(box.minPoint()), high = flat(box.maxPoint());
  return {{low, {high.x, low.y}, high, {low.x, high.y}, low}, true};
}

double distanceTo(const EntityOutline& outline, const OdGePoint3d& point) {
  const OdGePoint2d p = flat(point);
  if (outline.points.empty()) return std::numeric_limits<double>::infinity();
  if (outline.isFilled && isIn(p, boxOf(outline.points))) return 0;
  double nearest = p.distanceTo(outline.points.front());
  for (std::size_t i = 1; i < outline.points.size(); ++i)
    nearest = std::min(nearest, distanceToPiece(outline.points[i - 1], outline.points[i], p));
  return nearest;
}

bool meetsBox(const EntityOutline& outline, const OdGeExtents3d& box) {
  if (outline.points.empty()) return false;
  if (outline.points.size() == 1 || outline.isFilled)
    if (isIn(outline.points.front(), box) ||
        (outline.isFilled && isIn(flat(box.minPoint()), boxOf(outline.points))))
      return true;
  for (std::size_t i = 1; i < outline.points.size(); ++i)
    if (pieceMeetsBox(outline.points[i - 1], outline.points[i], box)) return true;
  return false;
}

} // namespace drafton
