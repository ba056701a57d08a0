// POLYGON.

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

constexpr QLatin1String kSides("POLYSIDES");
constexpr int kFewest = 3, kMost = 1024;

Task<int> askSides(CommandContext& context) {
  OdVariant last;
  context.variables().get(kSides, last);
  for (;;) {
    const Answer<int> sides = co_await context.input().integer(
        {.text = u"Enter number of sides", .defaultValue = last.toInt32()});
    if (sides.value >= kFewest && sides.value <= kMost) {
      context.variables().set(kSides, sides.value);
      co_return sides.value;
    }
    context.print(
        translated(u"A whole number between %1 and %2 is needed.").arg(kFewest).arg(kMost));
  }
}

/// A regular polygon by its middle and one corner.
void addPolygon(CommandContext& context, int sides, const OdGePoint3d& middle, double radius,
                double direction) {
  const OdDbPolylinePtr polygon = odrxMake<OdDbPolyline>();
  for (int i = 0; i < sides; ++i) {
    const OdGePoint3d corner = pointAlong(middle, direction + 2 * kOdaPi * i / sides, radius);
    polygon->addVertexAt(static_cast<unsigned>(i), {corner.x, corner.y});
  }
  polygon->setClosed(true);
  polygon->setElevation(middle.z);
  addNewThickEntity(context.database(), *polygon);
}

Task<void> polygonByEdge(CommandContext& context, int sides) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first =
      co_await input.point({.text = u"Specify first endpoint of edge"});
  for (;;) {
    const Answer<OdGePoint3d> second =
        co_await input.point({.text = u"Specify second endpoint of edge", .base = first.value});
    const double edge = std::hypot(second.value.x - first.value.x, second.value.y - first.value.y);
    if (edge > 0) {
      // The polygon lies to the left of its first edge.
      const double along = directionOf(first.value, second.value);
      const double half = kOdaPi / sides;
      const double radius = edge / 2 / std::sin(half);
      const OdGePoint3d middle = pointAlong(first.value, along + kOdaPi / 2 - half, radius);
      addPolygon(context, sides, middle, radius, directionOf(middle, first.value));
      co_return;
    }
    context.print(translated(u"The two points must differ."));
  }
}

Task<void> polygonByCircle(CommandContext& context, int sides, OdGePoint3d center) {
  CommandInput& input = context.input();
  const Answer<OdString> how = co_await input.keyword({.text = u"Enter an option",
                                                       .keywords = u"Inscribed Circumscribed",
                                                       .defaultValue = u"Inscribed"});
  const double half = kOdaPi / sides;
  // A point tells where a corner, or the middle of an edge, comes to lie; a number lays an edge
  // level at the bottom.
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await input.point(
        {.text = u"Specify radius of circle", .base = center, .allowText = true});
    const bool isInside = how.is(u"Inscribed");
    const std::optional<double> typed =
        answer.isText() ? parseReal(answer.text)
                        : std::hypot(answer.value.x - center.x, answer.value.y - center.y);
    if (!typed || !(*typed > 0)) {
      context.print(translated(u"A distance greater than zero is needed."));
      continue;
    }
    const double pointed = answer.isText() ? 0 : directionOf(center, answer.value);
    const double corner = answer.isText() ? -kOdaPi / 2 - half
                          : isInside      ? pointed
                                          : pointed - half;
    addPolygon(context, sides, center, isInside ? *typed : *typed / std::cos(half), corner);
    co_return;
  }
}

} // namespace

Task<void> polygon(CommandContext& context) {
  const int sides = co_await askSides(context);
  const Answer<OdGePoint3d> center =
      co_await context.input().point({.text = u"Specify center of polygon", .keywords = u"Edge"});
  if (center.isValue())
    co_await polygonByCircle(context, sides, center.value);
  else
    co_await polygonByEdge(context, sides);
}

} // namespace drafton
