// Finds what nothing in a drawing uses. Not for use outside of the library.
#pragma once

#include "drawing/database.h"

#include <unordered_set>

namespace oddb {

/// Blocks, layers, line types, text and dimension styles and applications that neither the spaces
/// nor named objects nor current values refer to, not even by others of them. What every drawing
/// has, and external references, are never among them.
std::vector<OdDbObjectId> unusedRecords(const OdDbDatabase& database);

/// Anonymous blocks ("*D12") that showed something which is erased, and that nothing else uses.
/// They have to stay, for what is erased can come back; a saved drawing does without them.
std::unordered_set<OdDbObjectId> orphanedBlocks(const OdDbDatabase& database);

} // namespace oddb
