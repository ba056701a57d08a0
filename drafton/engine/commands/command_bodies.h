// The bodies of the commands that draw, edit and show; drawing_commands.cpp gives them their names.
#pragma once

#include "drafton/engine/native_command.h"

namespace drafton {

Task<void> line(CommandContext& context);
Task<void> polyline(CommandContext& context);
Task<void> circle(CommandContext& context);
Task<void> arc(CommandContext& context);
Task<void> rectangle(CommandContext& context);
Task<void> text(CommandContext& context);
Task<void> erase(CommandContext& context);
Task<void> move(CommandContext& context);
Task<void> copy(CommandContext& context);
Task<void> undoSteps(CommandContext& context);
Task<void> undoLast(CommandContext& context);
Task<void> redo(CommandContext& context);
Task<void> zoom(CommandContext& context);
Task<void> setVariable(CommandContext& context);
Task<void> layer(CommandContext& context);

} // namespace drafton
