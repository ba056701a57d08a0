// Loading modules into a host.
#pragma once

#include "frame/module_object.h"

#include <functional>
#include <vector>

/// The version quadruple of the module interface that this frame speaks.
struct OdRxApiVersion {
  unsigned major = 4, majorMinor = 3, minor = 1, buildMinor = 0;
  bool operator==(const OdRxApiVersion&) const = default;
};

/// Loads modules, starts them, and stops them in the reverse order.
class OdRxModuleLoader {
 public:
  OdRxModuleLoader() = default;
  OdRxModuleLoader(const OdRxModuleLoader&) = delete;
  OdRxModuleLoader& operator=(const OdRxModuleLoader&) = delete;
  /// Stops and unloads what is still loaded. A module that fails at its stop is only warned of.
  ~OdRxModuleLoader();

  /// Loads the library at `path`, checks its version and calls its initApp. Null on failure, with
  /// the reason in `reason`; a module that fails at start stays in memory unused. A module that is
  /// loaded already is given back.
  OdRxModule* load(const OdString& path, OdString* reason);
  /// Calls uninitApp and unloads the library; false if the module is not loaded here. What
  /// uninitApp raises goes to the caller; the library then stays in memory unused.
  bool unload(OdRxModule* module);
  void unloadAll();

  OdRxModule* find(const OdString& moduleName) const;

 private:
  struct Loaded {
    OdString path;
    OdModuleHandle handle;
    OdRxModule* module;
  };
  std::vector<Loaded> m_loaded;
};
