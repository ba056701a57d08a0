// ARC.

#include "drafton/engine/commands/arc_prompts.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawn_end.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/arc.h"

namespace drafton {
namespace {

using Found = std::optional<ArcPath>;

/// On from the last line or arc, in its direction.
Task<Found> askContinued(CommandContext& context, DrawnEnd from) {
  const auto onwards = [&](const OdGePoint3d& to) {
    return arcShape(context.database(), arcByDirection(from.point, to, from.direction));
  };
  const Answer<OdGePoint3d> end = co_await context.input().point(
      {.text = u"Specify end point of arc", .base = from.point, .preview = onwards});
  co_return arcByDirection(from.point, end.value, from.direction);
}

Task<Found> askFromEnds(CommandContext& context, OdGePoint3d start) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> end =
      co_await input.point({.text = u"Specify end point of arc", .base = start});
  const auto around = [&](const OdGePoint3d& middle) {
    return arcShape(context.database(), arcAround(middle, start, end.value));
  };
  const auto towards = [&](double angle) {
    return arcShape(context.database(), arcByDirection(start, end.value, angle));
  };
  const Answer<OdGePoint3d> center = co_await input.point({.text = u"Specify center point of arc",
                                                           .keywords = u"Angle Direction Radius",
                                                           .base = end.value,
                                                           .preview = around});
  if (center.isValue()) co_return arcAround(center.value, start, end.value);
  if (center.is(u"Angle")) {
    const double angle = co_await askIncludedAngle(context, start);
    co_return arcByAngle(start, end.value, angle);
  }
  if (center.is(u"Direction")) {
    const Answer<double> direction =
        co_await input.angle({.text = u"Specify tangent direction for the start point of arc",
                              .base = start,
                              .preview = towards});
    co_return arcByDirection(start, end.value, direction.value);
  }
  const Answer<double> radius = co_await input.distance(
      {.text = u"Specify radius of arc", .base = end.value, .range = NumberRange::kNotZero});
  co_return arcByRadius(start, end.value, radius.value);
}

Task<Found> askFromStart(CommandContext& context, OdGePoint3d start) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> second = co_await input.point(
      {.text = u"Specify second point of arc", .keywords = u"Center End", .base = start});
  if (second.is(u"End")) co_return co_await askFromEnds(context, start);
  if (second.is(u"Center")) {
    const Answer<OdGePoint3d> center =
        co_await input.point({.text = u"Specify center point of arc", .base = start});
    co_return co_await askArcAround(context, center.value, start);
  }
  const auto through = [&](const OdGePoint3d& to) {
    return arcShape(context.database(), arcThrough(start, second.value, to));
  };
  const Answer<OdGePoint3d> end = co_await input.point(
      {.text = u"Specify end point of arc", .base = second.value, .preview = through});
  co_return arcThrough(start, second.value, end.value);
}

Task<Found> askFromCenter(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> center = co_await input.point({.text = u"Specify center point of arc"});
  const Answer<OdGePoint3d> start =
      co_await input.point({.text = u"Specify start point of arc", .base = center.value});
  co_return co_await askArcAround(context, center.value, start.value);
}

Task<Found> askArc(CommandContext& context) {
  for (;;) {
    const Answer<OdGePoint3d> start = co_await context.input().point(
        {.text = u"Specify start point of arc", .keywords = u"Center", .allowEmpty = true});
    if (start.isValue()) co_return co_await askFromStart(context, start.value);
    if (start.is(u"Center")) co_return co_await askFromCenter(context);
    const std::optional<DrawnEnd> end = lastDrawnEnd(context.database(), context.lastPoint());
    if (end) co_return co_await askContinued(context, *end);
    context.print(translated(u"There is no line or arc to continue."));
  }
}

} // namespace

Task<void> arc(CommandContext& context) {
  for (;;) {
    const Found path = co_await askArc(context);
    const std::optional<CircularArc> shape = path ? circularArcOf(*path) : std::nullopt;
    if (!shape) {
      printNoArc(context);
      continue;
    }
    const OdDbArcPtr made = odrxMake<OdDbArc>(shape->center, OdGeVector3d::zAxis(), shape->radius,
                                              shape->startAngle, shape->endAngle);
    addNewThickEntity(context.database(), *made);
    context.setLastPoint(path->end);
    co_return;
  }
}

} // namespace drafton
