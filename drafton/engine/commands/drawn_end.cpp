#include "drafton/engine/commands/drawn_end.h"

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/new_entities.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

DrawnEnd endOf(const OdDbLine& line) {
  return {line.endPoint(), directionOf(line.startPoint(), line.endPoint()), false};
}

DrawnEnd endOf(const OdDbArc& arc, const OdGePoint3d& lastPoint) {
  const double near = arc.radius() * 1e-6;
  const bool clockwise =
      arc.startPoint().distanceTo(lastPoint) <= near && arc.endPoint().distanceTo(lastPoint) > near;
  const OdGePoint3d point = clockwise ? arc.startPoint() : arc.endPoint();
  const OdGeVector3d tangent = arc.normal().crossProduct(point - arc.center());
  const OdGeVector3d travel = clockwise ? -tangent : tangent;
  return {point, std::atan2(travel.y, travel.x), true};
}

std::optional<DrawnEnd> endOf(const OdDbPolyline& polyline) {
  const unsigned count = polyline.numVerts();
  if (count < 2) return std::nullopt;
  const unsigned last = polyline.isClosed() ? count - 1 : count - 2;
  const ArcPath path{polyline.worldPointAt(last), polyline.worldPointAt((last + 1) % count),
                     polyline.getBulgeAt(last)};
  return DrawnEnd{path.end, endDirectionOf(path), path.bulge != 0};
}

} // namespace

std::optional<DrawnEnd> lastDrawnEnd(const OdDbDatabase& database, const OdGePoint3d& lastPoint) {
  const auto space = database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  const std::vector<OdDbObjectId>& ids = space->entityIds();
  for (auto id = ids.rbegin(); id != ids.rend(); ++id) {
    const OdDbObjectPtr object = id->openObject();
    if (const auto* line = odrxCast<OdDbLine>(object.get())) return endOf(*line);
    if (const auto* arc = odrxCast<OdDbArc>(object.get())) return endOf(*arc, lastPoint);
    if (const auto* polyline = odrxCast<OdDbPolyline>(object.get())) return endOf(*polyline);
  }
  return std::nullopt;
}

} // namespace drafton
