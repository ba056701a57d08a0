// One import of a palette from another program.
#pragma once

#include "catalog/catalog_impl.h"
#include "catalog/import_pictures.h"
#include "catalog/tool_palette_impl.h"
#include "persistence/foreign_content.h"

#include <optional>

namespace tc {

/// Reads the palette's file, sorts its tools into those that come in and those that do not, makes
/// the palette one of ours and hands it to the catalog.
class PaletteImport {
 public:
  PaletteImport(OdTcCatalogImpl& catalog, OdString path, const OdTcImportOptions& options,
                OdTcImportReport& report);

  /// Null, with the problem in the report and nothing changed, if it failed.
  OdTcToolPalettePtr run();

 private:
  bool checkTarget();
  bool read();
  void review();
  void reviewTool(OdTcTool& tool, const OdTcForeignTool& foreign, OdTcImportedTool& row);
  void noteUnread(int first);
  void announceSkipped();
  void adopt();
  void noteContent();
  void reviewPattern(const OdTcTool& tool, OdTcImportedTool& row);
  OdString uniqueName(const OdString& wanted) const;
  bool enter();
  bool refreshImages();
  /// What is done with each tool: it is looked at, brought, and gets the pictures that are made.
  int stages() const { return m_options.dryRun ? 2 : 3; }
  bool fail(const OdString& problem);
  bool step();

  OdTcCatalogImpl& m_catalog;
  const OdString m_path;
  const OdTcImportOptions& m_options;
  OdTcImportReport& m_report;
  OdSmartPtr<OdTcToolPaletteImpl> m_palette;
  OdTcForeignContent m_foreign;
  std::optional<ImportPictures> m_pictures;
  QHash<OdString, bool> m_patterns; ///< by name, whether the host has them
};

} // namespace tc
