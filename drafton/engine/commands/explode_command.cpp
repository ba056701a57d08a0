// EXPLODE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/exploded_pieces.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/entities/block_reference.h"

namespace drafton {
namespace {

/// Why a reference stays whole: its contents are not the drawing's own. Empty for all else.
OdString referenceFault(const OdDbEntity& entity) {
  const auto* const insert = odrxCast<OdDbBlockReference>(&entity);
  const OdDbBlockTableRecordPtr block =
      insert ? insert->blockTableRecord().openObject() : OdDbObjectPtr();
  if (!block) return {};
  if (block->isFromExternalReference())
    return translated(u"\"%1\" is an external reference and cannot be exploded.")
        .arg(block->getName());
  return recordUseFault(*block);
}

} // namespace

Task<void> explode(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  int whole = 0;
  for (const OdDbObjectId& id : chosen) {
    const auto entity = id.openAs<OdDbEntity>(OdDb::kForWrite);
    if (const OdString fault = referenceFault(*entity); !fault.isEmpty()) {
      context.print(fault);
      continue;
    }
    std::vector<OdDbEntityPtr> pieces;
    if (!entity->explode(pieces)) {
      if (const OdString fault = explodingFault(*entity); !fault.isEmpty()) context.print(fault);
      ++whole;
      continue;
    }
    const auto owner = entity->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    appendPieces(*owner, *entity, pieces);
    entity->erase();
  }
  if (whole > 0) context.print(translated(u"%1 could not be exploded.").arg(whole));
}

} // namespace drafton
