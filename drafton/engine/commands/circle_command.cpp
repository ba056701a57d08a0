// CIRCLE.

#include "drafton/engine/commands/circle_geometry.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/circle.h"

namespace drafton {
namespace {

/// The last radius; 0 before the first circle.
constexpr QLatin1String kLastRadius("CIRCLERAD");

Task<Circle2d> askAroundCenter(CommandContext& context, OdGePoint3d center) {
  CommandInput& input = context.input();
  OdVariant kept;
  const double last = context.variables().get(kLastRadius, kept) ? kept.toDouble() : 0;
  const auto shown = [last](double factor) {
    return last > 0 ? std::optional<double>(last * factor) : std::nullopt;
  };
  const auto byRadius = [&](double value) {
    return circleShape(context.database(), Circle2d{center, value});
  };
  const auto byDiameter = [&](double value) {
    return circleShape(context.database(), Circle2d{center, value / 2});
  };
  const std::optional<double> lastRadius = shown(1);
  const Answer<double> radius = co_await input.distance({.text = u"Specify radius of circle",
                                                         .keywords = u"Diameter",
                                                         .base = center,
                                                         .defaultValue = lastRadius,
                                                         .range = NumberRange::kPositive,
                                                         .preview = byRadius});
  if (radius.isValue()) co_return Circle2d{center, radius.value};
  const std::optional<double> lastDiameter = shown(2);
  const Answer<double> diameter = co_await input.distance({.text = u"Specify diameter of circle",
                                                           .base = center,
                                                           .defaultValue = lastDiameter,
                                                           .range = NumberRange::kPositive,
                                                           .preview = byDiameter});
  co_return Circle2d{center, diameter.value / 2};
}

Task<Circle2d> askTwoPoints(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first =
      co_await input.point({.text = u"Specify first end point of circle's diameter"});
  const auto onDiameter = [&](const OdGePoint3d& end) {
    return circleShape(context.database(), circleOnDiameter(first.value, end));
  };
  for (;;) {
    const Answer<OdGePoint3d> second =
        co_await input.point({.text = u"Specify second end point of circle's diameter",
                              .base = first.value,
                              .preview = onDiameter});
    if (const std::optional<Circle2d> found = circleOnDiameter(first.value, second.value))
      co_return *found;
    context.print(translated(u"The two points must differ."));
  }
}

Task<Circle2d> askThreePoints(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first =
      co_await input.point({.text = u"Specify first point on circle"});
  for (;;) {
    const Answer<OdGePoint3d> second =
        co_await input.point({.text = u"Specify second point on circle", .base = first.value});
    const auto throughAll = [&](const OdGePoint3d& last) {
      return circleShape(context.database(), circleThrough(first.value, second.value, last));
    };
    const Answer<OdGePoint3d> third = co_await input.point(
        {.text = u"Specify third point on circle", .base = second.value, .preview = throughAll});
    if (const std::optional<Circle2d> found = circleThrough(first.value, second.value, third.value))
      co_return *found;
    context.print(translated(u"There is no circle through these points: they stand in a line."));
  }
}

} // namespace

Task<void> circle(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> center =
      co_await input.point({.text = u"Specify center point for circle", .keywords = u"3P 2P"});
  Circle2d shape;
  if (center.is(u"3P"))
    shape = co_await askThreePoints(context);
  else if (center.is(u"2P"))
    shape = co_await askTwoPoints(context);
  else
    shape = co_await askAroundCenter(context, center.value);

  const OdDbCirclePtr made =
      odrxMake<OdDbCircle>(shape.center, OdGeVector3d::zAxis(), shape.radius);
  addNewThickEntity(context.database(), *made);
  context.variables().set(kLastRadius, shape.radius);
  context.setLastPoint(shape.center);
}

} // namespace drafton
