#include "frame/module_loader.h"

#include "frame/dynamic_library.h"
#include "frame/error.h"

#include <QtGlobal>

#include <algorithm>

namespace {

OdString versionText(const OdRxApiVersion& v) {
  return QStringLiteral("%1.%2.%3.%4")
      .arg(v.major)
      .arg(v.majorMinor)
      .arg(v.minor)
      .arg(v.buildMinor);
}

/// The reason why a library is no module for this frame; empty if it is one.
OdString refusal(OdModuleHandle handle) {
  const auto version = oddynlib::function<OdRxGetApiVersion>(handle, "odrxGetAPIVersion");
  if (!version || !oddynlib::procAddress(handle, "odrxCreateModuleObject"))
    return QStringLiteral("it is not a module");
  OdRxApiVersion found;
  version(&found.major, &found.majorMinor, &found.minor, &found.buildMinor);
  if (found == OdRxApiVersion()) return {};
  return QStringLiteral("it was built for version %1 of the module interface, this is %2")
      .arg(versionText(found), versionText(OdRxApiVersion()));
}

} // namespace

OdRxModuleLoader::~OdRxModuleLoader() {
  while (!m_loaded.empty()) {
    try {
      unload(m_loaded.back().module);
    } catch (const std::exception& error) {
      // The others have to stop all the same, and nobody can catch what a destructor throws.
      qWarning("%s", error.what());
    }
  }
}

OdRxModule* OdRxModuleLoader::load(const OdString& path, OdString* reason) {
  for (const Loaded& l : m_loaded)
    if (l.path == path) return l.module;
  OdString ignored;
  OdString& why = reason ? *reason : ignored;
  const OdModuleHandle handle = oddynlib::load(path, &why);
  if (!handle) return nullptr;
  // One library can go by many paths. The system counts its loads, so this one is given up.
  for (const Loaded& l : m_loaded)
    if (l.handle == handle) {
      oddynlib::unload(handle);
      return l.module;
    }
  why = refusal(handle);
  OdRxModule* module = nullptr;
  if (why.isEmpty()) {
    oddynlib::function<OdRxCreateModuleObject>(handle, "odrxCreateModuleObject")(handle, &module);
    if (!module) why = QStringLiteral("it gives no module object");
  }
  if (!why.isEmpty()) {
    oddynlib::unload(handle);
    return nullptr;
  }
  module->addRef();
  try {
    module->initApp();
  } catch (const std::exception& error) {
    // What the module registered before it failed stays in place and points into the library, so
    // that is not unloaded again.
    why = OdString::fromUtf8(error.what());
    return nullptr;
  }
  m_loaded.push_back({path, handle, module});
  return module;
}

bool OdRxModuleLoader::unload(OdRxModule* module) {
  const auto at = std::find_if(m_loaded.begin(), m_loaded.end(),
                               [&](const Loaded& l) { return l.module == module; });
  if (at == m_loaded.end()) return false;
  const Loaded doomed = *at;
  m_loaded.erase(at);
  // A module that fails here leaves things behind that point into its library, which then stays.
  doomed.module->uninitApp();
  doomed.module->release();
  oddynlib::unload(doomed.handle);
  return true;
}

void OdRxModuleLoader::unloadAll() {
  while (!m_loaded.empty()) unload(m_loaded.back().module);
}

OdRxModule* OdRxModuleLoader::find(const OdString& moduleName) const {
  for (const Loaded& l : m_loaded)
    if (l.module->moduleName() == moduleName) return l.module;
  return nullptr;
}
