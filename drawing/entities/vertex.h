// VERTEX.
#pragma once

#include "drawing/entities/entity.h"

#include <array>

/// What the file knows of one corner of a POLYLINE.
struct OdDbVertexData {
  enum Flag : int {
    kCurveFitExtra = 1,   ///< made by curve fitting
    kTangentUsed = 2,     ///< the tangent counts
    kSplineFit = 8,       ///< made by spline fitting
    kSplineFrame = 16,    ///< a control point, not shown
    k3dVertex = 32,       ///< of a polyline in space
    k3dMesh = 64,         ///< of a mesh
    kPolyfaceVertex = 128 ///< of a polyface: with k3dMesh a place, without it a face
  };

  /// In the plane's coordinates for flat polylines, in the world's for all others.
  OdGePoint3d point;
  double startWidth = 0, endWidth = 0, bulge = 0;
  double tangent = 0; ///< radians
  int flags = 0, identifier = 0;
  /// Of a face: the numbers of its corners from 1, negative where the edge behind is not shown, 0
  /// where there is none.
  std::array<int, 4> face{};
  OdDbObjectId entry; ///< the corner's own object, once it is in a drawing

  bool isFace() const { return (flags & kPolyfaceVertex) && !(flags & k3dMesh); }
};

/// The object that a corner of a POLYLINE is in files, with its own handle, layer and extended
/// data. The polyline keeps the place and all else; nobody needs to open this.
class OdDbVertex : public OdDbEntity {
  ODDB_CONCRETE(OdDbVertex, "VERTEX")

  const OdDbVertexData& vertex() const { return m_vertex; }
  /// Gives the object what is written, with the name of its last subclass and the widths that the
  /// polyline says for all; the polyline does this before it writes.
  void show(const OdDbVertexData& vertex, const char* subclass, double usualStart,
            double usualEnd) {
    m_vertex = vertex;
    m_subclass = subclass;
    m_hasStart = vertex.startWidth != usualStart;
    m_hasEnd = vertex.endWidth != usualEnd;
  }
  /// False for a width that the file leaves to the polyline.
  bool hasStartWidth() const { return m_hasStart; }
  bool hasEndWidth() const { return m_hasEnd; }

  bool transformBy(const OdGeMatrix3d&) override { return false; }
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

 private:
  OdDbVertexData m_vertex;
  const char* m_subclass = nullptr;
  bool m_hasStart = false, m_hasEnd = false; ///< widths of its own
};
