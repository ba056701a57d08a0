#include "drafton/engine/commands/polyline_arcs.h"

#include "drafton/engine/commands/arc_prompts.h"

namespace drafton {
namespace {

using Found = std::optional<ArcPath>;

Task<double> askRadius(CommandContext& context, OdGePoint3d start) {
  const Answer<double> radius = co_await context.input().distance(
      {.text = u"Specify radius of arc", .base = start, .range = NumberRange::kPositive});
  co_return radius.value;
}

Task<Found> askChordDirection(CommandContext& context, OdGePoint3d start, double radius,
                              double includedAngle) {
  const Answer<double> direction = co_await context.input().angle(
      {.text = u"Specify direction of chord for arc", .base = start, .defaultValue = 0.0});
  co_return arcByRadiusAndAngle(start, radius, includedAngle, direction.value);
}

Task<Found> askByAngle(CommandContext& context, OdGePoint3d start) {
  CommandInput& input = context.input();
  const double angle = co_await askIncludedAngle(context, start);
  const Answer<OdGePoint3d> end = co_await input.point(
      {.text = u"Specify endpoint of arc", .keywords = u"CEnter Radius", .base = start});
  if (end.isValue()) co_return arcByAngle(start, end.value, angle);
  if (end.is(u"Radius")) {
    const double radius = co_await askRadius(context, start);
    co_return co_await askChordDirection(context, start, radius, angle);
  }
  const Answer<OdGePoint3d> center =
      co_await input.point({.text = u"Specify center point of arc", .base = start});
  co_return arcAroundByAngle(center.value, start, angle);
}

Task<Found> askByCenter(CommandContext& context, OdGePoint3d start) {
  const Answer<OdGePoint3d> center =
      co_await context.input().point({.text = u"Specify center point of arc", .base = start});
  co_return co_await askArcAround(context, center.value, start);
}

Task<Found> askByDirection(CommandContext& context, OdGePoint3d start) {
  CommandInput& input = context.input();
  const Answer<double> direction = co_await input.angle(
      {.text = u"Specify the tangent direction for the start point of arc", .base = start});
  const Answer<OdGePoint3d> end =
      co_await input.point({.text = u"Specify endpoint of the arc", .base = start});
  co_return arcByDirection(start, end.value, direction.value);
}

Task<Found> askByRadius(CommandContext& context, OdGePoint3d start) {
  const double radius = co_await askRadius(context, start);
  const Answer<OdGePoint3d> end = co_await context.input().point(
      {.text = u"Specify endpoint of arc", .keywords = u"Angle", .base = start});
  if (end.isValue()) co_return arcByRadius(start, end.value, radius);
  const double angle = co_await askIncludedAngle(context, start);
  co_return co_await askChordDirection(context, start, radius, angle);
}

Task<Found> askBySecondPoint(CommandContext& context, OdGePoint3d start) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> second =
      co_await input.point({.text = u"Specify second point on arc", .base = start});
  const Answer<OdGePoint3d> end =
      co_await input.point({.text = u"Specify end point of arc", .base = second.value});
  co_return arcThrough(start, second.value, end.value);
}

constexpr PolylineArcOption kOptions[] = {
    {u"Angle", askByAngle},   {u"CEnter", askByCenter},      {u"Direction", askByDirection},
    {u"Radius", askByRadius}, {u"Second", askBySecondPoint},
};

} // namespace

const PolylineArcOption* findPolylineArcOption(QStringView keyword) {
  for (const PolylineArcOption& option : kOptions)
    if (keyword == QStringView(option.keyword)) return &option;
  return nullptr;
}

} // namespace drafton
