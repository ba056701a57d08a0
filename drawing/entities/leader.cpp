#include "drawing/entities/leader.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/dimension_text.h"
#include "drawing/entities/plane_transform.h"

OdDbLeader::OdDbLeader() = default;

void OdDbLeader::assignFrom(const OdDbObject& other) {
  OdDbCurve::assignFrom(other);
  m_leader = static_cast<const OdDbLeader&>(other).m_leader;
}

void OdDbLeader::setDatabaseDefaults(const OdDbDatabase& database) {
  OdDbCurve::setDatabaseDefaults(database);
  setDimensionStyle(database.currentDimStyle());
  // A new leader says what it is.
  if (m_leader.arrowHead < 0) m_leader.arrowHead = 1;
  if (m_leader.annoType < 0) m_leader.annoType = kNoAnno;
  for (int Data::*member : {&Data::splined, &Data::hookDirection, &Data::hookLine})
    m_leader.*member = std::max(m_leader.*member, 0);
  for (double Data::*member : {&Data::textHeight, &Data::textWidth})
    m_leader.*member = std::max(m_leader.*member, 0.0);
}

const OdGePoint3d& OdDbLeader::vertexAt(unsigned index) const {
  if (index >= numVertices()) throw OdError_InvalidIndex(index, numVertices());
  return m_leader.vertices[index];
}

void OdDbLeader::setVertexAt(unsigned index, const OdGePoint3d& point) {
  if (index >= numVertices()) throw OdError_InvalidIndex(index, numVertices());
  odcheck::finite(point);
  assertWriteEnabled();
  m_leader.vertices[index] = point;
}

void OdDbLeader::appendVertex(const OdGePoint3d& point) {
  odcheck::finite(point);
  assertWriteEnabled();
  m_leader.vertices.push_back(point);
}

void OdDbLeader::removeLastVertex() {
  if (m_leader.vertices.empty()) throw OdError_InvalidIndex(0, 0);
  assertWriteEnabled();
  m_leader.vertices.pop_back();
}

void OdDbLeader::setHasArrowHead(bool on) {
  assertWriteEnabled();
  m_leader.arrowHead = on;
}

void OdDbLeader::setSplined(bool on) {
  assertWriteEnabled();
  m_leader.splined = on;
}

void OdDbLeader::setHasHookLine(bool on) {
  assertWriteEnabled();
  m_leader.hookLine = on;
}

OdDbLeader::AnnoType OdDbLeader::annoType() const {
  const int type = m_leader.annoType;
  return type >= kMText && type <= kNoAnno ? static_cast<AnnoType>(type) : kNoAnno;
}

void OdDbLeader::attachAnnotation(OdDbObjectId note, AnnoType type) {
  assertWriteEnabled();
  m_leader.annotation = note;
  m_leader.annoType = note.isNull() ? kNoAnno : type;
}

void OdDbLeader::setDimensionStyle(OdDbObjectId style) {
  assertWriteEnabled();
  m_leader.dimStyle = style;
}

void OdDbLeader::setDimVarOverride(const OdString& name, const OdDbVarValue& value) {
  oddb::setDimOverride(*this, name, value);
}

void OdDbLeader::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_leader.normal = n;
}

void OdDbLeader::setHorizontalDirection(const OdGeVector3d& direction) {
  const OdGeVector3d d = odcheck::direction(direction);
  assertWriteEnabled();
  m_leader.horizontal = d;
}

bool OdDbLeader::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_leader;
  bool finite = true;
  for (OdGePoint3d& p : moved.vertices) {
    p = transform * p;
    finite = finite && odgeIsFinite(p);
  }
  const OdGeVector3d x = transform * m_leader.horizontal;
  const OdGeVector3d z = transform * m_leader.normal;
  moved.blockOffset = transform * m_leader.blockOffset;
  moved.annotationOffset = transform * m_leader.annotationOffset;
  if (!finite || !odcheck::areFinite(x, z, moved.blockOffset, moved.annotationOffset)) return false;
  if (!odgeIsShift(transform)) {
    if (!x.isZeroLength()) moved.horizontal = x.normal();
    if (!z.isZeroLength()) moved.normal = z.normal();
    const double before = m_leader.horizontal.length();
    for (double Data::*member : {&Data::textHeight, &Data::textWidth})
      if (moved.*member > 0 && before > 0) moved.*member *= x.length() / before;
  }
  assertWriteEnabled();
  m_leader = std::move(moved);
  return true;
}
