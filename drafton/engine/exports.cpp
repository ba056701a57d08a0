#include "drafton/engine/exports.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/hatch_patterns.h"
#include "drafton/engine/mem_param.h"
#include "frame/dynamic_library.h"
#include "frame/file_path.h"
#include "host/exports.h"

#include <QFileInfo>
#include <QtGlobal>

using drafton::Engine;

namespace {

// Nothing is thrown through a function with C linkage, and none of these can fail.

void* hostServices() {
  Engine* const engine = Engine::current();
  return engine ? static_cast<IHostServices*>(&engine->services()) : nullptr;
}

} // namespace

extern "C" {

Q_DECL_EXPORT OdModuleHandle GetMainDllInstance() { return oddynlib::mainExecutable(); }

/// Null is the program itself to whoever looks the module up by its name.
Q_DECL_EXPORT const char16_t* GetMainDllNameW() { return nullptr; }

Q_DECL_EXPORT hostexport::HostObjectGetter get_host_funcptr(int index) {
  return index == hostexport::kServicesIndex ? &hostServices : nullptr;
}

Q_DECL_EXPORT void new_ICmdFactory(ICmdFactory** factory) {
  *factory = Engine::current() ? new drafton::CommandFactory : nullptr;
}

Q_DECL_EXPORT void new_MemParam(IMemParam** parameters) { *parameters = new drafton::MemParam; }

Q_DECL_EXPORT IHostApplication* GetApp() {
  Engine* const engine = Engine::current();
  return engine ? &engine->application() : nullptr;
}

Q_DECL_EXPORT bool Supp_Translate(const OdString& text, OdString& out) {
  return drafton::Translator::instance().translate(text, out);
}

Q_DECL_EXPORT bool hostGetCmdRouteMap(OdString& out) {
  Engine* const engine = Engine::current();
  const OdString path = engine ? engine->commandRouteMap() : OdString();
  if (path.isEmpty()) return false;
  out = path;
  return true;
}

Q_DECL_EXPORT bool hostGetCustomPatternFileName(const OdString& pattern, OdString& out) {
  Engine* const engine = Engine::current();
  const OdString path =
      engine ? drafton::customPatternFile(*engine, engine->documents().current(), pattern)
             : OdString();
  if (path.isEmpty()) return false;
  out = path;
  return true;
}

Q_DECL_EXPORT bool isObjectSaved(IHostDocument* document) {
  const OdDbDatabase* const drawing = document->database();
  return drawing && !document->path().isEmpty() && !drawing->isModified() &&
         QFileInfo::exists(odpath::toPlatform(document->path()));
}

} // extern "C"

void drafton::keepHostExports() {}
