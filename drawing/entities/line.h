// LINE.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/geometry/extrusion.h"

/// A straight line between two points of the world.
class OdDbLine : public OdDbCurve {
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

  bool isClosed() const override { return false; }
  double getStartParam() const override { return 0; }
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  bool reverseCurve() override;
  bool getSplitCurves(const std::vector<double>& params,
                      std::vector<OdDbEntityPtr>& pieces) const override;
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

 protected:
  OdGeVector3d rise() const override { return normal() * thickness(); }

 private:
  Data m_line;
};
using OdDbLinePtr = OdSmartPtr<OdDbLine>;
