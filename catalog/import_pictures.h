// The pictures of a palette that comes in.
#pragma once

#include "catalog/import_report.h"
#include "catalog/tool_palette.h"
#include "images/image_list.h"
#include "persistence/foreign_content.h"

#include <QHash>

#include <cstdint>
#include <vector>

namespace tc {

/// Finds the pictures of items beside the palette's file, and makes image lists of them that are
/// ours: one picture a size, the light one where there are two, each in a file of its own in the
/// folder of our palettes.
///
/// Pictures are looked for in the folder that the file names, in the one that is called like the
/// file, and beside the file, without regard to case. What leads out of these is refused.
class ImportPictures {
 public:
  ImportPictures(const OdString& file, const OdTcForeignContent& content);

  /// Looks for the pictures of an item; nothing changes yet. Bit n of `dark` says that picture
  /// number n is one for dark windows.
  void look(OdTcCatalogItem& item, std::uint32_t dark);
  /// The same for a tool, which tells its row of the report what came of it.
  void look(OdTcCatalogItem& item, std::uint32_t dark, OdTcImportedTool& row);

  /// Copies what was found to `Images` in the folder, gives the items their new lists, and says in
  /// the rows what could not be read. Each file is entered in `made` before it is begun.
  void bring(const OdString& palettesFolder, QStringList& made);

  /// What is worth knowing: folders that were refused, pictures that were left out.
  QStringList notes() const;

 private:
  struct Picture {
    OdTcImagePtr image;
    OdString name; ///< as the file has it
    OdString file; ///< the stored path where it was found; empty for a resource
  };
  struct Plan {
    OdTcCatalogItemPtr item;
    OdTcImportedTool* row;
    std::vector<Picture> pictures;
  };

  void addFolder(const OdString& folder);
  /// The path of a picture's file; empty if it is in none of the folders.
  OdString find(const OdString& inside);
  const QHash<OdString, OdString>& filesIn(const OdString& folder);
  void lookAt(OdTcImage& image, Plan& plan, OdTcImportedTool& row);
  bool bringOne(const Picture& picture, OdTcImage& ours, OdTcImportedTool& row);
  void bringAll(const Plan& plan);
  OdString freeName(const OdString& file);

  QStringList m_folders;
  QHash<OdString, QHash<OdString, OdString>> m_files;
  QHash<OdString, int> m_numbers;
  std::vector<Plan> m_plans;
  OdTcImportedTool m_own; ///< stands for the palette's own pictures
  OdString m_refusedFolder, m_refusedBecause;
  OdString m_target;
  QStringList* m_made = nullptr;
  int m_dark = 0;
};

} // namespace tc
