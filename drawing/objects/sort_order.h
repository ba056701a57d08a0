// In which order the entities of a block are drawn.
#pragma once

#include "drawing/handle.h"
#include "drawing/object_id.h"

#include <unordered_map>

/// What the block's table of sorted entities says: entities are drawn in the order of these
/// handles, and one that is not in the table in that of its own. Empty if the block has no table.
std::unordered_map<OdDbObjectId, OdDbHandle> oddbSortHandles(OdDbObjectId block);
