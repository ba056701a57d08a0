// POINT.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/geometry/extrusion.h"

/// A point, shown as $PDMODE asks for.
class OdDbPoint : public OdDbEntity {
  ODDB_CONCRETE(OdDbPoint, "POINT")

  explicit OdDbPoint(const OdGePoint3d& position);

  /// In world coordinates.
  const OdGePoint3d& position() const { return m_point.position; }
  void setPosition(const OdGePoint3d& position);
  double thickness() const { return m_point.extrusion.thickness(); }
  void setThickness(double thickness);
  const OdGeVector3d& normal() const { return m_point.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);
  /// The angle of the sign's x axis when it was drawn; radians.
  double ecsRotation() const { return m_point.rotation; }
  void setEcsRotation(double angle);

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a point.
  struct Data {
    OdGePoint3d position;
    double rotation = 0;
    OdDbExtrusion extrusion;
  };

 private:
  Data m_point;
};
using OdDbPointPtr = OdSmartPtr<OdDbPoint>;
