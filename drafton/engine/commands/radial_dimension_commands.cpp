// DIMRADIUS and DIMDIAMETER.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/dimension_prompts.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/dimension_kinds.h"

namespace drafton {
namespace {

/// The circle that the chosen piece is a part of; none if the user gives up.
Task<std::optional<OdGeCurveSegment>> askCircle(CommandContext& context) {
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select arc or circle");
    if (picked.id.isNull()) co_return std::nullopt;
    const std::optional<OdGeCurveSegment> segment = pickedSegment(context, picked.id, picked.point);
    if (!segment) continue;
    if (segment->isCircular()) co_return segment;
    context.print(translated(u"The object is no arc and no circle."));
  }
}

/// From the centre to the circle, towards a point; to the right if the point is the centre.
OdGeVector3d radiusTowards(const OdGeCurveSegment& circle, const OdGePoint3d& point) {
  OdGeVector3d way = point - circle.center;
  way.z = 0;
  return (way.isZeroLength() ? OdGeVector3d::xAxis() : way.normal()) * circle.radius();
}

/// How far the place of the text lies outside of the circle.
double leaderLength(const OdGeCurveSegment& circle, const OdGePoint3d& location) {
  const double away = std::hypot(location.x - circle.center.x, location.y - circle.center.y);
  return std::max(away - circle.radius(), 0.0);
}

/// Within the circle a leader leads nowhere; the text is put where the user wants it.
void placeText(OdDbDimension& dimension, const OdGeCurveSegment& circle,
               const OdGePoint3d& location) {
  if (leaderLength(circle, location) == 0)
    dimension.setTextPosition({location.x, location.y, circle.center.z});
}

} // namespace

Task<void> radiusDimension(CommandContext& context) {
  const std::optional<OdGeCurveSegment> circle = co_await askCircle(context);
  if (!circle) co_return;
  const OdGePoint3d center = circle->center;
  const auto trial =
      odrxMake<OdDbRadialDimension>(center, center + radiusTowards(*circle, center), 0.0);
  const OdString shown = shownMeasurement(*trial, context.database());
  DimensionWishes wishes;
  co_await askDimensionPlace(context, {}, shown, wishes);
  const OdGeVector3d radius = radiusTowards(*circle, wishes.location);
  const auto made = odrxMake<OdDbRadialDimension>(center, center + radius,
                                                  leaderLength(*circle, wishes.location));
  placeText(*made, *circle, wishes.location);
  addDimension(context, *made, wishes);
}

Task<void> diameterDimension(CommandContext& context) {
  const std::optional<OdGeCurveSegment> circle = co_await askCircle(context);
  if (!circle) co_return;
  const OdGePoint3d center = circle->center;
  const OdGeVector3d level = radiusTowards(*circle, center);
  const auto trial = odrxMake<OdDbDiametricDimension>(center + level, center - level, 0.0);
  const OdString shown = shownMeasurement(*trial, context.database());
  DimensionWishes wishes;
  co_await askDimensionPlace(context, {}, shown, wishes);
  const OdGeVector3d radius = radiusTowards(*circle, wishes.location);
  const auto made = odrxMake<OdDbDiametricDimension>(center + radius, center - radius,
                                                     leaderLength(*circle, wishes.location));
  placeText(*made, *circle, wishes.location);
  addDimension(context, *made, wishes);
}

} // namespace drafton
