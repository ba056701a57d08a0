// The commands that take palettes in from other programs, and give palettes to them.
#pragma once

#include "host/command.h"

namespace tc {

/// Makes the command object of `ToolPalettesImport` with one reference for the caller. The command
/// asks for a file, the folder of one of the loaded catalogs and a group, and imports the palettes
/// of the file. It fails if one of them does not come in.
ICmdProcess* makeImportCommand();
/// The same for `ToolPalettesExport`, which asks for a palette, by its name or id, and a file.
ICmdProcess* makeExportCommand();

} // namespace tc
