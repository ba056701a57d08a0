// The command that makes tools from what is in the drawing.
#pragma once

#include "host/command.h"

namespace tc {

/// Makes the command object of `ToolPalettesMake` with one reference for the caller. The command
/// asks for a palette, which is made in the default catalog if there is none of that name, and for
/// what the tools are to be made of. It fails if no tool comes of it.
ICmdProcess* makeMakeCommand();

} // namespace tc
