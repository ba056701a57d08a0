// The functions by which the module's libraries find this program as their host.
#include "frame/dynamic_library.h"
#include "host/exports.h"
#include "tpal/console_host.h"

namespace {

void* consoleServices() { return tpal::ConsoleHost::instance().services(); }

} // namespace

extern "C" {

Q_DECL_EXPORT OdModuleHandle GetMainDllInstance() { return oddynlib::mainExecutable(); }

Q_DECL_EXPORT hostexport::HostObjectGetter get_host_funcptr(int index) {
  return index == hostexport::kServicesIndex ? &consoleServices : nullptr;
}

Q_DECL_EXPORT IHostApplication* GetApp() { return tpal::ConsoleHost::instance().application(); }

Q_DECL_EXPORT bool hostGetCmdRouteMap(OdString& out) {
  out = tpal::commandRouteMap();
  return !out.isEmpty();
}

} // extern "C"
