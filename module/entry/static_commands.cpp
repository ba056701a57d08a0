#include "module/entry/static_commands.h"

#include "host/host_locator.h"
#include "module/entry/exchange_commands.h"
#include "module/entry/make_command.h"
#include "module/entry/tool_palettes_command.h"
#include "tools/deferred_command.h"
#include "tools/execute_tool_command.h"

namespace tc {
namespace {

// The host keeps the names for longer than the library stays.
OdString name(const char16_t* text) { return OdString::fromUtf16(text); }

constexpr char16_t kGroup[] = u"HOST";

struct CommandRow {
  const char16_t* name;
  CmdCreator create;
};
constexpr CommandRow kCommands[] = {{u"ToolPalettes", &TcCmd::create},
                                    {u"ToolPalettesOpen", &makeOpenCommand},
                                    {u"ToolPalettesImport", &makeImportCommand},
                                    {u"ToolPalettesExport", &makeExportCommand},
                                    {u"ToolPalettesMake", &makeMakeCommand}};

} // namespace

void registerStaticCommands() {
  // Each registration has a factory of its own.
  for (const CommandRow& row : kCommands)
    if (const KVPtr<ICmdFactory> factory = host::newCmdFactory())
      factory->registerCommand(name(row.name), row.create, name(kGroup), 0);
  if (const KVPtr<ICmdFactory> factory = host::newCmdFactory())
    factory->registerFunction(name(kGroup), name(kExecuteToolCommand), 0, &executeToolCommand);
}

} // namespace tc
