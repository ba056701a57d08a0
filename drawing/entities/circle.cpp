#include "drawing/entities/circle.h"

#include "drawing/checks.h"
#include "drawing/entities/plane_transform.h"

OdDbCircle::OdDbCircle() = default;

OdDbCircle::OdDbCircle(const OdGePoint3d& center, const OdGeVector3d& normal, double radius) {
  setNormal(normal);
  setCenter(center);
  setRadius(radius);
}

void OdDbCircle::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_circle = static_cast<const OdDbCircle&>(other).m_circle;
}

OdGePoint3d OdDbCircle::center() const {
  return OdGeMatrix3d::planeToWorld(m_circle.extrusion.normal()) * m_circle.center;
}

void OdDbCircle::setCenter(const OdGePoint3d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_circle.center = OdGeMatrix3d::planeToWorld(m_circle.extrusion.normal()).inverse() * center;
}

void OdDbCircle::setRadius(double radius) {
  odcheck::positive(radius);
  assertWriteEnabled();
  m_circle.radius = radius;
}

void OdDbCircle::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  const OdGePoint3d place = center();
  m_circle.extrusion.setNormal(n);
  setCenter(place);
}

void OdDbCircle::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_circle.extrusion.setThickness(thickness);
}

bool OdDbCircle::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  const OdGeVector3d& n = m_circle.extrusion.normal();
  const OdGePoint3d c = center();
  const double r = m_circle.radius;
  // How far a circle reaches along an axis depends on how it leans to that axis.
  const auto reach = [&](double along) { return r * std::sqrt(std::max(0.0, 1 - along * along)); };
  const OdGeVector3d half{reach(n.x), reach(n.y), reach(n.z)};
  for (const OdGeVector3d& rise : {OdGeVector3d{}, n * m_circle.extrusion.thickness()}) {
    extents.addPoint(c + rise - half);
    extents.addPoint(c + rise + half);
  }
  return true;
}

bool OdDbCircle::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_circle.extrusion.normal());
  if (!plane.valid) return false;
  Data moved = m_circle;
  moved.center = plane.inPlane * m_circle.center;
  moved.radius *= plane.scale();
  moved.extrusion.setThickness(moved.extrusion.thickness() *
                               (transform * m_circle.extrusion.normal()).length());
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::areFinite(moved.center, moved.radius, moved.extrusion.thickness()) ||
      moved.radius <= 0)
    return false;
  assertWriteEnabled();
  m_circle = moved;
  return true;
}
