#include "drawing/entities/line.h"

#include "drawing/checks.h"

OdDbLine::OdDbLine() = default;

OdDbLine::OdDbLine(const OdGePoint3d& start, const OdGePoint3d& end) {
  setStartPoint(start);
  setEndPoint(end);
}

void OdDbLine::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_line = static_cast<const OdDbLine&>(other).m_line;
}

void OdDbLine::setStartPoint(const OdGePoint3d& point) {
  odcheck::finite(point);
  assertWriteEnabled();
  m_line.start = point;
}

void OdDbLine::setEndPoint(const OdGePoint3d& point) {
  odcheck::finite(point);
  assertWriteEnabled();
  m_line.end = point;
}

void OdDbLine::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_line.extrusion.setThickness(thickness);
}

void OdDbLine::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_line.extrusion.setNormal(n);
}

bool OdDbLine::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  const OdGeVector3d rise = m_line.extrusion.rise();
  for (const OdGePoint3d& p : {m_line.start, m_line.end}) {
    extents.addPoint(p);
    extents.addPoint(p + rise);
  }
  return true;
}

bool OdDbLine::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_line;
  moved.start = transform * m_line.start;
  moved.end = transform * m_line.end;
  const OdGeVector3d rise = transform * m_line.extrusion.normal();
  moved.extrusion.setThickness(moved.extrusion.thickness() * rise.length());
  if (!rise.isZeroLength()) moved.extrusion.setNormal(rise.normal());
  if (!odcheck::areFinite(moved.start, moved.end, moved.extrusion.thickness(),
                          moved.extrusion.normal()))
    return false;
  assertWriteEnabled();
  m_line = moved;
  return true;
}
