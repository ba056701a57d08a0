#include "drawing/entities/xline.h"

#include "drawing/checks.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/graphics/world_draw.h"

OdDbXline::OdDbXline() = default;

OdDbXline::OdDbXline(const OdGePoint3d& base, const OdGeVector3d& direction) {
  setBasePoint(base);
  setUnitDir(direction);
}

void OdDbXline::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_line = static_cast<const OdDbXline&>(other).m_line;
}

void OdDbXline::setBasePoint(const OdGePoint3d& point) {
  odcheck::finite(point);
  assertWriteEnabled();
  m_line.base = point;
}

void OdDbXline::setUnitDir(const OdGeVector3d& direction) {
  const OdGeVector3d unit = odcheck::direction(direction);
  assertWriteEnabled();
  m_line.direction = unit;
}

void OdDbXline::worldDraw(OdGiWorldDraw& draw) const {
  draw.endless(m_line.base, unitDir(), runsBothWays());
}

bool OdDbXline::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  return false;
}

bool OdDbXline::transformBy(const OdGeMatrix3d& transform) {
  Data moved;
  moved.base = transform * m_line.base;
  const OdGeVector3d direction = transform * m_line.direction;
  if (!odcheck::areFinite(moved.base, direction) || !(direction.length() > 0)) return false;
  moved.direction = odgeIsShift(transform) ? m_line.direction : direction.normal();
  assertWriteEnabled();
  m_line = moved;
  return true;
}
