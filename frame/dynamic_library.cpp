#include "frame/dynamic_library.h"

#include "frame/file_path.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#include <link.h>

#include <QFile>

#include <cstring>
#endif

#ifdef Q_OS_WIN

OdModuleHandle oddynlib::mainExecutable() { return GetModuleHandleW(nullptr); }

OdModuleHandle oddynlib::loadedModule(const OdString& name) {
  if (name.isEmpty()) return nullptr; // the system would give the program itself
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

namespace {

/// True if the file is a library of which a part is missing at its end. The system maps such a file
/// without looking, and the program dies when it touches the missing part.
bool isCut(const QString& platformPath) {
  QFile file(platformPath);
  ElfW(Ehdr) header;
  if (platformPath.isEmpty() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(sizeof header);
  if (!start.startsWith(ELFMAG)) return false;
  if (start.size() < static_cast<qsizetype>(sizeof header)) return true;
  std::memcpy(&header, start.constData(), sizeof header);
  if (header.e_phentsize != sizeof(ElfW(Phdr))) return false; // the system refuses it itself
  const auto size = static_cast<std::uint64_t>(file.size());
  file.seek(static_cast<qint64>(header.e_phoff));
  for (int i = 0; i < header.e_phnum; ++i) {
    ElfW(Phdr) segment;
    if (file.read(reinterpret_cast<char*>(&segment), sizeof segment) != sizeof segment) return true;
    if (segment.p_type != PT_LOAD) continue;
    if (segment.p_offset > size || segment.p_filesz > size - segment.p_offset) return true;
  }
  return false;
}

/// What is looked for among the libraries of the process, and the path of what was found.
struct LoadedFile {
  QByteArray names[3];
  QByteArray path;
};

int compareLoaded(dl_phdr_info* library, std::size_t, void* data) {
  auto& wanted = *static_cast<LoadedFile*>(data);
  const QByteArrayView path(library->dlpi_name);
  const QByteArrayView file = path.sliced(path.lastIndexOf('/') + 1);
  for (const QByteArray& name : wanted.names)
    if (name == (name.contains('/') ? path : file)) wanted.path = path.toByteArray();
  return wanted.path.isEmpty() ? 0 : 1;
}

} // namespace

OdModuleHandle oddynlib::mainExecutable() { return dlopen(nullptr, RTLD_LAZY); }

OdModuleHandle oddynlib::loadedModule(const OdString& name) {
  if (name.isEmpty()) return nullptr; // the system would give the program itself
  const OdString title =
      name.endsWith(QLatin1String(".dll"), Qt::CaseInsensitive) ? odpath::titleOf(name) : name;
  // dlopen() itself would look through all folders of the system's at each question.
  LoadedFile wanted{{title.toLocal8Bit(), (title + QLatin1String(".so")).toLocal8Bit(),
                     (QLatin1String("lib") + title + QLatin1String(".so")).toLocal8Bit()},
                    {}};
  if (dl_iterate_phdr(compareLoaded, &wanted) == 0) return nullptr;
  void* const handle = dlopen(wanted.path.constData(), RTLD_LAZY | RTLD_NOLOAD);
  if (handle) dlclose(handle); // the lookup itself must not pin the library
  return handle;
}

void* oddynlib::procAddress(OdModuleHandle module, const char* name) {
  return module ? dlsym(module, name) : nullptr;
}

OdModuleHandle oddynlib::load(const OdString& path, OdString* reason) {
  const OdString file = odpath::toPlatform(path);
  if (isCut(file)) {
    if (reason) *reason = QStringLiteral("%1: a part of the file is missing").arg(file);
    return nullptr;
  }
  void* module = dlopen(file.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
  if (!module && reason) *reason = OdString::fromLocal8Bit(dlerror());
  return module;
}

void oddynlib::unload(OdModuleHandle module) {
  if (module) dlclose(module);
}

#endif
