// The root of one catalog file.
#pragma once

#include "catalog/catalog_loading.h"
#include "catalog/group.h"
#include "catalog/import_report.h"
#include "catalog/palette_loader.h"
#include "catalog/tool_palette.h"

namespace tc {

/// A group tree, the loaders of palette files, and the palettes that they brought in.
///
/// `children` are the palettes; the groups have an enumerator of their own.
class OdTcCatalog : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS(OdTcCatalog);

 public:
  /// Keeps a reference to an object that found this catalog as its root.
  virtual void registerItem(OdTcPersist* item) = 0;
  virtual OdString path() const = 0;
  virtual OdString palettesFolder() const = 0;
  /// Writes the catalog file, not those of the palettes. A file failure raises OdFileError.
  virtual bool save(const OdString& path) = 0;
  virtual bool save() = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> groupsEnum() const = 0;
  virtual OdTcEnumPtr<OdTcToolPalette> palettesEnum() const = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> loadersEnum() const = 0;
  /// A loaded palette, or null. Borrowed.
  virtual OdTcToolPalette* findPalette(const OdString& id) const = 0;
  virtual OdTcToolPalette* findPaletteByName(const OdString& name) const = 0;
  /// The first soft reference to the palette in the groups, depth first, or null.
  virtual OdTcPaletteSoftRef* findInGroups(const OdTcCatalogItem* palette) const = 0;
  /// Moves the group or palette of that id to the catalog's top level; false if it is not here.
  virtual bool moveToGroup(const OdString& id) = 0;
  /// The palette of that id, loaded through its loader if it is not here yet; null if unknown.
  virtual OdTcToolPalette* loadPalette(const OdString& id) = 0;
  virtual bool unloadPalette(const OdString& id) = 0;
  virtual bool isDefault() const = 0;
  virtual void setDefault(bool isDefault) = 0;
  /// Reads the catalog file and its palettes. False if that fails: without a message if there is no
  /// file, else with the path and the reason on the command line. The path is kept in all cases.
  virtual bool load(const OdString& path) = 0;
  /// The same for the catalog file alone: its palettes wait. Each of the operations here that has
  /// to do with palettes reads those that still wait first, and tells the reactors of them.
  virtual bool beginLoad(const OdString& path) = 0;
  /// Reads them one by one, and tells which are there. Never null.
  virtual OdTcCatalogLoading* loading() const = 0;

  /// Reads a palette that another program exported, takes what can run here into the catalog,
  /// copies the pictures, and saves the palette and the catalog. Null, with nothing changed in
  /// memory or on disk, if that fails at any point; a file that cannot be read is told on the
  /// command line.
  virtual OdTcToolPalette* importPaletteFile(const OdString& path) = 0;
  /// The same in other ways, with a report of what became of each tool. A dry run gives the palette
  /// as it would be, which is in no catalog.
  virtual OdTcToolPalettePtr importPalette(const OdString& path, const OdTcImportOptions& options,
                                           OdTcImportReport& report) = 0;

  /// Gives the palette its place and file path in this catalog and takes it in. A new file is named
  /// after the palette as it stands, but for separators, which would lead out of the folder.
  virtual void addPalette(OdTcToolPalette* palette) = 0;
  virtual OdTcGroupList* groups() const = 0;
  virtual OdTcPaletteLoaderList* loaders() const = 0;
  virtual OdString fileRevision() const = 0;
  /// True if the file was there but could not be read.
  virtual bool isUnread() const = 0;
  /// Why, in words for the user; empty if all is well.
  virtual OdString readProblem() const = 0;
};
using OdTcCatalogPtr = OdSmartPtr<OdTcCatalog>;

} // namespace tc
