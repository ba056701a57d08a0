// External references: drawings shown within others.
#pragma once

#include "drawing/database.h"

/// Loads, attaches and detaches drawings that blocks stand for. What is loaded is held in the block
/// and in records named "NAME|Layer", and is not saved: a saved drawing has only the path.
class OdDbXRefMan {
 public:
  enum class Result : std::uint8_t {
    kLoaded,
    kNotAnXRef,   ///< the block is no external reference
    kFileMissing, ///< no file where the path points to
    kCircular,    ///< the file is one of those that are being loaded around it
    kUnreadable,  ///< the message tells why
    kTooMany,     ///< nested deeper, or more of them, than anybody can have meant
    kUnloaded,    ///< somebody unloaded it
  };
  /// What became of one reference.
  struct Report {
    Result result = Result::kLoaded;
    OdString blockName, path, message;
  };

  /// Reads the file of a block and fills the block with it, nested references included; an overlay
  /// within the file, or a reference that was unloaded there, is left out. What was loaded before
  /// goes. Tells of the block itself first, then of those nested in it.
  static std::vector<Report> load(OdDbBlockTableRecord* block);
  static std::vector<Report> load(OdDbObjectId block);
  /// All external references of a drawing, but those that somebody has unloaded. The drawing is as
  /// little modified as before.
  static std::vector<Report> loadAll(OdDbDatabase& database);
  /// How a block stands now: loaded, unloaded, or why its file is not shown.
  static Report state(const OdDbBlockTableRecord& block);
  /// Empties the block; it stays a reference, and is unloaded when its drawing is opened again.
  static void unload(OdDbObjectId block);
  /// Makes a block for a file, and loads it. `name` is made another one if it is taken.
  static OdDbObjectId attach(OdDbDatabase& database, const OdString& path, const OdString& name,
                             bool overlay, std::vector<Report>* reports = nullptr);
  /// Takes a reference away with its inserts. False for a block that is none.
  static bool detach(OdDbObjectId block);
  /// True for a record that came with a reference ("NAME|Layer") and goes with it.
  static bool owns(const OdDbSymbolTableRecord& record);
  /// Makes an ordinary block of a reference, with the contents of its file as they are in `source`.
  /// Layers and other records come under their own names, where the drawing has none of them. False
  /// for a block that is no reference.
  static bool bind(OdDbObjectId block, const OdDbDatabasePtr& source);
  /// The file of a reference: the stored path, made absolute by the drawing's folder, or a file of
  /// its name beside the drawing. Empty if there is no such file.
  static OdString resolvedPath(const OdDbBlockTableRecord& block);
};
