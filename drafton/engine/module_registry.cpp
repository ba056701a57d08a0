#include "drafton/engine/module_registry.h"

#include "drafton/engine/engine.h"
#include "frame/dynamic_library.h"

#include <algorithm>

namespace drafton {

OdRxModule* ModuleRegistry::load(const OdString& path, OdString* reason) {
  const int owner = ++m_lastOwner;
  // Static initialisers register commands as soon as the library is there. The pin keeps its code
  // until all that was registered is forgotten, even if the module does not start.
  const OwnerScope::Entered scope(m_engine.owners(), owner);
  const OdModuleHandle pin = oddynlib::load(path, reason);
  if (!pin) return nullptr;
  OdRxModule* const module = m_loader.load(path, reason);
  const bool isKnown = std::any_of(m_loaded.begin(), m_loaded.end(),
                                   [&](const Loaded& l) { return l.module == module; });
  if (module && !isKnown) {
    m_loaded.push_back({module, pin, owner});
    return module;
  }
  if (!module) forget(owner);
  oddynlib::unload(pin);
  return module;
}

bool ModuleRegistry::unload(OdRxModule* module) {
  const auto at = std::find_if(m_loaded.begin(), m_loaded.end(),
                               [&](const Loaded& l) { return l.module == module; });
  if (at == m_loaded.end()) return false;
  const Loaded doomed = *at;
  m_loaded.erase(at);
  // A command of the module that waits stands on the stack of its own code.
  m_engine.cancelAll();
  m_loader.unload(doomed.module);
  forget(doomed.owner);
  oddynlib::unload(doomed.pin);
  return true;
}

void ModuleRegistry::unloadAll() {
  while (!m_loaded.empty()) unload(m_loaded.back().module);
}

void ModuleRegistry::forget(int owner) {
  m_engine.commands().drop(owner);
  m_engine.events().drop(owner);
  m_engine.completion().drop(owner);
  m_engine.application().drop(owner);
}

} // namespace drafton
