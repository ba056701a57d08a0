// The content of a palette and its file.
#pragma once

#include "module/catalog_item.h"

#include <cstdint>

namespace tc {

class OdTcPaletteUi;
class OdTcTool;
class OdTcToolList;

/// Holds the tools of one palette, its display settings and its path. Root element `Palette`.
class OdTcDatabase : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS(OdTcDatabase);

 public:
  /// Appends the tool, tells the reactors and marks the database modified.
  virtual void addTool(OdTcTool* tool) = 0;
  /// Removes the tool and the first such id of the order; false if there is none.
  virtual bool removeTool(const OdString& id) = 0;
  virtual OdTcToolList* tools() const = 0;
  virtual OdTcPaletteUi* getUi() const = 0;

  /// Reads the file of that path. False if that fails: without a message if there is no file, else
  /// with the path and the reason on the command line. The path is kept in all cases.
  virtual bool load(const OdString& path) = 0;
  /// Makes `path` the database's own and writes it. False, with the path and the reason on the
  /// command line, if that fails.
  virtual bool saveAs(const OdString& path) = 0;
  /// Saves at the own path; false, without a message, if there is none.
  virtual bool save() = 0;
  /// The same in one step: whoever reads the file meanwhile, on a shared folder for instance, finds
  /// all of the old content or all of the new, and a save that fails leaves the file as it was.
  virtual bool saveAtOnce() = 0;
  /// Writes a new file at `path` and goes back to the own path, unless the write fails. The rest as
  /// with saveAs.
  virtual bool saveCopy(const OdString& path) = 0;
  /// Keeps a reference to an object that found this database as its root.
  virtual void attachObject(OdTcPersist* object) = 0;
  virtual int attachedCount() const = 0;

  virtual OdString getPath() const = 0;
  virtual void setPath(const OdString& path) = 0;
  virtual OdString fileRevision() const = 0;
  virtual bool isExporting() const = 0;
  virtual void setExporting(bool exporting) = 0;
  virtual std::int32_t paletteStyle() const = 0;
  /// True if the file at the path was there but could not be read (whole): automatic saving leaves
  /// it alone.
  virtual bool isUnread() const = 0;
  /// Why, in words for the user; empty if all is well.
  virtual OdString readProblem() const = 0;
  /// The path and the reason of the last save that failed, in words for the user; empty once one
  /// went through.
  virtual OdString saveProblem() const = 0;
  /// Pictures that the last save could not write beside the palette, each with its file and the
  /// reason, in words for the user, who was told. The palette itself is saved all the same.
  virtual QStringList unsavedPictures() const = 0;
  /// Called by a picture that cannot be written while the palette is.
  virtual void noteUnsavedPicture(const OdString& problem) = 0;
};
using OdTcDatabasePtr = OdSmartPtr<OdTcDatabase>;

} // namespace tc
