// New tools on their way into a palette.
#pragma once

#include "catalog/catalog.h"
#include "catalog/tool.h"

#include <memory>
#include <vector>

namespace tc {

class CatalogEntry;

/// Takes any number of new tools into a palette and saves once, whether the palette is there
/// already or comes with them. Unless all of it goes through everything is taken back, in memory
/// and on disk.
class OdTcPaletteFilling {
 public:
  /// `palette` is the id or the name of a palette of the catalog; without one a new palette of that
  /// name is made, in the top-level group of the other name unless that is empty.
  OdTcPaletteFilling(OdTcCatalog& catalog, const OdString& palette, const OdString& group = {});
  OdTcPaletteFilling(const OdTcPaletteFilling&) = delete;
  OdTcPaletteFilling& operator=(const OdTcPaletteFilling&) = delete;
  ~OdTcPaletteFilling();

  OdTcToolPalette& palette() { return *m_palette; }
  bool isNew() const { return m_entry != nullptr; }
  /// Puts a tool on the palette. Pictures that it gets from now on know which names are free there.
  void add(OdTcTool* tool);
  /// A picture that was written for one of the tools, by the stored path of its file.
  void noteFile(const OdString& path) { m_files << path; }
  /// Takes a tool back that was added last.
  void dropLast();
  std::size_t count() const { return m_added.size(); }

  /// Writes the palette and, for a new one, the catalog. False, with the reason in problem(), if
  /// that fails: then nothing stays.
  bool commit();
  const OdString& problem() const { return m_problem; }

 private:
  bool save();

  OdTcToolPalettePtr m_palette;
  std::unique_ptr<CatalogEntry> m_entry; ///< of a new palette
  std::vector<OdTcToolPtr> m_added;
  QStringList m_files;
  OdString m_problem;
  bool m_isCommitted = false;
};

} // namespace tc
