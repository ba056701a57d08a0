// SPLINE.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/geometry/nurbs.h"

/// A B-spline, rational or not, given by control points and knots, by points that it passes, or by
/// both. While it has only points to pass, its curve is the smooth one of degree 3 through them.
class OdDbSpline : public OdDbCurve {
  ODDB_CONCRETE(OdDbSpline, "SPLINE")

  /// Through points, with the directions at both ends if they have a length.
  explicit OdDbSpline(const std::vector<OdGePoint3d>& fitPoints,
                      const OdGeVector3d& startTangent = {}, const OdGeVector3d& endTangent = {});
  /// By control points; without weights all weigh 1. Raises OdError(eInvalidInput) unless the
  /// degree is 1 to 25, there are more control points than it, as many weights, and knots that do
  /// not fall, one more than control points and degree together.
  OdDbSpline(int degree, const std::vector<OdGePoint3d>& controlPoints,
             const std::vector<double>& knots, const std::vector<double>& weights = {});

  int degree() const { return m_spline.degree; }
  bool isRational() const { return !m_spline.weights.empty(); }
  bool isPeriodic() const;
  const std::vector<OdGePoint3d>& controlPoints() const { return m_spline.controlPoints; }
  const std::vector<double>& knots() const { return m_spline.knots; }
  const std::vector<double>& weights() const { return m_spline.weights; }
  const std::vector<OdGePoint3d>& fitPoints() const { return m_spline.fitPoints; }
  unsigned numControlPoints() const { return static_cast<unsigned>(controlPoints().size()); }
  unsigned numFitPoints() const { return static_cast<unsigned>(fitPoints().size()); }
  /// As the second constructor; the points to pass are forgotten.
  void setNurbsData(int degree, const std::vector<OdGePoint3d>& controlPoints,
                    const std::vector<double>& knots, const std::vector<double>& weights = {});
  /// As the first constructor; the control points are made anew.
  void setFitData(const std::vector<OdGePoint3d>& fitPoints, const OdGeVector3d& startTangent = {},
                  const OdGeVector3d& endTangent = {});
  const OdGeVector3d& startTangent() const { return m_spline.startTangent; }
  const OdGeVector3d& endTangent() const { return m_spline.endTangent; }
  double fitTolerance() const { return m_spline.fitTolerance < 0 ? 1e-10 : m_spline.fitTolerance; }
  /// Moves one control point; the points to pass are forgotten. Raises OdError_InvalidIndex.
  void setControlPointAt(unsigned index, const OdGePoint3d& point);

  bool isClosed() const override;
  double getStartParam() const override;
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  OdGePoint3d getClosestPointTo(const OdGePoint3d& point, double* param = nullptr) const override;
  double getDistAtParam(double param) const override;
  double getParamAtDist(double distance) const override;
  bool getSplitCurves(const std::vector<double>& params,
                      std::vector<OdDbEntityPtr>& pieces) const override;
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  bool reverseCurve() override;
  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a spline; all in world coordinates.
  struct Data {
    int flags = 0, degree = 3;
    /// Below 0: not given.
    double knotTolerance = -1, controlTolerance = -1, fitTolerance = -1;
    OdGeVector3d normal = OdGeVector3d::zAxis();
    OdGeVector3d startTangent, endTangent; ///< without length: not given
    std::vector<double> knots, weights;
    std::vector<OdGePoint3d> controlPoints, fitPoints;
  };

  /// The curve that is shown; empty if the data give none.
  const OdGeNurbs& curve() const;

 private:
  void changed();
  Data m_spline;
  mutable OdGeNurbs m_curve; ///< made when it is asked for
  mutable bool m_curveMade = false;
};
using OdDbSplinePtr = OdSmartPtr<OdDbSpline>;
