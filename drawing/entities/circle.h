// CIRCLE.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/geometry/extrusion.h"

/// A circle in the plane that its normal and its centre give.
class OdDbCircle : public OdDbCurve {
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

  bool isClosed() const override { return true; }
  double getStartParam() const override { return 0; }
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  bool getSplitCurves(const std::vector<double>& params,
                      std::vector<OdDbEntityPtr>& pieces) const override;
  OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const override;
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

 protected:
  OdGeVector3d rise() const override { return normal() * thickness(); }

 private:
  Data m_circle;
};
using OdDbCirclePtr = OdSmartPtr<OdDbCircle>;
