// One save of a catalog.
#pragma once

#include "catalog/catalog_impl.h"

#include <array>
#include <vector>

namespace tc {

/// Brings a catalog's loaders up to date for a save to `path`, and takes everything back at its end
/// unless the save went through.
class CatalogSave {
 public:
  /// How the file is written: in place, or in one step once all of it is on the disk.
  enum class Way { kInPlace, kAtOnce };

  CatalogSave(OdTcCatalogImpl& catalog, const OdString& path, Way way = Way::kInPlace);
  CatalogSave(const CatalogSave&) = delete;
  CatalogSave& operator=(const CatalogSave&) = delete;
  ~CatalogSave();

  /// Updates the loaders and writes the file. False if the filer fails; OdFileError for the file.
  bool run();

 private:
  /// A loader, and what its fields were before they were changed.
  struct Renamed {
    OdTcPaletteLoaderPtr loader;
    std::array<OdVariant, 3> former;
  };

  void updateLoader(OdTcToolPalette& palette);
  void addLoader(OdTcToolPalette& palette);
  OdString hrefFor(const OdString& file) const;
  bool write();

  OdTcCatalogImpl& m_catalog;
  OdString m_path;
  OdString m_formerPath;
  const Way m_way;
  bool m_isDone = false;
  std::vector<OdTcPaletteLoaderPtr> m_added;
  std::vector<Renamed> m_renamed;
  std::vector<OdTcToolPalettePtr> m_placed;
};

} // namespace tc
