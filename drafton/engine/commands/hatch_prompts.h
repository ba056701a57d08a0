// Questions about hatches that several commands ask.
#pragma once

#include "drafton/engine/commands/hatch_areas.h"
#include "drafton/engine/commands/hatch_options.h"
#include "drafton/engine/task.h"

namespace drafton {

/// What fills the area: a pattern, lines, a colour or a gradient, with all that belongs to it.
Task<void> askFill(CommandContext& context, HatchFill& fill);
Task<void> askIslandStyle(CommandContext& context, IslandStyle& style);
Task<void> askGap(CommandContext& context, double& gap);
Task<void> askAssociative(CommandContext& context, bool& isAssociative);

} // namespace drafton
