// The commands that open catalogs, take palettes in from other programs, and give palettes to them.
#pragma once

#include "host/command.h"

namespace tc {

/// Makes the command object of `ToolPalettesImport` with one reference for the caller. The command
/// asks for a file, the folder of one of the loaded catalogs and a group, and imports the palettes
/// of the file. It fails if one of them does not come in.
ICmdProcess* makeImportCommand();
/// The same for `ToolPalettesExport`, which asks for a palette, by its name or id, and a file.
ICmdProcess* makeExportCommand();
/// The same for `ToolPalettesOpen`, which opens the catalog of a folder. A host with windows shows
/// the palettes and has the folder chosen there; any other is asked for it.
ICmdProcess* makeOpenCommand();

} // namespace tc
