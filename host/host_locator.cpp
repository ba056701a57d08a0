#include "host/host_locator.h"

#include "frame/dynamic_library.h"
#include "host/exports.h"

namespace host {
namespace {

class ProcessDirectory : public ModuleDirectory {
 public:
  OdModuleHandle mainExecutable() override { return oddynlib::mainExecutable(); }
  OdModuleHandle loadedModule(const OdString& name) override {
    return oddynlib::loadedModule(name);
  }
  void* procAddress(OdModuleHandle module, const char* name) override {
    return oddynlib::procAddress(module, name);
  }
};

ProcessDirectory g_process;
ModuleDirectory* g_directory = &g_process;
IHostApplication* g_application = nullptr;

template <class F>
F exportOf(OdModuleHandle module, const char* name) {
  return module ? reinterpret_cast<F>(g_directory->procAddress(module, name)) : nullptr;
}

OdModuleHandle moduleOfKvAcApp() {
  const auto get = exportOf<hostexport::GetMainDllInstanceEx>(
      g_directory->loadedModule(QStringLiteral("KvAcApp.dll")), hostexport::kGetMainDllInstanceEx);
  return get ? get() : nullptr;
}

OdModuleHandle namedModule(const char16_t* name) {
  return name ? g_directory->loadedModule(OdString::fromUtf16(name))
              : g_directory->mainExecutable();
}

OdModuleHandle commandModule() {
  if (const auto name = exportOf<hostexport::GetMainDllName>(g_directory->mainExecutable(),
                                                             hostexport::kGetMainDllName))
    if (OdModuleHandle named = namedModule(name())) return named;
  if (OdModuleHandle view = g_directory->loadedModule(QStringLiteral("hbview"))) return view;
  return moduleOfKvAcApp();
}

IHostApplication* findApplication() {
  if (const auto get = exportOf<hostexport::GetApp>(
          g_directory->loadedModule(QStringLiteral("KvAcApp.dll")), hostexport::kGetApp))
    return get();
  if (const auto get = exportOf<hostexport::GetApp>(mainModule(), hostexport::kGetApp))
    return get();
  const auto create = exportOf<hostexport::CreateObjectC>(
      g_directory->loadedModule(QStringLiteral("KViCore.dll")), hostexport::kCreateObject);
  return create ? static_cast<IHostApplication*>(create("CLSID_APP")) : nullptr;
}

/// A function of a library of the host's or, if that is not loaded or lacks it, of the main module.
template <class F>
F exportOfLibrary(const OdString& library, const char* name) {
  const F found = exportOf<F>(g_directory->loadedModule(library), name);
  return found ? found : exportOf<F>(mainModule(), name);
}

} // namespace

ModuleDirectory* setModuleDirectory(ModuleDirectory* directory) {
  ModuleDirectory* former = g_directory == &g_process ? nullptr : g_directory;
  g_directory = directory ? directory : &g_process;
  g_application = nullptr;
  return former;
}

OdModuleHandle mainModule() {
  if (const auto get = exportOf<hostexport::GetMainDllInstance>(g_directory->mainExecutable(),
                                                                hostexport::kGetMainDllInstance))
    return get();
  if (OdModuleHandle view = g_directory->loadedModule(QStringLiteral("hbview.dll"))) return view;
  return moduleOfKvAcApp();
}

IHostServices* services() {
  const auto lead = exportOf<hostexport::GetHostFuncPtr>(mainModule(), hostexport::kGetHostFuncPtr);
  const hostexport::HostObjectGetter get = lead ? lead(hostexport::kServicesIndex) : nullptr;
  return get ? static_cast<IHostServices*>(get()) : nullptr;
}

IHostDocumentManager* documentManager() {
  IHostServices* const all = services();
  return all ? all->documentManager() : nullptr;
}

IHostDocument* curDocument() {
  IHostDocumentManager* const manager = documentManager();
  return manager ? manager->curDocument() : nullptr;
}

KVPtr<ICmdFactory> newCmdFactory() {
  KVPtr<ICmdFactory> factory;
  if (const auto make =
          exportOf<hostexport::NewCmdFactory>(commandModule(), hostexport::kNewCmdFactory))
    make(factory.out());
  return factory;
}

KVPtr<IMemParam> newMemParam() {
  KVPtr<IMemParam> parameters;
  if (const auto make = exportOf<hostexport::NewMemParam>(mainModule(), hostexport::kNewMemParam))
    make(parameters.out());
  return parameters;
}

IHostApplication* application() {
  if (!g_application) g_application = findApplication();
  return g_application;
}

KVPtr<IProfile> profileSection(const OdString& name, bool create) {
  IHostApplication* const app = application();
  const KVPtr<IProfile> root = app ? app->profile() : nullptr;
  return root ? root->openSection(ownText(name), create) : nullptr;
}

OdString ownText(OdString text) {
  text.detach();
  return text;
}

OdString translate(const OdString& text) {
  OdString translated;
  const auto function = exportOf<hostexport::Translate>(mainModule(), hostexport::kTranslate);
  return function && function(text, translated) ? translated : text;
}

void print(const OdString& text) {
  if (const KVPtr<IHostMessages> messages = service<IHostMessages>())
    messages->print(ownText(text));
}

OdString commandRouteMap() {
  OdString path;
  const auto function =
      exportOf<hostexport::GetCmdRouteMap>(mainModule(), hostexport::kGetCmdRouteMap);
  return function && function(path) ? path : OdString();
}

OdString customPatternFile(const OdString& pattern) {
  OdString path;
  const auto function = exportOfLibrary<hostexport::GetCustomPatternFileName>(
      QStringLiteral("draftoncmd1.dll"), hostexport::kGetCustomPatternFileName);
  return function && function(pattern, path) ? path : OdString();
}

bool isSaved(IHostDocument& document) {
  const auto function = exportOfLibrary<hostexport::IsObjectSaved>(
      QStringLiteral("DwgExplorer.dll"), hostexport::kIsObjectSaved);
  return function ? function(&document) : !document.path().isEmpty();
}

} // namespace host
