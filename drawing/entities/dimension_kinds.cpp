#include "drawing/entities/dimension_kinds.h"

#include "drawing/checks.h"

namespace {

/// The turn of two directions about an axis, from 0 to two pi.
double angleBetween(const OdGeVector3d& a, const OdGeVector3d& b, const OdGeVector3d& normal) {
  return odgeNormalAngle(
      std::atan2(a.crossProduct(b).dotProduct(normal.normal()), a.dotProduct(b)));
}

} // namespace

#define ODDB_DIM_SETTER(Class, setter, member)                                                     \
  void Class::setter(const OdGePoint3d& point) {                                                   \
    odcheck::finite(point);                                                                        \
    aboutToChange();                                                                               \
    m_dimension.member = point;                                                                    \
  }

OdDbAlignedDimension::OdDbAlignedDimension(const OdGePoint3d& xLine1, const OdGePoint3d& xLine2,
                                           const OdGePoint3d& dimLine) {
  setXLine1Point(xLine1);
  setXLine2Point(xLine2);
  setDimLinePoint(dimLine);
}

ODDB_DIM_SETTER(OdDbAlignedDimension, setXLine1Point, first)
ODDB_DIM_SETTER(OdDbAlignedDimension, setXLine2Point, second)
ODDB_DIM_SETTER(OdDbAlignedDimension, setDimLinePoint, definition)

void OdDbAlignedDimension::setOblique(double angle) {
  odcheck::finite(angle);
  aboutToChange();
  m_dimension.oblique = angle;
}

double OdDbAlignedDimension::lineAngle() const {
  const OdGeVector3d way =
      OdGeMatrix3d::planeToWorld(normal()).inverse() * (m_dimension.second - m_dimension.first);
  return std::atan2(way.y, way.x);
}

double OdDbAlignedDimension::getMeasurement() const {
  return m_dimension.first.distanceTo(m_dimension.second);
}

OdDbRotatedDimension::OdDbRotatedDimension(double rotation, const OdGePoint3d& xLine1,
                                           const OdGePoint3d& xLine2, const OdGePoint3d& dimLine)
  : OdDbAlignedDimension(xLine1, xLine2, dimLine) {
  setRotation(rotation);
}

void OdDbRotatedDimension::setRotation(double angle) {
  odcheck::finite(angle);
  aboutToChange();
  m_dimension.rotation = angle;
}

bool OdDbRotatedDimension::layOut(oddb::DimensionBlock& block, Data& drawn) const {
  return OdDbAlignedDimension::layOut(block, drawn);
}

double OdDbRotatedDimension::getMeasurement() const {
  const OdGeVector3d way =
      OdGeMatrix3d::planeToWorld(normal()).inverse() * (m_dimension.second - m_dimension.first);
  return std::abs(way.x * std::cos(rotation()) + way.y * std::sin(rotation()));
}

OdDbRadialDimension::OdDbRadialDimension(const OdGePoint3d& center, const OdGePoint3d& chordPoint,
                                         double leaderLength) {
  setCenter(center);
  setChordPoint(chordPoint);
  setLeaderLength(leaderLength);
}

ODDB_DIM_SETTER(OdDbRadialDimension, setCenter, definition)
ODDB_DIM_SETTER(OdDbRadialDimension, setChordPoint, third)

void OdDbRadialDimension::setLeaderLength(double length) {
  odcheck::finite(length);
  aboutToChange();
  m_dimension.leaderLength = length;
}

double OdDbRadialDimension::getMeasurement() const { return center().distanceTo(chordPoint()); }

OdDbDiametricDimension::OdDbDiametricDimension(const OdGePoint3d& chordPoint,
                                               const OdGePoint3d& farChordPoint,
                                               double leaderLength) {
  setChordPoint(chordPoint);
  setFarChordPoint(farChordPoint);
  setLeaderLength(leaderLength);
}

ODDB_DIM_SETTER(OdDbDiametricDimension, setChordPoint, third)
ODDB_DIM_SETTER(OdDbDiametricDimension, setFarChordPoint, definition)

void OdDbDiametricDimension::setLeaderLength(double length) {
  odcheck::finite(length);
  aboutToChange();
  m_dimension.leaderLength = length;
}

double OdDbDiametricDimension::getMeasurement() const {
  return chordPoint().distanceTo(farChordPoint());
}

#undef ODDB_DIM_SETTER

void OdDb2LineAngularDimension::setLines(const OdGePoint3d& start1, const OdGePoint3d& end1,
                                         const OdGePoint3d& start2, const OdGePoint3d& end2) {
  for (const OdGePoint3d& p : {start1, end1, start2, end2}) odcheck::finite(p);
  aboutToChange();
  m_dimension.first = start1;
  m_dimension.second = end1;
  m_dimension.third = start2;
  m_dimension.definition = end2;
}

OdGePoint3d OdDb2LineAngularDimension::arcPoint() const {
  return OdGeMatrix3d::planeToWorld(normal()) * m_dimension.arcPoint;
}

