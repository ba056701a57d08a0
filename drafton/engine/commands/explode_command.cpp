// EXPLODE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"

namespace drafton {

Task<void> explode(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  int whole = 0;
  for (const OdDbObjectId& id : chosen) {
    const auto entity = id.openAs<OdDbEntity>(OdDb::kForWrite);
    std::vector<OdDbEntityPtr> pieces;
    if (!entity->explode(pieces)) {
      ++whole;
      continue;
    }
    const auto owner = entity->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    for (const OdDbEntityPtr& piece : pieces) owner->appendOdDbEntity(piece);
    entity->erase();
  }
  if (whole > 0) context.print(translated(u"%1 could not be exploded.").arg(whole));
}

} // namespace drafton
