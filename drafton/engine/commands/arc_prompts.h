// Questions about arcs that several commands ask.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/task.h"

namespace drafton {

/// An included angle other than 0 and a full turn; negative is clockwise.
Task<double> askIncludedAngle(CommandContext& context, std::optional<OdGePoint3d> base);

/// The end of an arc around a centre: a point, an angle or a chord.
Task<std::optional<ArcPath>> askArcAround(CommandContext& context, OdGePoint3d center,
                                          OdGePoint3d start);

/// Tells that what was given makes no arc.
void printNoArc(const CommandContext& context);

} // namespace drafton
