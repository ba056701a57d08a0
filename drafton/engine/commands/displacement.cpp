#include "drafton/engine/commands/displacement.h"

#include "drafton/engine/commands/previews.h"

namespace drafton {

Task<OdGeVector3d> askDisplacement(CommandContext& context) {
  const Answer<OdGePoint3d> answer = co_await context.input().point(
      {.text = u"Specify displacement", .base = OdGePoint3d(), .enterText = u"0,0,0"});
  co_return displacementOf(answer);
}

Task<OdGeVector3d> askShift(CommandContext& context, const Selection& entities,
                            const MoverOf& moverOf) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> base = co_await input.point(
      {.text = u"Specify base point", .keywords = u"Displacement", .enterText = u"Displacement"});
  if (!base.isValue()) co_return co_await askDisplacement(context);
  const auto moved = [&](const OdGePoint3d& to) {
    return movedShapes(entities, moverOf(to - base.value));
  };
  const Answer<OdGePoint3d> second =
      co_await input.point({.text = u"Specify second point",
                            .base = base.value,
                            .enterText = u"use first point as displacement",
                            .preview = moved});
  co_return second.isEmpty() ? displacementOf(base) : second.value - base.value;
}

OdGeVector3d displacementOf(const Answer<OdGePoint3d>& point) {
  return {point.value.x, point.value.y, point.isFlat ? 0 : point.value.z};
}

} // namespace drafton
