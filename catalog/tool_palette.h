// A palette as the catalog tree shows it.
#pragma once

#include "frame/array.h"
#include "module/catalog_item.h"

#include <QMap>

#include <cstdint>

namespace tc {

class OdTcDatabase;
class OdTcTool;

/// A thin handle over the database that holds the tools.
class OdTcToolPalette : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS_EX(OdTcToolPalette, TC_API);

 public:
  /// Not offered on a palette: raises OdError with code 3.
  virtual void reserved1() = 0;
  virtual OdString getPath() const = 0;
  /// The path relative to the catalog's folder; false if either is unknown.
  virtual bool getRelativePath(OdString& out) const = 0;
  virtual std::int32_t getPreviewStyle() const = 0;
  /// Replaces the order and switches the palette to manual sorting.
  virtual void setToolOrder(const OdArray<OdString>& ids) = 0;
  virtual void getToolOrder(OdArray<OdString>& out) const = 0;
  /// Not offered on a palette: raises OdError with code 3.
  virtual void reserved2() = 0;
  virtual void setReferenced(bool referenced) = 0;
  virtual void setSortType(std::int32_t type) = 0;
  virtual void setPreviewSize(std::int32_t size) = 0;
  virtual void setPreviewStyle(std::int32_t style) = 0;
  virtual void setExporting(bool exporting) = 0;
  /// True if a group holds a reference to this palette.
  virtual bool isReferenced() const = 0;
  /// Loading and saving are the database's.
  virtual bool load(const OdString& path) = 0;
  virtual bool saveAs(const OdString& path) = 0;
  virtual bool save() = 0;
  virtual bool isReadOnlyStyle() const = 0;
  virtual void setReadOnlyStyle(bool readOnly) = 0;
  virtual void reserved3() = 0;
  virtual void markModified() = 0;
  virtual bool saveCopy(const OdString& path) = 0;
  virtual OdTcProperties* getProperties() const = 0;
  virtual OdTcEnumPtr<OdTcTool> enumTools() const = 0;
  virtual OdTcDatabase* getDatabase() const = 0;
  virtual std::int32_t getSortType() const = 0;
  virtual std::int32_t getPreviewSize() const = 0;

  /// Adds a label for each tool that cannot run here. `tagNames` translates an agent's tag.
  virtual void collectUnsupportedKinds(QStringList& labels,
                                       const QMap<OdString, OdString>& tagNames) const = 0;
  /// Removes the tools that cannot run here; the order is left as it is.
  virtual void stripUnsupportedTools() = 0;
  /// Takes the file's title as the name and lets the agents forget foreign resources.
  virtual void adoptFileName(const OdString& path) = 0;
  /// Gives the database and its tools fresh ids; the order follows.
  virtual void renewIds() = 0;
  /// After a tool is added, the file is saved at once unless that is suspended.
  virtual void suspendAutoSave() = 0;
  virtual void resumeAutoSave() = 0;

  /// True for a palette that came in from another program since the program was started.
  virtual bool isImported() const = 0;
  virtual void setImported() = 0;
  /// Tells the palette's reactors that it is about to leave its catalog.
  virtual void announceRemoval() = 0;
};
using OdTcToolPalettePtr = OdSmartPtr<OdTcToolPalette>;

} // namespace tc
