// Catalogs as the tool's commands see them.
#pragma once

#include "catalog/catalog.h"
#include "catalog/tool.h"
#include "catalog/tool_palette.h"

#include <optional>
#include <vector>

namespace tpal {

/// Registers the module's classes for as long as it lives.
class ModuleClasses {
 public:
  ModuleClasses();
  ~ModuleClasses();
  ModuleClasses(const ModuleClasses&) = delete;
  ModuleClasses& operator=(const ModuleClasses&) = delete;
};

/// A catalog read from a folder, with what the libraries had to say about it.
struct LoadedCatalog {
  OdString file; ///< the catalog file
  tc::OdTcCatalogPtr catalog;
  QStringList messages;
  bool isRead = false; ///< false if the file is missing or could not be read
};

/// The stored path of the catalog file in a folder.
OdString catalogFileIn(const OdString& folder);
/// Reads the catalog of a folder.
LoadedCatalog loadCatalog(const OdString& folder);
/// The same for a catalog that takes something; a new one, on no disk yet, if the folder has none.
LoadedCatalog openOrNewCatalog(const OdString& folder);

/// What a tool does, in short.
struct ToolSummary {
  OdString kind;    ///< "command", "block", "hatch", "raster", "text", "separator", ...
  OdString command; ///< the macro, block name, pattern or file
};
ToolSummary summarize(const tc::OdTcTool& tool);

/// The palettes and tools of a catalog, in storage order.
std::vector<tc::OdTcToolPalette*> palettesOf(const tc::OdTcCatalog& catalog);
std::vector<tc::OdTcTool*> toolsOf(const tc::OdTcToolPalette& palette);

/// The name of a palette of which the catalog may know no more than its entry; empty if it has
/// none.
OdString paletteName(const tc::OdTcCatalog& catalog, const OdString& id);
/// The palette of that id or, failing that, of that name. Null with the reason in `problem` if
/// there is none, or, of a name, more than one.
tc::OdTcToolPalette* findPalette(const tc::OdTcCatalog& catalog, const OdString& word,
                                 OdString& problem);

/// Walks an enumerator to its end.
template <class T, class F>
void forEach(const tc::OdTcEnumPtr<T>& items, F f) {
  while (T* item = items->next()) f(item);
}

} // namespace tpal
