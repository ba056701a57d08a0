// Palette files that a catalog knows of.
#pragma once

#include "module/list.h"

namespace tc {

class OdTcToolPalette;

/// Stands for one palette file. Element `Palette` of a catalog document.
class OdTcPaletteLoader : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS(OdTcPaletteLoader);

 public:
  /// A new palette read from the file, resolved against `baseFolder`; null, without a message, if
  /// there is no such file.
  virtual OdSmartPtr<OdTcToolPalette> loadPalette(const OdString& baseFolder) = 0;
  /// The same against the folder of the owning catalog's file.
  virtual OdSmartPtr<OdTcToolPalette> loadPaletteFromCatalog() = 0;
  /// The file's location as the catalog says it.
  virtual OdString getHref() const = 0;
  virtual void setHref(const OdString& href) = 0;
};
using OdTcPaletteLoaderPtr = OdSmartPtr<OdTcPaletteLoader>;

/// Element `Palettes`.
class OdTcPaletteLoaderList : public OdTcList {
  ODRX_DECLARE_MEMBERS(OdTcPaletteLoaderList);
};

} // namespace tc
