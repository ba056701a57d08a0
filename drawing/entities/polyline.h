// LWPOLYLINE.
#pragma once

#include "drawing/entities/entity.h"

#include <vector>

/// Straight and curved pieces in one plane.
class OdDbPolyline : public OdDbEntity {
  ODDB_CONCRETE(OdDbPolyline, "LWPOLYLINE")

  /// One corner, with the piece that follows it. The bulge is the tangent of a quarter of the
  /// piece's angle: 0 straight, positive counterclockwise, 1 a half circle.
  struct Vertex {
    OdGePoint2d point;
    double bulge = 0, startWidth = 0, endWidth = 0;
    int identifier = 0;
    bool operator==(const Vertex&) const = default;
  };

  unsigned numVerts() const { return static_cast<unsigned>(m_polyline.vertices.size()); }
  /// Raises OdError_InvalidIndex. Points are in the coordinates of the polyline's plane.
  const Vertex& vertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const Vertex& vertex);
  /// `index` may be numVerts().
  void addVertexAt(unsigned index, const OdGePoint2d& point, double bulge = 0,
                   double startWidth = 0, double endWidth = 0);
  void removeVertexAt(unsigned index);
  const OdGePoint2d& getPointAt(unsigned index) const { return vertexAt(index).point; }
  void setPointAt(unsigned index, const OdGePoint2d& point);
  double getBulgeAt(unsigned index) const { return vertexAt(index).bulge; }
  void setBulgeAt(unsigned index, double bulge);
  void setWidthsAt(unsigned index, double startWidth, double endWidth);
  /// The corner in world coordinates.
  OdGePoint3d worldPointAt(unsigned index) const;

  bool isClosed() const;
  void setClosed(bool closed);
  /// Line types run through the corners.
  bool hasPlinegen() const;
  void setPlinegen(bool on);
  /// The width of all pieces, if it is the same.
  double constantWidth() const { return m_polyline.constantWidth; }
  void setConstantWidth(double width);
  double elevation() const { return m_polyline.elevation; }
  void setElevation(double elevation);
  double thickness() const { return m_polyline.thickness; }
  void setThickness(double thickness);
  const OdGeVector3d& normal() const { return m_polyline.normal; }
  void setNormal(const OdGeVector3d& normal);

  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a polyline besides its corners.
  struct Data {
    std::vector<Vertex> vertices;
    int flags = 0;
    double constantWidth = 0, elevation = 0, thickness = 0;
    OdGeVector3d normal = OdGeVector3d::zAxis();
  };

 private:
  Vertex& editVertex(unsigned index);
  Data m_polyline;
};
using OdDbPolylinePtr = OdSmartPtr<OdDbPolyline>;
