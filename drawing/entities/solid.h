// SOLID and TRACE.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/geometry/extrusion.h"

/// A filled triangle or quadrangle. Its corners go across: first, second, fourth, third; the third
/// and the fourth fall together in a triangle.
class OdDbSolid : public OdDbEntity {
  ODDB_CONCRETE(OdDbSolid, "SOLID")

  /// Corners in world coordinates; the first three give the plane if no normal is given.
  OdDbSolid(const OdGePoint3d& p0, const OdGePoint3d& p1, const OdGePoint3d& p2,
            const OdGePoint3d& p3, const OdGeVector3d& normal = OdGeVector3d::zAxis());

  /// In world coordinates; `index` from 0 to 3, OdError_InvalidIndex.
  OdGePoint3d getPointAt(unsigned index) const;
  void setPointAt(unsigned index, const OdGePoint3d& point);
  double thickness() const { return m_solid.extrusion.thickness(); }
  void setThickness(double thickness);
  const OdGeVector3d& normal() const { return m_solid.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a solid; corners in the coordinates of its plane.
  struct Data {
    OdGePoint3d p0, p1, p2, p3;
    OdDbExtrusion extrusion;
  };

 private:
  bool m_hasFourth = false; ///< while reading
  Data m_solid;
};
using OdDbSolidPtr = OdSmartPtr<OdDbSolid>;

/// The same shape under the name of old wide lines.
class OdDbTrace : public OdDbSolid {
  ODRX_DECLARE_MEMBERS(OdDbTrace);

 public:
  OdDbTrace() = default;
  const char* dxfName() const override { return "TRACE"; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbTrace>(); }
};
