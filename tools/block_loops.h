// Blocks that lead back to themselves.
#pragma once

#include "drawing/object_id.h"

namespace tc {

/// True if a block, or one that it inserts, contains itself, at whatever depth: nobody could draw
/// it. External references are not followed.
bool hasBlockLoop(OdDbObjectId block);

} // namespace tc
