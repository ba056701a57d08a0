// Choosing entities.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"

#include "drawing/object.h"

#include <vector>

namespace drafton {

/// Entities in the order in which they were chosen, each once.
using Selection = std::vector<OdDbObjectId>;

/// Asks for entities until Enter: a point picks the topmost entity near it; Window and Crossing
/// take two corners (two corners from an empty place choose between them by direction); ALL, Last
/// and Previous; Remove and Add switch what a choice does; Undo takes back the last choice; #1F
/// names an entity by its handle. Only the space that is shown counts. Entities on locked, off or
/// frozen layers are left out. Empty if nothing was chosen. What is chosen becomes "Previous".
Task<Selection> selectObjects(CommandContext& context, QStringView prompt = u"Select objects");

} // namespace drafton
