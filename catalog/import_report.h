// What an import is asked to do, and what became of everything in the file.
#pragma once

#include "catalog/folder_map.h"

#include <vector>

namespace tc {

/// How a palette is to come in.
struct OdTcImportOptions {
  OdTcFolderMap folderMap; ///< where the sources of tools lie now
  /// The top-level group that is to hold the palette; made if it is not there. Empty: none.
  OdString group;
  /// Makes command tools of tools whose record holds nothing but a macro.
  bool convertCommands = false;
  /// Only looks: nothing is written, nothing comes into the catalog, nobody is asked anything.
  bool dryRun = false;
  /// Names that no palette is to get, besides those in the catalog: of palettes that would be there
  /// if earlier runs had not only looked.
  QStringList takenNames;
  /// Writes the palette's file and the catalog's. Without it both are the caller's to save.
  bool save = true;
};

enum class OdTcToolFate { kTaken, kConverted, kSkipped };
/// Ordered from the best to the worst, for a tool with several pictures.
enum class OdTcPictureFate { kNone, kResource, kFound, kMade, kRefused, kUnreadable, kMissing };
enum class OdTcSourceFate { kNone, kFound, kMissing, kRefused };

/// One tool of the file.
struct OdTcImportedTool {
  OdString name;
  OdString kind;    ///< "Command", "Block", ..., "Text", "Separator"; empty without an agent
  OdString command; ///< the macro, of a command tool
  OdTcToolFate fate = OdTcToolFate::kTaken;
  bool isUnread = false; ///< it stands in the file, but no tool came of it
  OdString reason;       ///< why it was skipped or converted, or what it lacks
  OdTcPictureFate picture = OdTcPictureFate::kNone;
  OdString pictureFile; ///< as the file names it, the worst of them
  OdTcSourceFate source = OdTcSourceFate::kNone;
  OdString sourceFile; ///< after the map of folders
};

/// One file.
struct OdTcImportReport {
  OdString file;
  OdString palette; ///< its name in the catalog
  OdString id;
  OdString problem; ///< why nothing came in; empty if the palette is in, or would be
  bool isUnreadable =
      false; ///< true if the file itself is at fault, and no message box has said so
  /// What is worth knowing of the file as a whole.
  QStringList notes;
  std::vector<OdTcImportedTool> tools;
};

/// Follows an import that takes long. Its calls may let other events of the program in.
class OdTcImportProgress {
 public:
  virtual void start(int range) = 0;
  /// One more of the range is done; false ends the import, which then leaves no trace.
  virtual bool step() = 0;
  virtual void stop() = 0;

  /// Who follows; null for nobody. Borrowed.
  static OdTcImportProgress* instance();
  static void setInstance(OdTcImportProgress* progress);

 protected:
  ~OdTcImportProgress() = default;
};

} // namespace tc
