// XLINE and RAY.
#pragma once

#include "drawing/entities/entity.h"

/// A straight line without ends through a point. It has no box.
class OdDbXline : public OdDbEntity {
  ODDB_CONCRETE(OdDbXline, "XLINE")

  OdDbXline(const OdGePoint3d& base, const OdGeVector3d& direction);

  const OdGePoint3d& basePoint() const { return m_line.base; }
  void setBasePoint(const OdGePoint3d& point);
  /// Of length 1.
  OdGeVector3d unitDir() const { return m_line.direction.normal(); }
  /// Raises OdError(eInvalidInput) for a direction without length.
  void setUnitDir(const OdGeVector3d& direction);

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of such a line.
  struct Data {
    OdGePoint3d base;
    OdGeVector3d direction{1, 0, 0};
  };

 protected:
  virtual const char* dxfSubclass() const { return "AcDbXline"; }
  virtual bool runsBothWays() const { return true; }

 private:
  Data m_line;
};
using OdDbXlinePtr = OdSmartPtr<OdDbXline>;

/// A straight line that begins at a point and has no end.
class OdDbRay : public OdDbXline {
  ODRX_DECLARE_MEMBERS(OdDbRay);

 public:
  OdDbRay() = default;
  OdDbRay(const OdGePoint3d& base, const OdGeVector3d& direction)
    : OdDbXline(base, direction) {}
  const char* dxfName() const override { return "RAY"; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbRay>(); }
  const char* dxfSubclass() const override { return "AcDbRay"; }
  bool runsBothWays() const override { return false; }
};
using OdDbRayPtr = OdSmartPtr<OdDbRay>;
