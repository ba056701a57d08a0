// POLYLINE with its VERTEX entries.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/entities/vertex.h"
#include "drawing/geometry/extrusion.h"

class OdDbPolyline;
struct OdDbFlatPolyline;

/// A polyline of the old kind: flat with bulges and widths, possibly fitted with curves or a
/// spline; in space; or the edges of a mesh or of a polyface.
class OdDb2dPolyline : public OdDbCurve {
  ODDB_CONCRETE(OdDb2dPolyline, "POLYLINE")

  enum Kind : std::uint8_t { k2d, k3d, kMesh, kPolyface };
  enum Flag : int {
    kClosed = 1, ///< also: a mesh that closes in its first direction
    kCurveFit = 2,
    kSplineFit = 4,
    kIs3d = 8,
    kIsMesh = 16,
    kClosedN = 32,
    kIsPolyface = 64,
    kPlinegen = 128
  };
  using Vertex = OdDbVertexData;

  explicit OdDb2dPolyline(Kind kind);

  Kind kind() const;
  unsigned numVerts() const { return static_cast<unsigned>(m_polyline.vertices.size()); }
  /// Raises OdError_InvalidIndex.
  const Vertex& vertexAt(unsigned index) const;
  /// The corner's own object stays as it is.
  void setVertexAt(unsigned index, const Vertex& vertex);
  /// `index` may be numVerts(). The point is in the coordinates of the plane for a flat polyline,
  /// else in the world's.
  void addVertexAt(unsigned index, const OdGePoint3d& point, double bulge = 0,
                   double startWidth = 0, double endWidth = 0);
  void insertVertexAt(unsigned index, const Vertex& vertex);
  void removeVertexAt(unsigned index);
  OdGePoint3d worldPointAt(unsigned index) const;

  bool isClosed() const override { return m_polyline.flags & kClosed; }
  void setClosed(bool closed);
  bool isClosedN() const { return m_polyline.flags & kClosedN; }
  bool hasPlinegen() const { return m_polyline.flags & kPlinegen; }
  void setPlinegen(bool on);
  int flags() const { return m_polyline.flags; }
  /// Widths of corners that have none of their own, in the file's words; new corners get them.
  double defaultStartWidth() const { return m_polyline.startWidth; }
  double defaultEndWidth() const { return m_polyline.endWidth; }
  void setDefaultWidths(double start, double end);
  /// 0 none, 5 quadratic, 6 cubic, 8 Bezier.
  int smoothType() const { return m_polyline.smoothType; }
  /// Of meshes: corners in both directions.
  int mSize() const { return m_polyline.mCount; }
  int nSize() const { return m_polyline.nCount; }
  void setMeshSize(int m, int n);
  double elevation() const { return m_polyline.elevation.z; }
  void setElevation(double elevation);
  double thickness() const { return m_polyline.extrusion.thickness(); }
  void setThickness(double thickness);
  const OdGeVector3d& normal() const { return m_polyline.extrusion.normal(); }
  void setNormal(const OdGeVector3d& normal);

  double getStartParam() const override { return 0; }
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  bool getSplitCurves(const std::vector<double>& params,
                      std::vector<OdDbEntityPtr>& pieces) const override;
  bool reverseCurve() override;
  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const override;
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;

  OdRxObjectPtr clone() const override;
  bool takesFollowers() const override { return true; }
  void addFollower(OdDbEntity& follower) override;
  void dxfOutFollowers(OdDbDxfOut& out) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of the polyline.
  struct Data {
    std::vector<Vertex> vertices;
    OdGePoint3d elevation; ///< only z says something
    double startWidth = 0, endWidth = 0;
    int flags = 0, mCount = 0, nCount = 0, mDensity = 0, nDensity = 0, smoothType = 0;
    OdDbExtrusion extrusion;
    OdDbObjectId end;        ///< the end mark
    bool tellsFlags = false; ///< files say so even if none is set
  };

 protected:
  void enteredDatabase() override;
  OdGeVector3d rise() const override { return normal() * thickness(); }
  bool dashesRunThrough() const override { return kind() != k2d || hasPlinegen(); }

 private:
  const char* dxfSubclass() const;
  const char* vertexSubclass(const Vertex& vertex) const;
  /// The corners that make the curve: all but the frame of a spline.
  std::vector<const Vertex*> shown() const;
  OdDbFlatPolyline flat() const;
  /// A light polyline of the same shape.
  OdSmartPtr<OdDbPolyline> asLight() const;
  void addEntry(Vertex& vertex);
  /// Both ends of each edge of a mesh or polyface.
  std::vector<OdGePoint3d> edges() const;
  Data m_polyline;
};
using OdDb2dPolylinePtr = OdSmartPtr<OdDb2dPolyline>;
