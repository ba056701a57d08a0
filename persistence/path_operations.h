// Rules for stored paths: macros, relative paths, file names and the folders under a catalog.
#pragma once

#include "frame/string.h"

namespace tc {

/// Replaces the first path macro (in ascending order of macro text) that `in` holds anywhere by its
/// first value. False, with `out` unchanged, if there is none or the user's folder is unknown.
bool expandPath(const OdString& in, OdString& out);
/// Replaces the first folder of a macro that `in` holds anywhere by the macro. As expandPath.
bool collapsePath(const OdString& in, OdString& out);
/// A path as it is read from a file: expanded if it begins with a macro, else unchanged.
OdString expandedStoredPath(const OdString& stored);
/// A path as it is written to a file: collapsed where that changes something.
OdString collapsedStoredPath(const OdString& path);

/// `relative` joined to the folder of `baseFile` and normalised. With an empty base, or one without
/// a separator, `relative` itself; for "." and ".\" the folder.
OdString combinePath(const OdString& relative, const OdString& baseFile);
/// Takes "\.\" and "folder\..\" out of the text, in place.
void normalizePath(OdString& path);
/// Removes the characters that no file name holds: \<>/?:;*|,='"
void cleanFileName(OdString& name);
/// The parts of a list of folders separated by ";". Empty parts are skipped; a text without ";" is
/// one part, even if it is empty.
QStringList splitPathList(const OdString& text);
/// The platform's test of a relative path.
bool isRelativePath(const OdString& path);

/// `path` relative to `folder`, compared segment by segment; false if either is empty or they share
/// no beginning.
bool makeRelativePath(const OdString& path, const OdString& folder, OdString& out);

inline constexpr char16_t kCatalogFileName[] = u"DrfTcCatalog.dtc";

/// The module's own folder under the user's data.
OdString baseFolder();
OdString defaultCatalogFile();
OdString defaultPalettesFolder();
OdString defaultImagesFolder();
/// The folder of palettes beside a catalog file; made if it does not exist.
OdString palettesFolderOf(const OdString& catalogFile);

} // namespace tc
