// Pictures that images show.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/object.h"

class OdDbDatabase;

/// A picture file that a drawing shows. Definitions stand in a dictionary of their own, under the
/// picture's name.
class OdDbRasterImageDef : public OdDbObject {
  ODDB_CONCRETE(OdDbRasterImageDef, "IMAGEDEF")

  /// The path as the drawing stores it; set with either separator, stored in the platform's form.
  const OdString& sourceFileName() const { return m_definition.path; }
  void setSourceFileName(const OdString& path);
  /// The file that the path stands for now: the path itself if there is one, else a file of its
  /// name beside the drawing; without either the stored path.
  OdString activeFileName() const;
  /// The size in pixels.
  OdGePoint2d size() const { return m_definition.size; }
  void setSize(const OdGePoint2d& pixels);
  /// The size of one pixel in the drawing's units, as the picture itself tells it.
  OdGePoint2d resolutionMMPerPixel() const { return m_definition.pixelSize; }
  void setResolution(const OdGePoint2d& pixelSize);
  bool isLoaded() const { return m_definition.loaded != 0; }
  void setLoaded(bool loaded);
  /// The name in the dictionary; empty if it stands in none.
  OdString name() const;

  /// The dictionary of a drawing's pictures; null if there is none and none is to be made.
  static OdDbObjectId imageDictionary(const OdDbDatabase& database);
  static OdDbObjectId createImageDictionary(OdDbDatabase& database);

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a picture.
  struct Data {
    int version = 0, loaded = 1, units = 0;
    OdString path;
    OdGePoint2d size{1, 1}, pixelSize{1, 1};
  };

 private:
  Data m_definition;
};
using OdDbRasterImageDefPtr = OdSmartPtr<OdDbRasterImageDef>;

/// Stands between a picture and an image that shows it.
class OdDbRasterImageDefReactor : public OdDbObject {
  ODDB_CONCRETE(OdDbRasterImageDefReactor, "IMAGEDEF_REACTOR")

  OdDbObjectId image() const { return m_image; }
  void setImage(OdDbObjectId image);
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 private:
  int m_version = 2;
  OdDbObjectId m_image;
};
