#include "drafton/engine/commands/corner_joining.h"

#include "drafton/engine/boundary/flat_segment.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

/// The side of a line, an arc or a circle that lies level; none for others.
std::optional<CornerSide> sideOf(const OdDbEntity& entity, const OdGePoint3d& picked) {
  const auto* const curve = odrxCast<OdDbCurve>(&entity);
  const bool fits =
      odrxCast<OdDbLine>(&entity) || odrxCast<OdDbArc>(&entity) || odrxCast<OdDbCircle>(&entity);
  if (!curve || !fits) return std::nullopt;
  const OdGeCurveSegments pieces = curve->segments();
  if (pieces.size() != 1 || !(pieces[0].length() > 0)) return std::nullopt;
  const OdGeCurveSegment& piece = pieces[0];
  const bool isLevel = piece.isLine() ? piece.start.z == piece.end.z
                                      : piece.u.z == 0 && piece.v.z == 0 && piece.isCircular();
  if (!isLevel) return std::nullopt;
  const double height = piece.isLine() ? piece.start.z : piece.center.z;
  return CornerSide{piece, {picked.x, picked.y, height}};
}

/// Lets a line or an arc end at a corner. False if nothing of it lies on the right side.
bool endAt(OdDbEntity& entity, const CornerEnd& end) {
  if (auto* const line = odrxCast<OdDbLine>(&entity)) {
    const double fromStart = (line->startPoint() - end.point).dotProduct(end.rest);
    const double fromEnd = (line->endPoint() - end.point).dotProduct(end.rest);
    if (!(std::max(fromStart, fromEnd) > 1e-9 * line->length())) return false;
    fromEnd > fromStart ? line->setStartPoint(end.point) : line->setEndPoint(end.point);
  } else if (auto* const arc = odrxCast<OdDbArc>(&entity)) {
    const OdGeVector3d way = end.point - arc->center();
    const OdGeVector3d own = OdGeMatrix3d::planeToWorld(arc->normal()).inverse() * way;
    const double angle = odgeNormalAngle(std::atan2(own.y, own.x));
    arc->normal().crossProduct(way).dotProduct(end.rest) > 0 ? arc->setStartAngle(angle)
                                                             : arc->setEndAngle(angle);
  }
  return true;
}

/// The arc or the line between the ends; null if there is nothing between them.
OdDbEntityPtr joint(const Corner& corner) {
  const OdGePoint3d& from = corner.first.point;
  const OdGePoint3d& to = corner.second.point;
  if (!corner.center && from == to) return {};
  if (!corner.center) return odrxMake<OdDbLine>(from, to);
  const OdGeVector3d first = from - *corner.center, second = to - *corner.center;
  double start = std::atan2(first.y, first.x), end = std::atan2(second.y, second.x);
  if (corner.bulge < 0) std::swap(start, end);
  return odrxMake<OdDbArc>(*corner.center, OdGeVector3d::zAxis(), first.length(),
                           odgeNormalAngle(start), odgeNormalAngle(end));
}

OdString joinTwo(CommandContext& context, const PickedEntity& first, const PickedEntity& second,
                 const CornerMaker& maker, bool trims) {
  OdDbDatabase& database = context.database();
  const auto one = first.id.openAs<OdDbEntity>(OdDb::kForWrite);
  const auto other = second.id.openAs<OdDbEntity>(OdDb::kForWrite);
  const auto firstSide = sideOf(*one, first.point), secondSide = sideOf(*other, second.point);
  if (!firstSide || !secondSide)
    return translated(u"Only lines, arcs, circles and sides of one polyline have such corners.");
  if (firstSide->picked.z != secondSide->picked.z)
    return translated(u"The objects lie at different heights.");
  const std::optional<Corner> corner = maker(*firstSide, *secondSide);
  if (!corner) return translated(u"The objects have no such corner.");
  const OdDbUndoMark before = database.undoMark();
  if (trims && (!endAt(*one, corner->first) || !endAt(*other, corner->second))) {
    database.rollbackTo(before);
    return translated(u"The objects are too short for that corner.");
  }
  const OdDbEntityPtr between = joint(*corner);
  if (!between) return {};
  if (one->layer() == other->layer()) {
    between->setPropertiesFrom(*one);
    one->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(between);
  } else {
    addNewEntity(database, *between);
  }
  return {};
}

unsigned cornerBehind(const OdDbPolyline& polyline, unsigned i) {
  return (i + 1) % polyline.numVerts();
}
unsigned cornerBefore(const OdDbPolyline& polyline, unsigned i) {
  return (i + polyline.numVerts() - 1) % polyline.numVerts();
}
/// False for the ends of an open polyline.
bool isCorner(const OdDbPolyline& polyline, unsigned i) {
  return polyline.numVerts() >= 3 &&
         (polyline.isClosed() || (i > 0 && i + 1 < polyline.numVerts()));
}

