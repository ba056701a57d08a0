#include "drafton/engine/commands/displacement_prompt.h"

namespace drafton {

Task<OdGeVector3d> askDisplacement(CommandContext& context) {
  const Answer<OdGePoint3d> answer = co_await context.input().point(
      {.text = u"Specify displacement", .base = OdGePoint3d(), .allowEmpty = true});
  co_return answer.value.asVector();
}

} // namespace drafton
