// The root of one catalog file: the implementation.
#pragma once

#include "catalog/catalog.h"
#include "catalog/file_stamp.h"
#include "catalog/pending_palettes.h"
#include "catalog/tool_palette.h"
#include "catalog/unread_file.h"
#include "module/catalog_item_impl.h"
#include "module/item_index.h"

#include <vector>

namespace tc {

class OdTcCatalogImpl : public OdTcCatalogItemImplBase<OdTcCatalog>, private OdTcCatalogLoading {
 public:
  OdTcCatalogImpl();
  ~OdTcCatalogImpl() override;

  void registerItem(OdTcPersist* item) override;
  OdString path() const override { return m_path; }
  OdString palettesFolder() const override;
  /// A save that fails leaves the path and the loaders as they were.
  bool save(const OdString& path) override;
  /// False for a catalog that never had a path.
  bool save() override { return !m_path.isEmpty() && save(OdString(m_path)); }
  OdTcEnumPtr<OdTcCatalogItem> groupsEnum() const override { return m_groups->items(); }
  OdTcEnumPtr<OdTcToolPalette> palettesEnum() const override;
  OdTcEnumPtr<OdTcCatalogItem> loadersEnum() const override { return loaders()->items(); }
  OdTcToolPalette* findPalette(const OdString& id) const override;
  OdTcToolPalette* findPaletteByName(const OdString& name) const override;
  OdTcPaletteSoftRef* findInGroups(const OdTcCatalogItem* palette) const override;
  bool moveToGroup(const OdString& id) override;
  OdTcToolPalette* loadPalette(const OdString& id) override;
  bool unloadPalette(const OdString& id) override;
  bool isDefault() const override { return m_isDefault; }
  void setDefault(bool isDefault) override { m_isDefault = isDefault; }
  bool load(const OdString& path) override;
  bool beginLoad(const OdString& path) override;
  OdTcCatalogLoading* loading() const override { return const_cast<OdTcCatalogImpl*>(this); }
  OdTcToolPalette* importPaletteFile(const OdString& path) override;
  OdTcToolPalettePtr importPalette(const OdString& path, const OdTcImportOptions& options,
                                   OdTcImportReport& report) override;
  void addPalette(OdTcToolPalette* palette) override;
  OdTcGroupList* groups() const override { return m_groups; }
  OdTcPaletteLoaderList* loaders() const override {
    // A palette's file may give its loader another id.
    complete();
    return m_loaders;
  }
  OdString fileRevision() const override { return m_fileRevision; }
  bool isUnread() const override { return m_unread.isAt(m_path); }
  OdString readProblem() const override { return m_unread.problemAt(m_path); }

  /// Takes palettes and groups; false for anything else, and for what is here already.
  bool addItem(OdTcCatalogItem* item) override;
  /// Removes a palette with its file, or a group of the top level. A file outside the catalog's
  /// folder is never deleted.
  bool removeItem(const OdString& id) override;
  bool findItem(const OdString& id) const override;
  OdTcEnumPtr<OdTcCatalogItem> children() const override;
  bool isContainer(const OdString& name) const override;
  OdTcCatalog* catalog() const override { return const_cast<OdTcCatalogImpl*>(this); }
  void noteInCatalog(OdTcPersist* object) override { registerItem(object); }
  void forgetInCatalog(OdTcPersist* object) override;

  OdString elementName() const override { return QStringLiteral("Catalog"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  /// An item like this one, without a path, palettes and groups: two catalogs over the same files
  /// would undo each other's work.
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  friend class CatalogSave;
  friend class CatalogEntry;
  using Palettes = std::vector<OdTcToolPalettePtr>;

  int pendingCount() const override { return m_pending.count(); }
  bool loadNext() override { return loadAndTell(m_pending.takeNext()); }
  bool loadWaiting(const OdString& id) override { return loadAndTell(m_pending.take(id)); }
  OdTcEnumPtr<OdTcToolPalette> palettesSoFar() const override;
  OdTcToolPalette* findSoFar(const OdString& id) const override;

  /// Reads the palettes that wait. Called by whatever looks at palettes or loaders.
  void complete() const;
  bool loadAndTell(const std::optional<PendingPalettes::Entry>& entry);
  /// Reads one palette and puts it in its place: null if there is none, nothing if another reading
  /// has brought it meanwhile.
  std::optional<OdTcToolPalettePtr> bring(const PendingPalettes::Entry& entry);
  void finishLoad();
  void clearContent();
  void takeIn(OdTcToolPalette* palette);
  void removePalette(const OdTcToolPalettePtr& palette);
  bool removeGroup(const OdTcCatalogItemPtr& group);
  /// Takes the palette out of the catalog, if it is there; false if not.
  bool letGo(const OdTcToolPalettePtr& palette);
  void removePaletteFile(const OdTcToolPalette& palette) const;
  bool unregister(const OdTcPersist* item);
  void removeReferences(const OdString& id);
  OdTcPaletteLoader* findLoader(const OdString& id) const {
    return static_cast<OdTcPaletteLoader*>(m_loaders->find(id));
  }
  OdString pathFor(const OdTcToolPalette& palette) const;

  // Declared first, to be released last: with it in place, nothing below dies inside something
  // else.
  std::vector<OdTcPersistPtr> m_registered;
  OdSmartPtr<OdTcPaletteLoaderList> m_loaders;
  /// Complete only behind complete().
  Palettes m_palettes;
  OdTcItemIndex m_paletteIndex;
  PendingPalettes m_pending;
  OdSmartPtr<OdTcGroupList> m_groups;
  OdString m_fileRevision;
  OdString m_path;
  UnreadFile m_unread;
  FileStamp m_stamp;
  bool m_isDefault = false;
};

} // namespace tc
