// Putting a block into the current space.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"
#include "drawing/entities/block_reference.h"

namespace drafton {

/// How a block is to stand. Angles are in radians.
struct BlockPlace {
  OdGePoint3d point;
  OdGeScale3d scale;
  double rotation = 0;
  bool explode = false; ///< its pieces instead of an insert
};

/// The factor by which the units of a block and of its drawing differ.
double blockUnitFactor(const OdDbDatabase& database, OdDbObjectId block);

/// Inserts the block with the current layer, colour and so on, scaled by the units beyond `place`,
/// and asks for the values of its attributes if ATTREQ says so. Raises CommandFailure if the block
/// contains the space that is drawn in.
Task<void> placeBlock(CommandContext& context, OdDbObjectId block, BlockPlace place);

} // namespace drafton
