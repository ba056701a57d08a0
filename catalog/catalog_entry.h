// One palette on its way into a catalog.
#pragma once

#include "catalog/catalog_impl.h"
#include "catalog/made_folders.h"

namespace tc {

/// Takes a palette and its files into a catalog, and takes everything back at its end, in memory
/// and on disk, unless all of it went through.
class CatalogEntry {
 public:
  CatalogEntry(OdTcCatalogImpl& catalog, OdTcToolPalette* palette);
  CatalogEntry(const CatalogEntry&) = delete;
  CatalogEntry& operator=(const CatalogEntry&) = delete;
  ~CatalogEntry();

  /// Files that go if the palette does not come in; whoever makes one enters it first.
  QStringList& madeFiles() { return m_made; }
  /// Puts the palette among those of the catalog and, unless the name is empty, into the top-level
  /// group of that name, which is made if it is not there. Tells nobody yet.
  void enter(const OdString& group);
  /// Writes the palette and the catalog. False, with the reason in problem(), if that fails.
  bool save();
  const OdString& problem() const { return m_problem; }
  /// Keeps everything, and tells the catalog's reactors.
  void commit();

 private:
  void enterGroup(const OdString& name);
  void notePictures();
  void takeBack();

  // Its folders go last.
  MadeFolders m_folders;
  OdTcCatalogPtr m_held;
  OdTcCatalogImpl& m_catalog;
  OdTcToolPalettePtr m_palette;
  OdTcGroupPtr m_group;
  bool m_isGroupNew = false;
  bool m_isEntered = false;
  bool m_isCommitted = false;
  QStringList m_made;
  OdString m_problem;
};

} // namespace tc
