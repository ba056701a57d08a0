#include "drawing/entities/point.h"

#include "drawing/checks.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/graphics/world_draw.h"

OdDbPoint::OdDbPoint() = default;

OdDbPoint::OdDbPoint(const OdGePoint3d& position) { setPosition(position); }

void OdDbPoint::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_point = static_cast<const OdDbPoint&>(other).m_point;
}

void OdDbPoint::setPosition(const OdGePoint3d& position) {
  odcheck::finite(position);
  assertWriteEnabled();
  m_point.position = position;
}

void OdDbPoint::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_point.extrusion.setThickness(thickness);
}

void OdDbPoint::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_point.extrusion.setNormal(n);
}

void OdDbPoint::setEcsRotation(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_point.rotation = angle;
}

void OdDbPoint::worldDraw(OdGiWorldDraw& draw) const {
  draw.point(m_point.position, normal());
  if (thickness() == 0) return;
  const OdGePoint3d ends[] = {m_point.position, m_point.position + m_point.extrusion.rise()};
  draw.polyline(ends, false);
}

bool OdDbPoint::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  extents.addPoint(m_point.position);
  extents.addPoint(m_point.position + m_point.extrusion.rise());
  return true;
}

bool OdDbPoint::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_point;
  moved.position = transform * m_point.position;
  const OdGeVector3d up = transform * normal();
  if (!odcheck::areFinite(moved.position, up)) return false;
  if (!up.isZeroLength() && !odgeIsShift(transform)) {
    moved.extrusion.setThickness(thickness() * up.length());
    moved.extrusion.setNormal(up.normal());
    // The sign's own x axis is told from that of its plane.
    const OdGeVector3d x =
        OdGeMatrix3d::planeToWorld(moved.extrusion.normal()).inverse() *
        (transform * (OdGeMatrix3d::planeToWorld(normal()) *
                      OdGeVector3d{std::cos(m_point.rotation), -std::sin(m_point.rotation), 0}));
    // Only a sign that was turned, or is now, tells so.
    const double turned = odgeNormalAngle(-std::atan2(x.y, x.x));
    if (m_point.rotation != 0 && std::isfinite(turned)) moved.rotation = turned;
  }
  assertWriteEnabled();
  m_point = moved;
  return true;
}
