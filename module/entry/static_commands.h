// The commands that exist before anything else of the module runs.
#pragma once

namespace tc {

/// Registers `ToolPalettes`, `ToolPalettesOpen`, `ToolPalettesImport`, `ToolPalettesExport`,
/// `ToolPalettesMake` and `__executetool` with the host. Called once, while the library is being
/// loaded; a host without a command factory gets no commands. Nothing takes them back.
void registerStaticCommands();

} // namespace tc
