// DIMANGULAR.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/dimension_prompts.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/dimension_kinds.h"

namespace drafton {
namespace {

/// Of the place of the dimension line, which tells the angle too.
using PlaceSetter = std::function<void(const OdGePoint3d& place)>;

/// A dimension that still wants its place; null for none.
struct Angle {
  OdDbDimensionPtr dimension;
  PlaceSetter setPlace;
};

/// At a vertex, between the directions of two points.
Angle angleAt(const OdGePoint3d& vertex, const OdGePoint3d& first, const OdGePoint3d& second) {
  const auto made = odrxMake<OdDb3PointAngularDimension>();
  const auto setPlace = [=](const OdGePoint3d& place) { made->set(vertex, first, second, place); };
  // Until the place is known, the smaller of the two angles is meant.
  const OdGeVector3d a = (first - vertex).normal(), b = (second - vertex).normal();
  setPlace(vertex + (a + b));
  return {made, setPlace};
}

/// Where two lines cross, going on for ever; none for parallel ones.
std::optional<OdGePoint3d> crossing(const OdGeCurveSegment& one, const OdGeCurveSegment& other) {
  constexpr double kParallel = 1e-9;
  const OdGeVector3d a = (one.end - one.start).normal(), b = (other.end - other.start).normal();
  const double cross = a.x * b.y - a.y * b.x;
  if (!(std::abs(cross) > kParallel)) return std::nullopt;
  const OdGeVector3d way = other.start - one.start;
  return one.start + a * ((way.x * b.y - way.y * b.x) / cross);
}

/// None for parallel lines.
Angle angleOf(const OdGeCurveSegment& one, const OdGeCurveSegment& other) {
  const std::optional<OdGePoint3d> vertex = crossing(one, other);
  if (!vertex) return {};
  const auto made = odrxMake<OdDb2LineAngularDimension>();
  made->setLines(one.start, one.end, other.start, other.end);
  const OdGeVector3d a = (one.end - one.start).normal(), b = (other.end - other.start).normal();
  made->setArcPoint(*vertex + (a + b));
  return Angle{made, [made](const OdGePoint3d& place) { made->setArcPoint(place); }};
}

Task<OdGePoint3d> askEnd(CommandContext& context, QStringView question, OdGePoint3d vertex) {
  const OdString text = question.toString();
  for (;;) {
    const Answer<OdGePoint3d> end =
        co_await context.input().point({.text = QStringView(text), .base = vertex});
    if (!(end.value == vertex)) co_return end.value;
    context.print(translated(u"The two points must differ."));
  }
}

Task<Angle> askPoints(CommandContext& context) {
  const Answer<OdGePoint3d> vertex =
      co_await context.input().point({.text = u"Specify angle vertex"});
  const OdGePoint3d first = co_await askEnd(context, u"Specify first angle endpoint", vertex.value);
  const OdGePoint3d second =
      co_await askEnd(context, u"Specify second angle endpoint", vertex.value);
  co_return angleAt(vertex.value, first, second);
}

/// None if Enter is given, or another kind of object.
Task<Angle> askSecondLine(CommandContext& context, OdGeCurveSegment first) {
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select second line");
    if (picked.id.isNull()) co_return Angle();
    const std::optional<OdGeCurveSegment> second = pickedSegment(context, picked.id, picked.point);
    if (!second) continue;
    if (second->isLine())
      if (const Angle angle = angleOf(first, *second); angle.dimension) co_return angle;
    context.print(second->isLine() ? translated(u"The lines are parallel.")
                                   : translated(u"The object is no line."));
  }
}

/// None if the user gives up.
Task<Angle> askAngle(CommandContext& context) {
  for (;;) {
    const PickedEntity picked = co_await selectEntity(
        context, u"Select arc, circle or line; Enter for a vertex and two points");
    if (picked.id.isNull()) co_return co_await askPoints(context);
    const std::optional<OdGeCurveSegment> segment = pickedSegment(context, picked.id, picked.point);
    if (!segment) continue;
    if (segment->isLine()) co_return co_await askSecondLine(context, *segment);
    if (!segment->isCircular()) {
      context.print(translated(u"The object is no arc, circle or line."));
    } else if (std::abs(segment->sweep) < 2 * kOdaPi - 1e-9) {
      const Angle angle = angleAt(segment->center, segment->start, segment->end);
      // Of the arc, not of what it lacks.
      angle.setPlace(segment->pointAt(0.5));
      co_return angle;
    } else {
      const OdGePoint3d first = segment->pointAt(segment->closestTo(picked.point));
      const OdGePoint3d second =
          co_await askEnd(context, u"Specify second angle endpoint", segment->center);
      co_return angleAt(segment->center, first, second);
    }
  }
}

} // namespace

Task<void> angularDimension(CommandContext& context) {
  const Angle angle = co_await askAngle(context);
  if (!angle.dimension) co_return;
  const OdString shown = shownMeasurement(*angle.dimension, context.database());
  DimensionWishes wishes;
  co_await askDimensionPlace(context, {}, shown, wishes);
  angle.setPlace(wishes.location);
  addDimension(context, *angle.dimension, wishes);
}

} // namespace drafton
