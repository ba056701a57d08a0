// Asking for the text style of new texts.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"

namespace drafton {

/// Makes a style of the drawing the current one; `?` lists them.
Task<void> askCurrentTextStyle(CommandContext& context);

} // namespace drafton
