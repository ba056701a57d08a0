// Moving entities by a distance in a direction.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/task.h"
#include "drawing/geometry/geometry.h"

namespace drafton {

/// Asks for a displacement as the coordinates of a point; Enter is none at all.
Task<OdGeVector3d> askDisplacement(CommandContext& context);

/// How entities take a displacement.
using MoverOf = std::function<EntityMover(const OdGeVector3d& shift)>;
/// Asks for a displacement by two points, or as coordinates, and shows what becomes of the
/// entities.
Task<OdGeVector3d> askShift(CommandContext& context, const Selection& entities,
                            const MoverOf& moverOf);

/// An answered point as a displacement: without a typed z it keeps the height.
OdGeVector3d displacementOf(const Answer<OdGePoint3d>& point);

} // namespace drafton
