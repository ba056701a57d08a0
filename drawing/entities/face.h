// 3DFACE.
#pragma once

#include "drawing/entities/entity.h"

/// A triangle or quadrangle in space of which the edges are seen. Its corners go around; the third
/// and the fourth fall together in a triangle.
class OdDbFace : public OdDbEntity {
  ODDB_CONCRETE(OdDbFace, "3DFACE")

  OdDbFace(const OdGePoint3d& p0, const OdGePoint3d& p1, const OdGePoint3d& p2,
           const OdGePoint3d& p3);

  /// In world coordinates; `index` from 0 to 3, OdError_InvalidIndex. So with edges, each of which
  /// runs from the corner of its number to the next one.
  OdGePoint3d getVertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const OdGePoint3d& point);
  bool isEdgeVisibleAt(unsigned index) const;
  void makeEdgeVisibleAt(unsigned index) { setEdge(index, true); }
  void makeEdgeInvisibleAt(unsigned index) { setEdge(index, false); }

  /// Edges only; nothing of a face all of whose edges are invisible.
  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a face.
  struct Data {
    OdGePoint3d p0, p1, p2, p3;
    int invisibleEdges = 0; ///< a bit for each edge
  };

 private:
  void setEdge(unsigned index, bool visible);
  bool m_hasFourth = false; ///< while reading
  Data m_face;
};
using OdDbFacePtr = OdSmartPtr<OdDbFace>;
