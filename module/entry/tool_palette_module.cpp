#include "module/entry/tool_palette_module.h"

#include "catalog/cfg_change_reactor.h"
#include "catalog/palette_manager.h"
#include "host/host_locator.h"
#include "host/integration/completion_source.h"
#include "host/integration/editor_reactor.h"
#include "host/integration/editor_reactor_ex.h"
#include "module/entry/class_table.h"
#include "module/entry/singletons.h"
#include "tools/clipboard_formats.h"
#include "ui/palette_set.h"

namespace tc {
namespace {

OdTcModule* g_module = nullptr;

IHostEditorEvents* editorEvents() {
  IHostServices* const services = host::services();
  return services ? services->editorEvents() : nullptr;
}

void refreshVisibleWindow() {
  ITcUiPaletteSet* const window = ITcUiPaletteSet::instance();
  if (window && window->isVisible()) window->refresh();
}

} // namespace

OdTcModule* OdTcModule::instance(OdModuleHandle handle) {
  if (!g_module) g_module = new OdTcModule(handle);
  return g_module;
}

OdTcModule::~OdTcModule() { g_module = nullptr; }

OdString OdTcModule::moduleName() const {
  return host::ownText(QStringLiteral("ToolPaletteManager"));
}

void OdTcModule::initApp() {
  registerModuleClasses(this);
  TcEditorReactor::rxInit(this);
  TcEditorReactorEx::rxInit(this);
  createSingletons();
  registerClipboardFormats();
  TcEditorReactorEx::setInstance(TcEditorReactorEx::desc()->create());
  if (IHostEditorEvents* const events = editorEvents()) {
    events->addReactor(TcEditorReactor::instance());
    events->addReactor(TcEditorReactorEx::instance());
  }
  setVisibleWindowRefresh(&refreshVisibleWindow);
  OdTcPaletteManager::instance()->loadCatalogs();
  clearPaletteSetShown();
  registerToolSource();
}

void OdTcModule::uninitApp() {
  // The window goes before anything that it shows.
  setVisibleWindowRefresh(nullptr);
  ITcUiPaletteSet::setInstance(nullptr);
  unregisterModuleClasses();
  if (IHostEditorEvents* const events = editorEvents()) {
    events->removeReactor(TcEditorReactor::instance());
    events->removeReactor(TcEditorReactorEx::instance());
  }
  TcEditorReactor::rxUninit();
  TcEditorReactorEx::rxUninit();
  releaseSingletons();
  TcEditorReactorEx::setInstance(nullptr);
  removeToolSource();
}

} // namespace tc
