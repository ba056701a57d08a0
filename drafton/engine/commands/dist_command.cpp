// DIST.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/measured_values.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {

Task<void> distance(CommandContext& context) {
  const Answer<OdGePoint3d> first =
      co_await context.input().point({.text = u"Specify first point"});
  const Answer<OdGePoint3d> second =
      co_await context.input().point({.text = u"Specify second point", .base = first.value});
  const OdGeVector3d way = second.value - first.value;
  const double angle = way.x == 0 && way.y == 0 ? 0 : odgeNormalAngle(std::atan2(way.y, way.x));
  const auto shown = [&](double length) { return shownLength(context.database(), length); };
  context.print(
      translated(u"Distance = %1, angle = %2").arg(shown(way.length()), shownAngle(angle)));
  context.print(
      translated(u"Delta X = %1, Y = %2, Z = %3").arg(shown(way.x), shown(way.y), shown(way.z)));
}

} // namespace drafton
