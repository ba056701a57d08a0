#include "drawing/entities/arc.h"

#include "drawing/checks.h"
#include "drawing/entities/plane_transform.h"

#include <vector>

OdDbArc::OdDbArc() = default;

OdDbArc::OdDbArc(const OdGePoint3d& center, const OdGeVector3d& normal, double radius,
                 double startAngle, double endAngle) {
  setNormal(normal);
  setCenter(center);
  setRadius(radius);
  setStartAngle(startAngle);
  setEndAngle(endAngle);
}

void OdDbArc::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_arc = static_cast<const OdDbArc&>(other).m_arc;
}

OdGePoint3d OdDbArc::center() const {
  return OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal()) * m_arc.center;
}

void OdDbArc::setCenter(const OdGePoint3d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_arc.center = OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal()).inverse() * center;
}

void OdDbArc::setRadius(double radius) {
  odcheck::positive(radius);
  assertWriteEnabled();
  m_arc.radius = radius;
}

void OdDbArc::setStartAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_arc.startAngle = angle;
}

void OdDbArc::setEndAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_arc.endAngle = angle;
}

void OdDbArc::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  const OdGePoint3d place = center();
  m_arc.extrusion.setNormal(n);
  setCenter(place);
}

void OdDbArc::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_arc.extrusion.setThickness(thickness);
}

OdGePoint3d OdDbArc::pointAt(double angle) const {
  const OdGeVector3d out{m_arc.radius * std::cos(angle), m_arc.radius * std::sin(angle), 0};
  return OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal()) * (m_arc.center + out);
}

bool OdDbArc::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  const double sweep = odgeNormalAngle(m_arc.endAngle - m_arc.startAngle);
  std::vector<double> angles{m_arc.startAngle, m_arc.endAngle};
  // Along each axis of the world the arc may turn at one angle and at the one opposite.
  const OdGeMatrix3d m = OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal());
  for (int row = 0; row < 3; ++row) {
    const double turn = std::atan2(m(row, 1), m(row, 0));
    for (const double angle : {turn, turn + kOdaPi})
      if (odgeNormalAngle(angle - m_arc.startAngle) <= sweep || sweep == 0) angles.push_back(angle);
  }
  const OdGeVector3d rise = m_arc.extrusion.rise();
  for (const double angle : angles) {
    extents.addPoint(pointAt(angle));
    extents.addPoint(pointAt(angle) + rise);
  }
  return true;
}

bool OdDbArc::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_arc.extrusion.normal());
  if (!plane.valid) return false;
  Data moved = m_arc;
  const double start = plane.angle(m_arc.startAngle);
  const double end = plane.angle(m_arc.endAngle);
  moved.startAngle = plane.mirrors ? end : start;
  moved.endAngle = plane.mirrors ? start : end;
  moved.center = plane.inPlane * m_arc.center;
  moved.radius *= plane.scale();
  moved.extrusion.setThickness(moved.extrusion.thickness() *
                               (transform * m_arc.extrusion.normal()).length());
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::areFinite(moved.center, moved.radius, moved.extrusion.thickness(), start, end) ||
      moved.radius <= 0)
    return false;
  assertWriteEnabled();
  m_arc = moved;
  return true;
}
