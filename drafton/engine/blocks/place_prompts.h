// Asking where and how something is inserted.
#pragma once

#include "drafton/engine/blocks/block_placing.h"
#include "drafton/engine/task.h"

namespace drafton {

/// Asks for point, scale and rotation, in the way of INSERT: the keywords at the point set scale or
/// rotation beforehand, which are then not asked for. `unitFactor` is shown, `uniform` asks for one
/// scale factor only. `block` is shown at the cursor.
Task<BlockPlace> askBlockPlace(CommandContext& context, OdDbObjectId block, bool uniform);

/// Asks for the insertion point and, if `asksRotation`, for the angle. A block is shown at the
/// cursor; a null one is not.
Task<BlockPlace> askPointAndRotation(CommandContext& context, OdDbObjectId block, BlockPlace place,
                                     bool asksRotation);

} // namespace drafton
