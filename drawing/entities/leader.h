// LEADER.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/geometry/nurbs.h"
#include "drawing/header_vars.h"

/// A line with an arrow head at its first corner that leads to a note.
class OdDbLeader : public OdDbCurve {
  ODDB_CONCRETE(OdDbLeader, "LEADER")

  enum AnnoType : std::uint8_t { kMText = 0, kFcf = 1, kBlockRef = 2, kNoAnno = 3 };

  /// Also takes the current dimension style.
  void setDatabaseDefaults(const OdDbDatabase& database) override;

  unsigned numVertices() const { return static_cast<unsigned>(m_leader.vertices.size()); }
  /// In world coordinates; OdError_InvalidIndex.
  const OdGePoint3d& vertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const OdGePoint3d& point);
  void appendVertex(const OdGePoint3d& point);
  void removeLastVertex();
  bool hasArrowHead() const { return m_leader.arrowHead != 0; }
  void setHasArrowHead(bool on);
  bool isSplined() const { return m_leader.splined > 0; }
  void setSplined(bool on);
  bool hasHookLine() const { return m_leader.hookLine > 0; }
  void setHasHookLine(bool on);
  AnnoType annoType() const;
  /// The note: an MTEXT, a tolerance or an insert; null if there is none.
  OdDbObjectId annotationObjId() const { return m_leader.annotation; }
  void attachAnnotation(OdDbObjectId note, AnnoType type);
  OdDbObjectId dimensionStyle() const { return m_leader.dimStyle; }
  void setDimensionStyle(OdDbObjectId style);
  /// What this leader has otherwise than its style: kept as extended data of the file.
  void setDimVarOverride(const OdString& name, const OdDbVarValue& value);
  const OdGeVector3d& normal() const { return m_leader.normal; }
  void setNormal(const OdGeVector3d& normal);
  const OdGeVector3d& horizontalDirection() const { return m_leader.horizontal; }
  void setHorizontalDirection(const OdGeVector3d& direction);

  bool isClosed() const override { return false; }
  double getStartParam() const override { return 0; }
  double getEndParam() const override;
  OdGePoint3d getPointAtParam(double param) const override;
  OdGeVector3d getFirstDeriv(double param) const override;
  void appendSegments(OdGeCurveSegments& segments, double deviation = 0) const override;
  /// None: a leader leads to one place.
  std::vector<OdDbEntityPtr> getOffsetCurves(double distance) const override;
  void worldDraw(OdGiWorldDraw& draw) const override;
  bool getGeomExtents(OdGeExtents3d& extents) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a leader; in world coordinates.
  struct Data {
    std::vector<OdGePoint3d> vertices;
    OdDbObjectId dimStyle, annotation;
    /// Below 0: not given.
    int arrowHead = -1, splined = -1, annoType = -1, hookDirection = -1, hookLine = -1;
    double textHeight = -1, textWidth = -1;
    int color = 0;
    OdGeVector3d normal = OdGeVector3d::zAxis();
    OdGeVector3d horizontal = OdGeVector3d::xAxis();
    OdGeVector3d blockOffset, annotationOffset;
  };

 private:
  /// The curve of a splined leader; empty for a straight one.
  OdGeNurbs spline() const;
  /// The corners of a filled head, or the block that stands for it.
  std::vector<OdGePoint3d> arrowHead(OdDbObjectId& block, OdGeMatrix3d& blockToWorld) const;
  /// The line below the note; empty if there is none.
  std::vector<OdGePoint3d> underline() const;
  Data m_leader;
};
using OdDbLeaderPtr = OdSmartPtr<OdDbLeader>;
