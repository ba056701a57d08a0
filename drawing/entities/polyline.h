// LWPOLYLINE.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/entities/polyline_vertices.h"
#include "drawing/geometry/extrusion.h"

struct OdDbFlatPolyline;

/// Straight and curved pieces in one plane.
class OdDbPolyline : public OdDbCurve {
  ODDB_CONCRETE(OdDbPolyline, "LWPOLYLINE")

  using Vertex = OdDbPolylineVertex;

  unsigned numVerts() const { return static_cast<unsigned>(m_polyline.vertices.size()); }
  /// Raises OdError_InvalidIndex. Points are in the coordinates of the polyline's plane.
  Vertex vertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const Vertex& vertex);
  /// `index` may be numVerts().
  void addVertexAt(unsigned index, const OdGePoint2d& point, double bulge = 0,
                   double startWidth = 0, double endWidth = 0);
  void removeVertexAt(unsigned index);
  const OdGePoint2d& getPointAt(unsigned index) const;
  void setPointAt(unsigned index, const OdGePoint2d& point);
  double getBulgeAt(unsigned index) const { return vertexAt(index).bulge; }
  void setBulgeAt(unsigned index, double bulge);
  void setWidthsAt(unsigned index, double startWidth, double endWidth);
  /// The corner in world coordinates.
  OdGePoint3d worldPointAt(unsigned index) const;

  bool isClosed() const override;
  void setClosed(bool closed);
  /// Line types run through the corners.
  bool hasPlinegen() const;
  void setPlinegen(bool on);
  /// The width of all pieces, if it is the same.
  double constantWidth() const { return m_polyline.constantWidth; }
  void setConstantWidth(double width);
  double elevation() const { return m_polyline.elevation; }
  void setElevation(double elevation);
  double thickness() const { return m_polyline.extrusion.thickness(); }
  void setThickness(double thickness);
  const OdGeVector3d& normal() const { return m_polyline.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);

  /// The sum of what all pieces turn by is positive for one that runs counterclockwise; true then.
  bool isCounterClockwise() const;
  double getStartParam() const override { return 0; }
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  /// What would cross itself is cut away; one curve can become several or none. Widths stay.
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  bool getSplitCurves(const std::vector<double>& params,
                      std::vector<OdDbEntityPtr>& pieces) const override;
  bool reverseCurve() override;
  /// Shows wide pieces as areas.
  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  /// Curved pieces become chords where they would have to become parts of ellipses.
  OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const override;
  /// Into lines and arcs.
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a polyline besides its corners.
  struct Data {
    OdDbPolylineVertices vertices;
    int flags = 0;
    bool tellsFlags = true; ///< the file says so even if none is set
    double constantWidth = 0, elevation = 0;
    OdDbExtrusion extrusion;
  };

 protected:
  OdGeVector3d rise() const override { return normal() * thickness(); }
  bool dashesRunThrough() const override { return hasPlinegen(); }

 private:
  void assertVertexAt(unsigned index) const;
  OdDbPolylineVertices& editVertices(unsigned index);
  OdDbFlatPolyline flat() const;
  Data m_polyline;
};
using OdDbPolylinePtr = OdSmartPtr<OdDbPolyline>;
