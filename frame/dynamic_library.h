// Libraries that are loaded at run time, and the exports of what is loaded already.
#pragma once

#include "frame/module_object.h"

/// Lookups in the running process.
namespace oddynlib {

/// The handle of the process's own executable.
OdModuleHandle mainExecutable();
/// The handle of a library that is loaded already, by its file name with or without the platform's
/// extension; null if it is not loaded. Nothing is loaded.
OdModuleHandle loadedModule(const OdString& name);
/// The address of an exported function, or null.
void* procAddress(OdModuleHandle module, const char* name);

/// Loads a library. Null on failure, with the system's reason in `reason`.
OdModuleHandle load(const OdString& path, OdString* reason);
/// Gives up one load.
void unload(OdModuleHandle module);

/// The export as a function of type F, or null.
template <class F>
F function(OdModuleHandle module, const char* name) {
  return module ? reinterpret_cast<F>(procAddress(module, name)) : nullptr;
}

} // namespace oddynlib