/// A corner in the polyline's own plane.
OdGePoint3d cornerAt(const OdDbPolyline& polyline, unsigned i) {
  const OdGePoint2d& p = polyline.getPointAt(i);
  return {p.x, p.y, 0};
}

/// What is left of a side, as a part of it, when nothing is left.
constexpr double kUsedUp = 1e-9;

/// True if an end lies on the side from a corner to the next one.
bool liesOnSide(const CornerEnd& end, const OdGePoint3d& corner, const OdGePoint3d& next) {
  const double cut = end.point.distanceTo(corner), side = next.distanceTo(corner);
  return (next - corner).dotProduct(end.rest) > 0 && cut <= side * (1 + kUsedUp);
}

/// Puts two corners into the place of one. False if the sides are curved or too short.
bool treatCorner(OdDbPolyline& polyline, unsigned i, const CornerMaker& maker) {
  const unsigned before = cornerBefore(polyline, i);
  const auto into = polyline.vertexAt(before), at = polyline.vertexAt(i);
  if (into.bulge != 0 || at.bulge != 0) return false;
  const OdGePoint3d corner = cornerAt(polyline, i), from = cornerAt(polyline, before),
                    to = cornerAt(polyline, cornerBehind(polyline, i));
  if (from == corner || to == corner) return false;
  const std::optional<Corner> made =
      maker({OdGeCurveSegment::line(from, corner), from}, {OdGeCurveSegment::line(corner, to), to});
  if (!made || !liesOnSide(made->first, corner, from) || !liesOnSide(made->second, corner, to))
    return false;
  const OdGePoint3d& a = made->first.point;
  const OdGePoint3d& b = made->second.point;
  if (a == b) return true;
  // A side that is used up has the treated corner begin or end at its far end.
  const bool usesFirst = a.distanceTo(from) <= kUsedUp * from.distanceTo(corner);
  const bool usesSecond = b.distanceTo(to) <= kUsedUp * to.distanceTo(corner);
  if (!usesSecond) polyline.addVertexAt(i + 1, {b.x, b.y}, 0, at.startWidth, at.endWidth);
  const unsigned start = usesFirst ? before : i;
  if (!usesFirst) polyline.setPointAt(i, {a.x, a.y});
  polyline.setBulgeAt(start, made->bulge);
  polyline.setWidthsAt(start, into.endWidth, at.startWidth);
  if (usesFirst) polyline.removeVertexAt(i);
  return true;
}

/// The corner between two sides, which are told by the corners where they begin.
std::optional<unsigned> cornerBetween(const OdDbPolyline& polyline, unsigned first,
                                      unsigned second) {
  for (const auto& [side, other] : {std::pair(first, second), std::pair(second, first)})
    if (side != other && cornerBehind(polyline, side) == other && isCorner(polyline, other))
      return other;
  return std::nullopt;
}

unsigned sideAt(const OdDbPolyline& polyline, const OdGePoint3d& point) {
  double param = 0;
  polyline.getClosestPointTo({point.x, point.y, polyline.getStartPoint().z}, &param);
  const double sides = polyline.getEndParam();
  return static_cast<unsigned>(std::min(std::floor(param), sides - 1));
}

} // namespace

OdString joinAtCorner(CommandContext& context, const PickedEntity& first,
                      const PickedEntity& second, const CornerMaker& maker, bool trims) {
  if (first.id != second.id) return joinTwo(context, first, second, maker, trims);
  const OdDbObjectPtr object = first.id.openObject(OdDb::kForWrite);
  auto* const polyline = odrxCast<OdDbPolyline>(object.get());
  if (!polyline || polyline->numVerts() < 3)
    return translated(u"Select two objects, or two sides of one polyline.");
  const auto corner =
      cornerBetween(*polyline, sideAt(*polyline, first.point), sideAt(*polyline, second.point));
  if (!corner) return translated(u"The sides do not meet at a corner.");
  return treatCorner(*polyline, *corner, maker)
             ? OdString()
             : translated(u"The objects are too short for that corner.");
}

std::optional<TreatedCorners> treatCorners(OdDbObjectId id, const CornerMaker& maker) {
  const OdDbObjectPtr object = id.openObject(OdDb::kForWrite);
  auto* const polyline = odrxCast<OdDbPolyline>(object.get());
  if (!polyline) return std::nullopt;
  TreatedCorners result;
  // From the last to the first: those before keep their numbers.
  for (unsigned i = polyline->numVerts(); i-- > 0;) {
    if (!isCorner(*polyline, i)) continue;
    treatCorner(*polyline, i, maker) ? ++result.treated : ++result.left;
  }
  return result;
}

} // namespace drafton
