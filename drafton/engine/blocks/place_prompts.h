// Asking where and how something is inserted.
#pragma once

#include "drafton/engine/blocks/block_placing.h"
#include "drafton/engine/task.h"

namespace drafton {

/// Asks for point, scale and rotation, in the way of INSERT: the keywords at the point set scale or
/// rotation beforehand, which are then not asked for. `unitFactor` is shown, `uniform` asks for one
/// scale factor only.
Task<BlockPlace> askBlockPlace(CommandContext& context, bool uniform);

/// Asks for the insertion point and, if `asksRotation`, for the angle.
Task<BlockPlace> askPointAndRotation(CommandContext& context, BlockPlace place, bool asksRotation);

} // namespace drafton