void OdDb2LineAngularDimension::setArcPoint(const OdGePoint3d& point) {
  odcheck::finite(point);
  aboutToChange();
  m_dimension.arcPoint = OdGeMatrix3d::planeToWorld(normal()).inverse() * point;
}

double OdDb2LineAngularDimension::getMeasurement() const {
  // Of the four angles of two lines the one that the arc's point lies in.
  const OdGeVector3d a = m_dimension.second - m_dimension.first;
  const OdGeVector3d b = m_dimension.definition - m_dimension.third;
  const OdGeVector3d n = a.crossProduct(b);
  if (!(n.lengthSqrd() > 0)) return 0;
  const OdGeVector3d between = m_dimension.third - m_dimension.first;
  const OdGePoint3d vertex =
      m_dimension.first + a * (between.crossProduct(b).dotProduct(n) / n.lengthSqrd());
  const double angle = std::atan2(n.length(), a.dotProduct(b));
  const OdGeVector3d to = arcPoint() - vertex;
  const bool sideA = a.crossProduct(to).dotProduct(n) >= 0;
  const bool sideB = to.crossProduct(b).dotProduct(n) >= 0;
  return sideA == sideB ? angle : kOdaPi - angle;
}

double OdDb3PointAngularDimension::getMeasurement() const {
  const OdGeVector3d a = xLine1Point() - centerPoint();
  const double whole = angleBetween(a, xLine2Point() - centerPoint(), normal());
  const double toArc = angleBetween(a, arcPoint() - centerPoint(), normal());
  return toArc <= whole ? whole : 2 * kOdaPi - whole;
}

void OdDb3PointAngularDimension::set(const OdGePoint3d& center, const OdGePoint3d& xLine1,
                                     const OdGePoint3d& xLine2, const OdGePoint3d& arcPoint) {
  for (const OdGePoint3d& p : {center, xLine1, xLine2, arcPoint}) odcheck::finite(p);
  aboutToChange();
  m_dimension.third = center;
  m_dimension.first = xLine1;
  m_dimension.second = xLine2;
  m_dimension.definition = arcPoint;
}

double OdDbOrdinateDimension::getMeasurement() const {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::rotation(horizontalRotation(), OdGeVector3d::zAxis()) *
                               OdGeMatrix3d::planeToWorld(normal()).inverse();
  const OdGeVector3d way = toPlane * (definingPoint() - origin());
  return std::abs(isUsingXAxis() ? way.x : way.y);
}

void OdDbOrdinateDimension::set(const OdGePoint3d& origin, const OdGePoint3d& defining,
                                const OdGePoint3d& leaderEnd, bool useXAxis) {
  for (const OdGePoint3d& p : {origin, defining, leaderEnd}) odcheck::finite(p);
  aboutToChange();
  m_dimension.definition = origin;
  m_dimension.first = defining;
  m_dimension.second = leaderEnd;
  m_dimension.flags =
      useXAxis ? m_dimension.flags | kOrdinateIsX : m_dimension.flags & ~kOrdinateIsX;
}

double OdDbArcDimension::getMeasurement() const {
  const OdGeVector3d a = xLine1Point() - centerPoint();
  const double whole = angleBetween(a, xLine2Point() - centerPoint(), normal());
  const double toArc = angleBetween(a, arcPoint() - centerPoint(), normal());
  return a.length() * (toArc <= whole ? whole : 2 * kOdaPi - whole);
}

void OdDbArcDimension::set(const OdGePoint3d& center, const OdGePoint3d& xLine1,
                           const OdGePoint3d& xLine2, const OdGePoint3d& arcPoint) {
  for (const OdGePoint3d& p : {center, xLine1, xLine2, arcPoint}) odcheck::finite(p);
  aboutToChange();
  m_dimension.third = center;
  m_dimension.first = xLine1;
  m_dimension.second = xLine2;
  m_dimension.definition = arcPoint;
}

bool OdDbReadDimension::layOut(oddb::DimensionBlock&, Data&) const { return false; }

double OdDbReadDimension::getMeasurement() const { return m_dimension.measurement; }

OdDbEntityPtr OdDbReadDimension::readAs() const {
  static constexpr OdDbDimensionPtr (*kMakers[])() = {
      [] { return OdDbDimensionPtr(odrxMake<OdDbRotatedDimension>()); },
      [] { return OdDbDimensionPtr(odrxMake<OdDbAlignedDimension>()); },
      [] { return OdDbDimensionPtr(odrxMake<OdDb2LineAngularDimension>()); },
      [] { return OdDbDimensionPtr(odrxMake<OdDbDiametricDimension>()); },
      [] { return OdDbDimensionPtr(odrxMake<OdDbRadialDimension>()); },
      [] { return OdDbDimensionPtr(odrxMake<OdDb3PointAngularDimension>()); },
      [] { return OdDbDimensionPtr(odrxMake<OdDbOrdinateDimension>()); },
  };
  constexpr int kKindBits = 15;
  const auto kind = static_cast<std::size_t>(m_dimension.flags & kKindBits);
  const OdDbDimensionPtr made = kMakers[kind < std::size(kMakers) ? kind : 0]();
  made->assignFrom(*this);
  return made;
}
