#include "persistence/path_operations.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/path_macros.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tc {
namespace {

constexpr QChar kSeparator(u'\\');

bool isSeparator(QChar c) { return c == u'\\' || c == u'/'; }

/// `text` with the first `what` replaced; nothing if it is not there.
std::optional<OdString> withFirstReplaced(const OdString& text, const OdString& what,
                                          const OdString& by) {
  const qsizetype at = text.indexOf(what);
  if (at < 0) return std::nullopt;
  OdString result = text;
  return result.replace(at, what.size(), by);
}

OdString inFolder(const OdString& folder, const OdString& name) {
  return folder + kSeparator + name;
}

QStringList segmentsOf(const OdString& path) {
  OdString text = path;
  text.replace(u'/', kSeparator);
  while (text.size() > 1 && text.endsWith(kSeparator)) text.chop(1);
  return text.split(kSeparator);
}

/// The innermost of the folders that the file lies in or below; empty if it lies in none of them.
OdString folderAround(const OdString& file, const QStringList& folders) {
  const QStringList place = segmentsOf(file);
  OdString innermost;
  qsizetype depth = 0;
  for (const OdString& folder : folders) {
    const QStringList around = segmentsOf(folder);
    if (around.size() <= depth || place.mid(0, around.size()) != around) continue;
    innermost = folder;
    depth = around.size();
  }
  return innermost;
}

/// The folders that a macro stands for in a file: those of its first value, which is a whole
/// setting as somebody has typed it.
QStringList foldersOf(const OdTcPathMacro& macro) {
  QStringList folders;
  if (macro.values.isEmpty()) return folders;
  // A folder may have a semicolon in its name, where it is the only one.
  const QStringList whole(macro.values.first());
  if (!folderAround(fileOfPathMacros(), whole).isEmpty()) return whole;
  for (const OdString& part : splitPathList(macro.values.first()))
    if (const OdString folder = part.trimmed(); !folder.isEmpty()) folders << folder;
  return folders;
}

/// Of several folders the one that the file itself lies in, else the first one that has what is
/// behind the macro, else the first.
OdString folderFor(const QStringList& folders, const OdString& behind) {
  if (folders.size() == 1) return folders.first();
  if (const OdString own = folderAround(fileOfPathMacros(), folders); !own.isEmpty()) return own;
  const auto found = std::find_if(folders.begin(), folders.end(), [&](const OdString& folder) {
    return odrxSystemServices()->fileExists(folder + behind);
  });
  return found == folders.end() ? folders.first() : *found;
}

/// A path in a folder that a macro stands for, if that is the one which the file lies in, with the
/// macro; else nothing.
std::optional<OdString> collapsedBesideFile(const OdString& path) {
  const auto macros = pathMacros();
  if (!macros) return std::nullopt;
  for (const OdTcPathMacro& macro : *macros) {
    const OdString own = folderAround(fileOfPathMacros(), foldersOf(macro));
    if (!own.isEmpty() && path.startsWith(inFolder(own, OdString())))
      return macro.text + path.mid(own.size());
  }
  return std::nullopt;
}

} // namespace

bool expandPath(const OdString& in, OdString& out) {
  const auto macros = pathMacros();
  if (!macros) return false;
  for (const OdTcPathMacro& macro : *macros) {
    if (macro.values.isEmpty()) continue;
    if (const auto expanded = withFirstReplaced(in, macro.text, macro.values.first())) {
      out = *expanded;
      return true;
    }
  }
  return false;
}

bool collapsePath(const OdString& in, OdString& out) {
  const auto macros = pathMacros();
  if (!macros) return false;
  for (const OdTcPathMacro& macro : *macros)
    for (const OdString& value : macro.values)
      if (const auto collapsed = withFirstReplaced(in, value, macro.text)) {
        out = *collapsed;
        return true;
      }
  return false;
}

