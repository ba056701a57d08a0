// The pictures of a palette that comes in.
#pragma once

#include "catalog/foreign_folder.h"
#include "catalog/import_report.h"
#include "catalog/tool_palette.h"
#include "images/image_list.h"
#include "persistence/foreign_content.h"

#include <QHash>

#include <cstdint>
#include <functional>
#include <vector>

namespace tc {

/// Finds the pictures of items beside the palette's file, and makes image lists of them that are
/// ours: one picture a size, the light one where both are there, each in a file of its own in the
/// folder of our palettes.
///
/// Pictures are looked for in the folder that the file names, in the one that is called like the
/// file, and beside the file, without regard to case. What leads out of these is refused, by its
/// path or by a link; what shows no picture is left.
class ImportPictures {
 public:
  ImportPictures(const OdString& file, const OdTcForeignContent& content);

  /// Looks for the pictures of an item; nothing changes yet. Bit n of `dark` says that picture
  /// number n is one for dark windows.
  void look(OdTcCatalogItem& item, std::uint32_t dark);
  /// The same for a tool, which tells its row of the report what came of it.
  void look(OdTcCatalogItem& item, std::uint32_t dark, OdTcImportedTool& row);

  /// Copies what was found to `Images` in the folder, gives the items their new lists, and says in
  /// the rows what could not be read. Each file is entered in `made` before it is begun. `step` is
  /// called before each item; false from it ends the work, and is given back.
  bool bring(const OdString& palettesFolder, QStringList& made, const std::function<bool()>& step);

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

  /// What is to be seen of an image where it comes from.
  struct Sight {
    OdTcPictureFate fate = OdTcPictureFate::kNone;
    OdString name; ///< as the file has it
    OdString file; ///< the stored path where it was found
    /// In the program's buttons, or in a library of another program: there is no file to bring.
    bool isNamed = false;
    int rank() const;
  };
  struct Candidate {
    OdTcImagePtr image;
    bool isDark = false;
    Sight sight;
  };

  void addFolder(const OdString& folder);
  std::vector<Candidate> chosenFrom(const OdTcImageList& images, std::uint32_t dark);
  Sight sightOf(OdTcImage& image);
  /// Looks for a picture's file in each of the folders.
  ForeignFolder::Found find(const OdString& inside);
  bool showsPicture(const OdString& file);
  bool bringOne(const Picture& picture, OdTcImage& ours, OdTcImportedTool& row);
  void bringAll(const Plan& plan);
  OdString freeName(const OdString& file);

  ForeignFolder m_home;
  QStringList m_folders; ///< in m_home
  QHash<OdString, bool> m_shown;
  QHash<OdString, int> m_numbers;
  std::vector<Plan> m_plans;
  OdTcImportedTool m_own; ///< stands for the palette's own pictures
  OdString m_refusedFolder, m_refusedBecause;
  OdString m_target;
  QStringList* m_made = nullptr;
  int m_dark = 0;
};

} // namespace tc
