// COLOR and LWEIGHT: what new entities get.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/document.h"
#include "drafton/engine/translator.h"

namespace drafton {

Task<void> currentColor(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const std::optional<OdCmColor> color = co_await askColor(
      context, u"Enter default object color", database.currentColor(), ColorKinds::kAll);
  if (color && !(*color == database.currentColor())) database.setCurrentColor(*color);
}

Task<void> currentLineWeight(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const std::optional<OdDb::LineWeight> weight = co_await askLineWeight(
      context, u"Enter default lineweight for new objects", database.currentLineWeight(), true);
  if (weight && *weight != database.currentLineWeight()) database.setCurrentLineWeight(*weight);
}

} // namespace drafton
