// Moving chosen entities, and copies of them.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/selection_picker.h"
#include "drawing/geometry/matrix.h"

#include <functional>

namespace drafton {

/// Moves one entity; false, and nothing changed, if it cannot take the shape.
using EntityMover = std::function<bool(OdDbEntity& entity)>;
/// Moves each entity by the same transformation.
EntityMover by(const OdGeMatrix3d& transform);

/// Moves the entities. Those that cannot take the shape stay; how many they are is put into
/// `refusal` ("%1 could not be moved.") and printed.
void moveEntities(CommandContext& context, const Selection& entities, const EntityMover& mover,
                  const char16_t* refusal);

/// Moved copies of the entities, put behind everything in the originals' space. Copies of whole
/// groups are groups again.
Selection copyEntities(CommandContext& context, const Selection& entities, const EntityMover& mover,
                       const char16_t* refusal);

} // namespace drafton
