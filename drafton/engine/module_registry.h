// Modules that Drafton loads at run time.
#pragma once

#include "frame/module_loader.h"

#include <map>

namespace drafton {

class Engine;

/// Loads modules and forgets all that one registered when it is unloaded.
class ModuleRegistry {
 public:
  explicit ModuleRegistry(Engine& engine)
    : m_engine(engine) {}
  ModuleRegistry(const ModuleRegistry&) = delete;
  ModuleRegistry& operator=(const ModuleRegistry&) = delete;
  ~ModuleRegistry() { unloadAll(); }

  /// Loads the library at `path` and starts its module. Null on failure, with the reason; nothing
  /// of the module is left then.
  OdRxModule* load(const OdString& path, OdString* reason);
  bool unload(OdRxModule* module);
  /// Unloads all, the last one first.
  void unloadAll();

 private:
  struct Loaded {
    OdRxModule* module;
    OdModuleHandle pin;
    int owner;
  };
  void forget(int owner);

  Engine& m_engine;
  OdRxModuleLoader m_loader;
  std::vector<Loaded> m_loaded;
  int m_lastOwner = 0;
};

} // namespace drafton
