// Finds the host at run time. The one place that knows how.
#pragma once

#include "host/application.h"
#include "host/command.h"
#include "host/document.h"
#include "host/messages.h"
#include "host/services.h"

#include "frame/module_object.h"

namespace host {

/// What the search looks at: the modules of this process and their exports. Tests put another one
/// in its place.
class ModuleDirectory {
 public:
  virtual ~ModuleDirectory() = default;
  virtual OdModuleHandle mainExecutable() = 0;
  /// A module that is loaded already, by name; null if it is not.
  virtual OdModuleHandle loadedModule(const OdString& name) = 0;
  virtual void* procAddress(OdModuleHandle module, const char* name) = 0;
};

/// Puts another directory in force and gives the former one; null puts back the process's own.
/// Forgets what was found.
ModuleDirectory* setModuleDirectory(ModuleDirectory* directory);

/// The host's main module: `GetMainDllInstance` of the main executable, else the loaded module
/// hbview.dll, else what `GetMainDllInstanceEx` of the loaded KvAcApp.dll gives. Null without a
/// host.
OdModuleHandle mainModule();

/// The host services object, or null.
IHostServices* services();
/// A service that has no accessor of its own; null if the host lacks it.
template <class T>
KVPtr<T> service() {
  return kvQuery<T>(services());
}

/// The document manager, or null.
IHostDocumentManager* documentManager();
/// The active document, or null.
IHostDocument* curDocument();

/// A new command factory; null if the host offers none. It is searched for on its own: the module
/// that `GetMainDllNameW` of the main executable names, else hbview, else KvAcApp.dll's
/// `GetMainDllInstanceEx`.
KVPtr<ICmdFactory> newCmdFactory();
/// A new parameter set, or null.
KVPtr<IMemParam> newMemParam();

/// The application object: `GetApp` of the loaded KvAcApp.dll, else of the main module, else
/// `CreateObjectC` of KViCore.dll. Kept once found. Null without a host.
IHostApplication* application();
/// A section of the host's settings store; null if the host has no store.
KVPtr<IProfile> profileSection(const OdString& name, bool create = true);

/// The text in memory that it shares with nobody. What the host keeps beyond a call (names under which
/// something is registered, keys and values of settings) must not point at a literal of this
/// library: the library can be unloaded, the host lives on.
OdString ownText(OdString text);

/// The text in the user's language, or the text itself.
OdString translate(const OdString& text);
/// Prints on the host's command line; silent without a host.
void print(const OdString& text);
/// The stored path of the command route map; empty if the host has none.
OdString commandRouteMap();
/// The stored path of the user's own file that a hatch pattern stands in; empty for a predefined or
/// unknown pattern.
OdString customPatternFile(const OdString& pattern);
/// True if all that the document shows stands in its file. A host that cannot tell is taken to have
/// saved every document that has a file.
bool isSaved(IHostDocument& document);

} // namespace host
