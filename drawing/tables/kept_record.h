// Records whose fields are kept as the file has them. Not for use outside of the library.
#pragma once

#include "drawing/dxf/kept_tags.h"
#include "drawing/geometry/geometry.h"
#include "drawing/tables/symbol_table.h"

/// Gives the subclasses fields by their codes in the record's kept lines.
class OdDbKeptRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbKeptRecord);

 protected:
  OdDbKeptRecord();
  OdDbKeptTags kept() const;
  void keep(const OdDbKeptTags& tags);

  double real(int code, double otherwise) const;
  void setReal(int code, double value);
  OdGePoint2d pair(int code, const OdGePoint2d& otherwise = {}) const;
  void setPair(int code, const OdGePoint2d& value);
  OdGePoint3d triple(int code, const OdGePoint3d& otherwise = {}) const;
  void setTriple(int code, const OdGePoint3d& value);
  /// Adds presets for the codes that are not there.
  void preset(const OdDbKeptTags& presets);
};
