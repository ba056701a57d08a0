// What a host finds in the library by name, and what happens while it is being loaded.
#include "module/entry/static_commands.h"
#include "module/entry/tool_palette_module.h"
#include "module/export.h"
#include "ui/window/palette_messages.h"
#include "ui/window/palette_window.h"

extern "C" {

TC_API void odrxCreateModuleObject(OdModuleHandle handle, OdRxModule** module) {
  *module = tc::OdTcModule::instance(handle);
}

TC_API void odrxGetAPIVersion(unsigned* major, unsigned* majorMinor, unsigned* minor,
                              unsigned* buildMinor) {
  *major = 4;
  *majorMinor = 3;
  *minor = 1;
  *buildMinor = 0;
}

} // extern "C"

// The commands are there before anything else of the module runs, and so is the way to a window,
// with the messages by which other windows and this one reach each other.
static const bool g_commandsAreRegistered = (tc::registerStaticCommands(), true);
static const bool g_windowIsKnown = (tc::setPaletteSetMaker(&tc::TcUiPaletteSet::create), true);
static const bool g_messagesAreRegistered = (tc::registerPaletteMessages(), true);
