// LINE.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/geometry/extrusion.h"

/// A straight line between two points of the world.
class OdDbLine : public OdDbEntity {
  ODDB_CONCRETE(OdDbLine, "LINE")

  OdDbLine(const OdGePoint3d& start, const OdGePoint3d& end);

  const OdGePoint3d& startPoint() const { return m_line.start; }
  void setStartPoint(const OdGePoint3d& point);
  const OdGePoint3d& endPoint() const { return m_line.end; }
  void setEndPoint(const OdGePoint3d& point);
  double thickness() const { return m_line.extrusion.thickness(); }
  void setThickness(double thickness);
  /// The direction of the thickness.
  const OdGeVector3d& normal() const { return m_line.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);

  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 public:
  /// What the file knows of a line.
  struct Data {
    OdGePoint3d start, end;
    OdDbExtrusion extrusion;
  };

 private:
  Data m_line;
};
using OdDbLinePtr = OdSmartPtr<OdDbLine>;
