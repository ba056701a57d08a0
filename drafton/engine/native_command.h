// Drafton's own commands as tables.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"

#include <span>

namespace drafton {

/// A command's body: a coroutine. The context outlives it.
using CommandBody = Task<void> (*)(CommandContext& context);

/// How the processor treats a command.
enum CommandFlags : unsigned {
  kOrdinary = 0,
  /// No undo step is opened around the command: for what walks the undo history or leaves the
  /// document.
  kNoUndoStep = 1,
  /// Runs without a document.
  kNoDocument = 2,
};

/// One row of a command table.
struct NativeCommand {
  const char16_t* name;
  unsigned flags;
  CommandBody body;
};

/// New, open, save, close, settings.
std::span<const NativeCommand> documentCommands();
/// Everything that draws, edits or shows (drafton/engine/commands/).
std::span<const NativeCommand> drawingCommands();
/// Blocks, external references, pictures and layouts (drafton/engine/blocks/).
std::span<const NativeCommand> blockCommands();

} // namespace drafton
