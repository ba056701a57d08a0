// ELLIPSE.
#pragma once

#include "drawing/entities/curve.h"

/// An ellipse or a part of one: center + major axis cos t + minor axis sin t for t from the start
/// to the end parameter, counterclockwise about the normal.
class OdDbEllipse : public OdDbCurve {
  ODDB_CONCRETE(OdDbEllipse, "ELLIPSE")

  /// All in world coordinates. Raises OdError(eInvalidInput) for a normal or an axis without
  /// length, an axis that does not stand on the normal, or a ratio that is not above 0 and up to 1.
  OdDbEllipse(const OdGePoint3d& center, const OdGeVector3d& normal, const OdGeVector3d& majorAxis,
              double radiusRatio, double startParam = 0, double endParam = 2 * kOdaPi);
  void set(const OdGePoint3d& center, const OdGeVector3d& normal, const OdGeVector3d& majorAxis,
           double radiusRatio, double startParam = 0, double endParam = 2 * kOdaPi);
  /// The ellipse with two conjugate half diameters, center + u cos t + v sin t, from `from` over
  /// `sweep`; null if it has no area or its numbers end.
  static OdSmartPtr<OdDbEllipse> fromConjugates(const OdGePoint3d& center, const OdGeVector3d& u,
                                                const OdGeVector3d& v, double from, double sweep);

  const OdGePoint3d& center() const { return m_ellipse.center; }
  void setCenter(const OdGePoint3d& center);
  const OdGeVector3d& normal() const { return m_ellipse.normal; }
  const OdGeVector3d& majorAxis() const { return m_ellipse.majorAxis; }
  OdGeVector3d minorAxis() const;
  double radiusRatio() const { return m_ellipse.ratio; }
  void setRadiusRatio(double ratio);
  double majorRadius() const { return m_ellipse.majorAxis.length(); }
  double minorRadius() const { return majorRadius() * m_ellipse.ratio; }
  /// Radians of the parameter, which is no angle of the drawing unless the ratio is 1.
  double startParam() const { return m_ellipse.startParam; }
  void setStartParam(double param);
  double endParam() const { return m_ellipse.endParam; }
  void setEndParam(double param);

  bool isClosed() const override;
  double getStartParam() const override;
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  /// As splines through points of the exact curve, which is no ellipse.
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  bool getSplitCurves(const std::vector<double>& params,
                      std::vector<OdDbEntityPtr>& pieces) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of an ellipse.
  struct Data {
    OdGePoint3d center;
    OdGeVector3d majorAxis = OdGeVector3d::xAxis();
    OdGeVector3d normal = OdGeVector3d::zAxis();
    double ratio = 1, startParam = 0, endParam = 2 * kOdaPi;
  };

 private:
  Data m_ellipse;
};
using OdDbEllipsePtr = OdSmartPtr<OdDbEllipse>;
