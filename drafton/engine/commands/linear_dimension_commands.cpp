// DIMLINEAR and DIMALIGNED.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/dimension_prompts.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/dimension_kinds.h"

namespace drafton {
namespace {

struct MeasuredPoints {
  OdGePoint3d first, second;
};

/// The ends of a piece; of a whole circle the ends of its level diameter.
MeasuredPoints endsOf(const OdGeCurveSegment& segment) {
  if (segment.isLine() || std::abs(segment.sweep) < 2 * kOdaPi - 1e-9)
    return {segment.start, segment.end};
  const OdGeVector3d half = OdGeVector3d::xAxis() * segment.radius();
  return {segment.center - half, segment.center + half};
}

Task<MeasuredPoints> askPoints(CommandContext& context) {
  CommandInput& input = context.input();
  for (;;) {
    const Answer<OdGePoint3d> first = co_await input.point(
        {.text = u"Specify first extension line origin", .enterText = u"select object"});
    if (first.isValue()) {
      for (;;) {
        const Answer<OdGePoint3d> second = co_await input.point(
            {.text = u"Specify second extension line origin", .base = first.value});
        if (!(second.value == first.value)) co_return MeasuredPoints{first.value, second.value};
        context.print(translated(u"The two points must differ."));
      }
    }
    const PickedEntity picked = co_await selectEntity(context, u"Select object to dimension");
    if (picked.id.isNull()) continue;
    if (const auto segment = pickedSegment(context, picked.id, picked.point))
      co_return endsOf(*segment);
  }
}

/// How far a value lies outside of the range between two others; below 0 within.
double outside(double value, double a, double b) {
  return std::max(std::min(a, b) - value, value - std::max(a, b));
}

/// The direction that the place of the line asks for: beside the points it is upright, above or
/// below them level.
double directionFor(const MeasuredPoints& points, const OdGePoint3d& location) {
  const double beside = outside(location.x, points.first.x, points.second.x);
  const double above = outside(location.y, points.first.y, points.second.y);
  return beside > above ? kOdaPi / 2 : 0;
}

/// What the dimension would measure now.
OdString measured(CommandContext& context, const MeasuredPoints& points, double direction) {
  const auto trial =
      odrxMake<OdDbRotatedDimension>(direction, points.first, points.second, points.second);
  return shownMeasurement(*trial, context.database());
}

} // namespace

Task<void> linearDimension(CommandContext& context) {
  const MeasuredPoints points = co_await askPoints(context);
  const OdGeVector3d way = points.second - points.first;
  std::optional<double> direction;
  DimensionWishes wishes;
  for (;;) {
    const double likely = direction.value_or(std::abs(way.y) > std::abs(way.x) ? kOdaPi / 2 : 0);
    const OdString shown = measured(context, points, likely);
    const QStringView keywords =
        direction ? QStringView() : QStringView(u"Horizontal Vertical Rotated");
    co_await askDimensionPlace(context, keywords, shown, wishes);
    if (wishes.option.isEmpty()) break;
    if (wishes.option == QLatin1String("Horizontal")) direction = 0;
    if (wishes.option == QLatin1String("Vertical")) direction = kOdaPi / 2;
    if (wishes.option == QLatin1String("Rotated")) {
      const Answer<double> angle = co_await context.input().angle(
          {.text = u"Specify angle of dimension line", .defaultValue = 0.0});
      direction = angle.value;
    }
  }
  const auto made =
      odrxMake<OdDbRotatedDimension>(direction.value_or(directionFor(points, wishes.location)),
                                     points.first, points.second, wishes.location);
  addDimension(context, *made, wishes);
}

Task<void> alignedDimension(CommandContext& context) {
  const MeasuredPoints points = co_await askPoints(context);
  const auto made = odrxMake<OdDbAlignedDimension>(points.first, points.second, points.second);
  const OdString shown = shownMeasurement(*made, context.database());
  DimensionWishes wishes;
  co_await askDimensionPlace(context, {}, shown, wishes);
  made->setDimLinePoint(wishes.location);
  addDimension(context, *made, wishes);
}

} // namespace drafton