OdString expandedStoredPath(const OdString& stored) {
  if (!stored.startsWith(u'%')) return stored;
  const auto macros = pathMacros();
  if (!macros) return stored;
  for (const OdTcPathMacro& macro : *macros) {
    const QStringList folders = stored.startsWith(macro.text) ? foldersOf(macro) : QStringList();
    const OdString behind = stored.mid(macro.text.size());
    if (!folders.isEmpty()) return folderFor(folders, behind) + behind;
  }
  return stored;
}

OdString collapsedStoredPath(const OdString& path) {
  OdString collapsed;
  if (!collapsePath(path, collapsed)) collapsed = collapsedBesideFile(path).value_or(path);
  // A folder that is met in mid-path, or is not the first of its macro, would not come back.
  return expandedStoredPath(collapsed) == path ? collapsed : path;
}

OdString combinePath(const OdString& relative, const OdString& baseFile) {
  const auto found = std::find_if(baseFile.crbegin(), baseFile.crend(), isSeparator);
  if (found == baseFile.crend()) return relative;
  const OdString folder = baseFile.left(std::distance(found, baseFile.crend()) - 1);
  OdString result = folder;
  if (relative != QLatin1String(".") && relative != QLatin1String(".\\")) {
    if (relative.isEmpty() || !isSeparator(relative.front())) result += kSeparator;
    result += relative;
  }
  normalizePath(result);
  return result;
}

void normalizePath(OdString& path) {
  const OdString here = QStringLiteral("\\.\\");
  const OdString above = QStringLiteral("\\..\\");
  for (qsizetype at = path.indexOf(here); at >= 0; at = path.indexOf(here, at))
    path.remove(at, here.size() - 1);
  for (qsizetype at = path.indexOf(above); at > 0; at = path.indexOf(above, at)) {
    const qsizetype before = path.lastIndexOf(kSeparator, at - 1);
    if (before < 0) break;
    path.remove(before + 1, at + above.size() - before - 1);
    at = before;
  }
}

void cleanFileName(OdString& name) {
  const OdString forbidden = QStringLiteral("\\<>/?:;*|,='\"");
  name.removeIf([&](QChar c) { return forbidden.contains(c); });
}

QStringList splitPathList(const OdString& text) {
  if (!text.contains(u';')) return {text};
  return text.split(u';', Qt::SkipEmptyParts);
}

bool isRelativePath(const OdString& path) { return odpath::isRelative(path); }

bool makeRelativePath(const OdString& path, const OdString& folder, OdString& out) {
  if (path.isEmpty() || folder.isEmpty()) return false;
  const QStringList target = segmentsOf(path);
  const QStringList base = segmentsOf(folder);
  qsizetype shared = 0;
  while (shared < target.size() && shared < base.size() && target[shared] == base[shared]) ++shared;
  // Paths that begin with a separator share the empty text before it, which is no beginning.
  if (shared == 0 || target.mid(0, shared).join(OdString()).isEmpty()) return false;
  QStringList steps(base.size() - shared, QStringLiteral(".."));
  steps << target.mid(shared);
  out = steps.isEmpty() ? QStringLiteral(".") : steps.join(kSeparator);
  return true;
}

OdString baseFolder() {
  IHostApplication* const application = host::application();
  const OdString user = application ? application->userDataFolder() : OdString();
  return inFolder(user, QStringLiteral("ToolPalette"));
}

OdString defaultCatalogFile() {
  return inFolder(baseFolder(), OdString::fromUtf16(kCatalogFileName));
}

OdString defaultPalettesFolder() { return inFolder(baseFolder(), QStringLiteral("Palettes")); }

OdString defaultImagesFolder() {
  return inFolder(defaultPalettesFolder(), QStringLiteral("Images"));
}

OdString palettesFolderOf(const OdString& catalogFile) {
  const OdString name = QStringLiteral("Palettes");
  const OdString parent = odpath::folderOf(catalogFile);
  const OdString folder = parent.isEmpty() ? name : inFolder(parent, name);
  OdRxSystemServices* const services = odrxSystemServices();
  if (!services->folderExists(folder)) services->createFolder(folder);
  return folder;
}

} // namespace tc
