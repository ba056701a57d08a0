// The bodies of the commands around blocks, references, pictures and layouts.
#pragma once

#include "drafton/engine/native_command.h"

namespace drafton {

/// INSERT: asks for everything.
Task<void> insertBlock(CommandContext& context);
/// "InsertBlock": the insertion by which a module puts a block. Without a parameter set it is
/// INSERT. With one it takes `name` (a block of the drawing), `BC_SCALE`, `BC_ROTATE_ANGLE`
/// (radians), `BC_ASK_ROTATION` and `BC_IS_EXPLODE` (0 or 1), and asks for the point only.
Task<void> insertBlockByName(CommandContext& context);
Task<void> makeBlock(CommandContext& context);
Task<void> writeBlock(CommandContext& context);
/// COPYCLIP: puts entities on the clipboard, with a temporary drawing that holds them.
Task<void> copyToClipboard(CommandContext& context);
/// CUTCLIP: as COPYCLIP, and takes them out of the drawing.
Task<void> cutToClipboard(CommandContext& context);
/// PASTECLIP: puts the entities of the clipboard into the current space, scaled to its units.
Task<void> pasteFromClipboard(CommandContext& context);
/// XATTACH. A parameter set gives the file as `ToolPaletteCall`, `XATT_REFTYPE` (2 overlays),
/// `XATT_SCALE`, `XATT_ROTATION` (radians), `XATT_PROMPT_ROTATION` (0 or 1).
Task<void> attachReference(CommandContext& context);
Task<void> references(CommandContext& context);
/// INSERTRASTER. A parameter set gives `Path`, `DefName`, `Scale` and `Rotation` (radians).
Task<void> insertRaster(CommandContext& context);
Task<void> layout(CommandContext& context);
Task<void> modelSpace(CommandContext& context);
Task<void> makeView(CommandContext& context);
/// VPLAYER: layers that are frozen in single views of a sheet.
Task<void> layersOfViews(CommandContext& context);
Task<void> pageSetup(CommandContext& context);

} // namespace drafton
