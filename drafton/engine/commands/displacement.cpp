#include "drafton/engine/commands/displacement.h"

namespace drafton {

Task<OdGeVector3d> askDisplacement(CommandContext& context) {
  const Answer<OdGePoint3d> answer = co_await context.input().point(
      {.text = u"Specify displacement", .base = OdGePoint3d(), .enterText = u"0,0,0"});
  co_return displacementOf(answer);
}

OdGeVector3d displacementOf(const Answer<OdGePoint3d>& point) {
  return {point.value.x, point.value.y, point.isFlat ? 0 : point.value.z};
}

} // namespace drafton
