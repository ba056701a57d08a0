// ARC.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/geometry/extrusion.h"

/// A piece of a circle, counterclockwise about its normal from the start to the end angle.
class OdDbArc : public OdDbCurve {
  ODDB_CONCRETE(OdDbArc, "ARC")

  /// Centre and normal in world coordinates, angles in radians in the arc's plane.
  OdDbArc(const OdGePoint3d& center, const OdGeVector3d& normal, double radius, double startAngle,
          double endAngle);

  /// In world coordinates.
  OdGePoint3d center() const;
  void setCenter(const OdGePoint3d& center);
  double radius() const { return m_arc.radius; }
  /// Raises OdError(eInvalidInput) unless above 0.
  void setRadius(double radius);
  /// Radians.
  double startAngle() const { return m_arc.startAngle; }
  void setStartAngle(double angle);
  double endAngle() const { return m_arc.endAngle; }
  void setEndAngle(double angle);
  const OdGeVector3d& normal() const { return m_arc.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);
  double thickness() const { return m_arc.extrusion.thickness(); }
  void setThickness(double thickness);
  /// In world coordinates.
  OdGePoint3d startPoint() const { return pointAt(m_arc.startAngle); }
  OdGePoint3d endPoint() const { return pointAt(m_arc.endAngle); }
  /// The point at an angle of the arc's plane.
  OdGePoint3d pointAt(double angle) const;

  bool isClosed() const override { return false; }
  double getStartParam() const override;
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

  /// What the file knows of an arc; the centre in the coordinates of its plane, angles in radians.
  struct Data {
    OdGePoint3d center;
    double radius = 1;
    double startAngle = 0, endAngle = kOdaPi;
    OdDbExtrusion extrusion;
  };

 protected:
  OdGeVector3d rise() const override { return normal() * thickness(); }

 private:
  Data m_arc;
};
using OdDbArcPtr = OdSmartPtr<OdDbArc>;
