// Moving entities by a distance in a direction.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"
#include "drawing/geometry/geometry.h"

namespace drafton {

/// Asks for a displacement as the coordinates of a point; Enter is none at all.
Task<OdGeVector3d> askDisplacement(CommandContext& context);

/// An answered point as a displacement: without a typed z it keeps the height.
OdGeVector3d displacementOf(const Answer<OdGePoint3d>& point);

} // namespace drafton
