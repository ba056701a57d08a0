// ERASE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/selection.h"

namespace drafton {

Task<void> erase(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  for (const OdDbObjectId& id : chosen) id.safeOpenObject(OdDb::kForWrite)->erase();
}

} // namespace drafton
