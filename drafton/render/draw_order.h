// In which order the entities of a block are drawn.
#pragma once

#include "drafton/render/block_shapes.h"

namespace drafton {

/// Numbers of items from the first drawn to the last, as the block's table of sorted entities
/// tells; empty if they are drawn as they stand.
std::vector<std::uint32_t> drawOrder(OdDbObjectId block, const std::vector<ShapeItem>& items);

} // namespace drafton
