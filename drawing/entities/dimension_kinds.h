// The kinds of dimensions. All points are in world coordinates, all angles in radians.
#pragma once

#include "drawing/entities/dimension.h"

/// Declares what the kinds override in the same way.
#define ODDB_DIMENSION(Class, KIND)                                                                \
  ODRX_DECLARE_MEMBERS(Class);                                                                     \
                                                                                                   \
 public:                                                                                           \
  Kind kind() const override { return KIND; }                                                      \
  double getMeasurement() const override;                                                          \
                                                                                                   \
 protected:                                                                                        \
  OdDbObjectPtr newInstance() const override { return odrxMake<Class>(); }                         \
  void dxfOutKind(OdDbDxfOut& out) const override;                                                 \
  bool layOut(oddb::DimensionBlock& block, Data& drawn) const override;                            \
                                                                                                   \
 public:                                                                                           \
  Class() = default;

/// The distance of two points along the line through them.
class OdDbAlignedDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDbAlignedDimension, kAligned)

  OdDbAlignedDimension(const OdGePoint3d& xLine1, const OdGePoint3d& xLine2,
                       const OdGePoint3d& dimLine);
  const char* dxfName() const override { return "DIMENSION"; }

  /// The points that are measured.
  const OdGePoint3d& xLine1Point() const { return m_dimension.first; }
  void setXLine1Point(const OdGePoint3d& point);
  const OdGePoint3d& xLine2Point() const { return m_dimension.second; }
  void setXLine2Point(const OdGePoint3d& point);
  /// A point of the dimension line.
  const OdGePoint3d& dimLinePoint() const { return m_dimension.definition; }
  void setDimLinePoint(const OdGePoint3d& point);
  /// The slant of the extension lines; 0 for none.
  double oblique() const { return m_dimension.oblique; }
  void setOblique(double angle);

 protected:
  /// The angle of the dimension line in the plane.
  virtual double lineAngle() const;
};
using OdDbAlignedDimensionPtr = OdSmartPtr<OdDbAlignedDimension>;

/// The distance of two points along a direction.
class OdDbRotatedDimension : public OdDbAlignedDimension {
  ODDB_DIMENSION(OdDbRotatedDimension, kRotated)

  OdDbRotatedDimension(double rotation, const OdGePoint3d& xLine1, const OdGePoint3d& xLine2,
                       const OdGePoint3d& dimLine);
  double rotation() const { return m_dimension.rotation; }
  void setRotation(double angle);

 protected:
  double lineAngle() const override { return m_dimension.rotation; }
};
using OdDbRotatedDimensionPtr = OdSmartPtr<OdDbRotatedDimension>;

/// A radius, from the centre to a point of the circle.
class OdDbRadialDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDbRadialDimension, kRadial)

  OdDbRadialDimension(const OdGePoint3d& center, const OdGePoint3d& chordPoint,
                      double leaderLength);
  const char* dxfName() const override { return "DIMENSION"; }
  const OdGePoint3d& center() const { return m_dimension.definition; }
  void setCenter(const OdGePoint3d& center);
  const OdGePoint3d& chordPoint() const { return m_dimension.third; }
  void setChordPoint(const OdGePoint3d& point);
  double leaderLength() const { return m_dimension.leaderLength; }
  void setLeaderLength(double length);
};
using OdDbRadialDimensionPtr = OdSmartPtr<OdDbRadialDimension>;

/// A diameter, from a point of the circle to the one across.
class OdDbDiametricDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDbDiametricDimension, kDiametric)

  OdDbDiametricDimension(const OdGePoint3d& chordPoint, const OdGePoint3d& farChordPoint,
                         double leaderLength);
  const char* dxfName() const override { return "DIMENSION"; }
  const OdGePoint3d& chordPoint() const { return m_dimension.third; }
  void setChordPoint(const OdGePoint3d& point);
  const OdGePoint3d& farChordPoint() const { return m_dimension.definition; }
  void setFarChordPoint(const OdGePoint3d& point);
  double leaderLength() const { return m_dimension.leaderLength; }
  void setLeaderLength(double length);
};
using OdDbDiametricDimensionPtr = OdSmartPtr<OdDbDiametricDimension>;

/// The angle of two lines.
class OdDb2LineAngularDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDb2LineAngularDimension, kAngular)

  const char* dxfName() const override { return "DIMENSION"; }
  const OdGePoint3d& xLine1Start() const { return m_dimension.first; }
  const OdGePoint3d& xLine1End() const { return m_dimension.second; }
  const OdGePoint3d& xLine2Start() const { return m_dimension.third; }
  const OdGePoint3d& xLine2End() const { return m_dimension.definition; }
  void setLines(const OdGePoint3d& start1, const OdGePoint3d& end1, const OdGePoint3d& start2,
                const OdGePoint3d& end2);
  OdGePoint3d arcPoint() const;
  void setArcPoint(const OdGePoint3d& point);
};
using OdDb2LineAngularDimensionPtr = OdSmartPtr<OdDb2LineAngularDimension>;

/// The angle at a centre between two points.
class OdDb3PointAngularDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDb3PointAngularDimension, k3PointAngular)

  const char* dxfName() const override { return "DIMENSION"; }
  const OdGePoint3d& xLine1Point() const { return m_dimension.first; }
  const OdGePoint3d& xLine2Point() const { return m_dimension.second; }
  const OdGePoint3d& centerPoint() const { return m_dimension.third; }
  const OdGePoint3d& arcPoint() const { return m_dimension.definition; }
  void set(const OdGePoint3d& center, const OdGePoint3d& xLine1, const OdGePoint3d& xLine2,
           const OdGePoint3d& arcPoint);
};
using OdDb3PointAngularDimensionPtr = OdSmartPtr<OdDb3PointAngularDimension>;

/// One coordinate of a point, told at the end of a leader.
class OdDbOrdinateDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDbOrdinateDimension, kOrdinate)

  const char* dxfName() const override { return "DIMENSION"; }
  const OdGePoint3d& origin() const { return m_dimension.definition; }
  const OdGePoint3d& definingPoint() const { return m_dimension.first; }
  const OdGePoint3d& leaderEndPoint() const { return m_dimension.second; }
  bool isUsingXAxis() const { return m_dimension.flags & kOrdinateIsX; }
  void set(const OdGePoint3d& origin, const OdGePoint3d& defining, const OdGePoint3d& leaderEnd,
           bool useXAxis);
};
using OdDbOrdinateDimensionPtr = OdSmartPtr<OdDbOrdinateDimension>;

/// The length of an arc.
class OdDbArcDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDbArcDimension, kArcLength)

  const char* dxfName() const override { return "ARC_DIMENSION"; }
  const OdGePoint3d& arcPoint() const { return m_dimension.definition; }
  const OdGePoint3d& xLine1Point() const { return m_dimension.first; }
  const OdGePoint3d& xLine2Point() const { return m_dimension.second; }
  const OdGePoint3d& centerPoint() const { return m_dimension.third; }
  void set(const OdGePoint3d& center, const OdGePoint3d& xLine1, const OdGePoint3d& xLine2,
           const OdGePoint3d& arcPoint);
};
using OdDbArcDimensionPtr = OdSmartPtr<OdDbArcDimension>;

/// A DIMENSION while it is read: only its flags tell its kind.
class OdDbReadDimension : public OdDbDimension {
  ODDB_DIMENSION(OdDbReadDimension, kRotated)

  const char* dxfName() const override { return "DIMENSION"; }
  /// The dimension of the kind that was read.
  OdDbEntityPtr readAs() const override;
};
