// How far and in which direction chosen entities go.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"

namespace drafton {

/// Asks for a displacement as the coordinates of a point; Enter is none at all.
Task<OdGeVector3d> askDisplacement(CommandContext& context);

} // namespace drafton
