// Catalogs of any size, made through the module's own classes.
#pragma once

#include "catalog/catalog.h"
#include "catalog/tool_palette.h"

#include <QTemporaryDir>

namespace bench {

/// Registers the module's classes for the life of the object.
class Classes {
 public:
  Classes();
  ~Classes();
};

/// A palette of `tools` command tools.
tc::OdTcToolPalettePtr makePalette(const OdString& name, int tools);

/// Writes a catalog of `palettes` palettes with `tools` tools each into the folder and gives the
/// catalog file.
OdString writeCatalog(const OdString& folder, int palettes, int tools);

/// The files of a catalog: the catalog itself and its palettes.
QStringList catalogFiles(const OdString& folder);

} // namespace bench
