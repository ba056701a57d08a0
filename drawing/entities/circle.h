// CIRCLE.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/geometry/extrusion.h"

/// A circle in the plane that its normal and its centre give.
class OdDbCircle : public OdDbEntity {
  ODDB_CONCRETE(OdDbCircle, "CIRCLE")

  /// Centre and normal in world coordinates.
  OdDbCircle(const OdGePoint3d& center, const OdGeVector3d& normal, double radius);

  /// In world coordinates.
  OdGePoint3d center() const;
  void setCenter(const OdGePoint3d& center);
  double radius() const { return m_circle.radius; }
  /// Raises OdError(eInvalidInput) unless above 0.
  void setRadius(double radius);
  const OdGeVector3d& normal() const { return m_circle.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);
  double thickness() const { return m_circle.extrusion.thickness(); }
  void setThickness(double thickness);

  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a circle; the centre in the coordinates of its plane.
  struct Data {
    OdGePoint3d center;
    double radius = 1;
    OdDbExtrusion extrusion;
  };

 private:
  Data m_circle;
};
using OdDbCirclePtr = OdSmartPtr<OdDbCircle>;
