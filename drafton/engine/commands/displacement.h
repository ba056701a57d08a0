// Moving entities by a distance in a direction.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"
#include "drawing/entity.h"

namespace drafton {

/// Asks for a displacement as the coordinates of a point; Enter is none at all.
Task<OdGeVector3d> askDisplacement(CommandContext& context);

/// Moves an entity. False if it cannot be moved, or only to where numbers end; it is then as it
/// was.
bool displace(OdDbEntity& entity, const OdGeVector3d& shift);

} // namespace drafton
