// The owner of all loaded catalogs.
#pragma once

#include "catalog/tool.h"
#include "drawing/object_id.h"
#include "frame/rx_members.h"
#include "module/export.h"

#include <cstdint>

namespace tc {

class OdTcCatalog;
class OdTcToolPalette;

/// Hears of changes among the catalogs. Calls are synchronous.
class OdTcPaletteManagerReactor {
 public:
  /// Not called by the manager.
  virtual void reserved1(OdTcCatalog* /*catalog*/) {}
  virtual void reserved2(OdTcCatalog* /*catalog*/) {}
  virtual void reserved3(OdTcCatalog* /*catalog*/) {}
  virtual void catalogAdded(OdTcCatalog* /*catalog*/) {}
  virtual void catalogRemoved(OdTcCatalog* /*catalog*/) {}
  virtual void catalogsChanged() {}

 protected:
  ~OdTcPaletteManagerReactor() = default;
};

/// Turns the configured folders into one catalog each.
class OdTcPaletteManager : public OdRxObject {
  ODRX_DECLARE_MEMBERS_EX(OdTcPaletteManager, TC_API);

 public:
  /// Walks the catalogs in order of their paths.
  class CatalogEnum : public OdRxObject {
   public:
    /// False at the end.
    virtual bool next(OdString& path, OdTcCatalog*& catalog) = 0;
    virtual void reset() = 0;
  };

  /// Null is ignored; nothing checks for duplicates.
  virtual void addReactor(OdTcPaletteManagerReactor* reactor) = 0;
  virtual void removeReactor(OdTcPaletteManagerReactor* reactor) = 0;
  /// The default catalog; null if none is loaded.
  virtual OdTcCatalog* activeCatalog() const = 0;
  virtual void loadCatalogs() = 0;
  /// Opens the catalog and gives it a fresh id.
  virtual bool addCatalog(const OdString& path) = 0;
  virtual bool removeCatalog(const OdString& path) = 0;
  virtual OdSmartPtr<CatalogEnum> catalogsEnum() const = 0;
  /// Saves every catalog in order of path.
  virtual void saveAll() = 0;
  virtual std::uint32_t viewSetting() const = 0;
  virtual void setViewSetting(std::uint32_t setting) = 0;

  // New tools, which are on no palette yet; null if none comes of it. What the user is told then is
  // told already.

  /// From a drawing or a picture, by the stored path of its file, or from a command of the host.
  virtual OdTcToolPtr createToolFromFile(const OdString& path) = 0;
  virtual OdTcToolPtr createToolFromEntity(OdDbObjectId entity) = 0;
  /// From a block of an open drawing.
  virtual OdTcToolPtr createToolFromBlock(const OdString& name, IHostDocument* document) = 0;
  /// From a block of a drawing file.
  virtual OdTcToolPtr createToolFromDrawingBlock(const OdString& file, const OdString& name) = 0;
  virtual OdTcToolPtr createToolFromCommand(const OdString& name) = 0;
  /// From the drawing that the clipboard holds.
  virtual OdTcToolPtr createToolFromClipboard() = 0;

  virtual void resetFlag() = 0;
  virtual void openConfiguration() = 0;
  virtual OdString palettesFolder(const OdTcCatalog* catalog) const = 0;
  virtual OdString imagesFolder(const OdTcCatalog* catalog) const = 0;
  /// The first catalog that says that it is the default, or null.
  virtual OdTcCatalog* defaultCatalog() const = 0;
  /// Imports a palette into the catalog, or the active one for null, as its importPaletteFile does.
  /// If that fails the user is told in a message box.
  virtual OdTcToolPalette* importPalette(OdTcCatalog* catalog, const OdString& path) = 0;
  /// Brings the catalogs in line with the configured folders.
  virtual void reloadCatalogs() = 0;
  virtual bool openCatalog(const OdString& path) = 0;

  virtual bool isImageExtension(const OdString& extension) const = 0;
  virtual bool isDrawingExtension(const OdString& extension) const = 0;

  /// The manager of the module; null before its start and after its stop.
  static OdTcPaletteManager* instance();
  static void setInstance(const OdSmartPtr<OdTcPaletteManager>& manager);
};
using OdTcPaletteManagerPtr = OdSmartPtr<OdTcPaletteManager>;

} // namespace tc
