#include "frame/dynamic_library.h"

#include "frame/file_path.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#ifdef Q_OS_WIN

OdModuleHandle oddynlib::mainExecutable() { return GetModuleHandleW(nullptr); }

OdModuleHandle oddynlib::loadedModule(const OdString& name) {
  return GetModuleHandleW(reinterpret_cast<const wchar_t*>(name.utf16()));
}

void* oddynlib::procAddress(OdModuleHandle module, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}

OdModuleHandle oddynlib::load(const OdString& path, OdString* reason) {
  HMODULE module = LoadLibraryW(reinterpret_cast<const wchar_t*>(path.utf16()));
  if (!module && reason) *reason = QStringLiteral("system error %1").arg(GetLastError());
  return module;
}

void oddynlib::unload(OdModuleHandle module) { FreeLibrary(static_cast<HMODULE>(module)); }

#else

OdModuleHandle oddynlib::mainExecutable() { return dlopen(nullptr, RTLD_LAZY); }

OdModuleHandle oddynlib::loadedModule(const OdString& name) {
  const OdString title =
      name.endsWith(QLatin1String(".dll"), Qt::CaseInsensitive) ? odpath::titleOf(name) : name;
  for (const OdString& candidate :
       {title, title + QLatin1String(".so"), QLatin1String("lib") + title + QLatin1String(".so")}) {
    if (void* handle = dlopen(candidate.toLocal8Bit().constData(), RTLD_LAZY | RTLD_NOLOAD)) {
      dlclose(handle); // the lookup itself must not pin the library
      return handle;
    }
  }
  return nullptr;
}

void* oddynlib::procAddress(OdModuleHandle module, const char* name) {
  return module ? dlsym(module, name) : nullptr;
}

OdModuleHandle oddynlib::load(const OdString& path, OdString* reason) {
  void* module = dlopen(odpath::toPlatform(path).toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
  if (!module && reason) *reason = OdString::fromLocal8Bit(dlerror());
  return module;
}

void oddynlib::unload(OdModuleHandle module) {
  if (module) dlclose(module);
}

#endif
