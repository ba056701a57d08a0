#include "drafton/engine/commands/previews.h"

#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"

#include <algorithm>

namespace drafton {
namespace {

constexpr std::size_t kMostShown = 300;

} // namespace

PreviewShapes newShape(const OdDbDatabase& database, OdDbEntityPtr entity) {
  entity->setDatabaseDefaults(database);
  return {std::move(entity)};
}

PreviewShapes lineShape(const OdDbDatabase& database, const OdGePoint3d& from,
                        const OdGePoint3d& to) {
  return newShape(database, odrxMake<OdDbLine>(from, to));
}

PreviewShapes circleShape(const OdDbDatabase& database, const std::optional<Circle2d>& circle) {
  if (!circle || !(circle->radius > 0)) return {};
  return newShape(database,
                  odrxMake<OdDbCircle>(circle->center, OdGeVector3d::zAxis(), circle->radius));
}

PreviewShapes arcShape(const OdDbDatabase& database, const std::optional<ArcPath>& path) {
  const std::optional<CircularArc> arc = path ? circularArcOf(*path) : std::nullopt;
  if (!arc) return {};
  return newShape(database, odrxMake<OdDbArc>(arc->center, OdGeVector3d::zAxis(), arc->radius,
                                              arc->startAngle, arc->endAngle));
}

PreviewShapes insertShape(const OdDbDatabase& database, OdDbObjectId block,
                          const OdGePoint3d& point, const OdGeScale3d& scale, double rotation) {
  const auto insert = odrxMake<OdDbBlockReference>(block, point);
  insert->setScaleFactors(scale);
  insert->setRotation(rotation);
  return newShape(database, insert);
}

PreviewShapes movedShapes(const Selection& entities, const EntityMover& mover) {
  PreviewShapes shapes;
  const std::size_t count = std::min(entities.size(), kMostShown);
  for (const OdDbObjectId& id : std::span(entities).first(count)) {
    const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get());
    if (!entity) continue;
    try {
      const OdDbEntityPtr copy = odrxCast<OdDbEntity>(entity->clone().get());
      if (mover(*copy)) shapes.push_back(copy);
    } catch (const OdError&) {
      // What Drafton only keeps, and cannot copy, has no shape either.
    }
  }
  return shapes;
}

} // namespace drafton
