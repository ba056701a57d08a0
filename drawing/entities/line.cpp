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

double OdDbLine::getEndParam() const { return m_line.start.distanceTo(m_line.end); }

OdGePoint3d OdDbLine::getPointAtParam(double param) const {
  return m_line.start + getFirstDeriv(param) * checkedParam(param);
}

OdGeVector3d OdDbLine::getFirstDeriv(double) const { return (m_line.end - m_line.start).normal(); }

void OdDbLine::appendSegments(OdGeCurveSegments& segments, double) const {
  segments.push_back(OdGeCurveSegment::line(m_line.start, m_line.end));
}

bool OdDbLine::reverseCurve() {
  assertWriteEnabled();
  std::swap(m_line.start, m_line.end);
  return true;
}

std::vector<OdDbEntityPtr> OdDbLine::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  const OdGeVector3d right = (m_line.end - m_line.start).crossProduct(normal()).normal();
  if (right.isZeroLength()) return {};
  const OdDbLinePtr moved = clone();
  moved->m_line.start = m_line.start + right * distance;
  moved->m_line.end = m_line.end + right * distance;
  return {moved};
}

bool OdDbLine::getSplitCurves(const std::vector<double>& params,
                              std::vector<OdDbEntityPtr>& pieces) const {
  OdGePoint3d from = m_line.start;
  for (std::size_t i = 0; i <= params.size(); ++i) {
    const OdGePoint3d to = i < params.size() ? getPointAtParam(params[i]) : m_line.end;
    const OdDbLinePtr piece = clone();
    piece->m_line.start = from;
    piece->m_line.end = to;
    if (!(from == to)) pieces.push_back(piece);
    from = to;
  }
  return true;
}
