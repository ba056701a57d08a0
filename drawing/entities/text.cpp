#include "drawing/entities/text.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/plane_transform.h"

namespace {
constexpr int kBackwards = 2;
constexpr int kUpsideDown = 4;
} // namespace

OdDbText::OdDbText() = default;

void OdDbText::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_text = static_cast<const OdDbText&>(other).m_text;
}

void OdDbText::setDatabaseDefaults(const OdDbDatabase& database) {
  OdDbEntity::setDatabaseDefaults(database);
  setTextStyle(database.currentTextStyle());
  setHeight(database.sysVarReal("TEXTSIZE"));
}

void OdDbText::setTextString(const OdString& text) {
  assertWriteEnabled();
  m_text.string = text;
}

OdGePoint3d OdDbText::position() const {
  return OdGeMatrix3d::planeToWorld(m_text.extrusion.normal()) * m_text.position;
}

void OdDbText::setPosition(const OdGePoint3d& position) {
  odcheck::finite(position);
  assertWriteEnabled();
  m_text.position = OdGeMatrix3d::planeToWorld(m_text.extrusion.normal()).inverse() * position;
}

OdGePoint3d OdDbText::alignmentPoint() const {
  return OdGeMatrix3d::planeToWorld(m_text.extrusion.normal()) * m_text.alignment;
}

void OdDbText::setAlignmentPoint(const OdGePoint3d& point) {
  odcheck::finite(point);
  assertWriteEnabled();
  m_text.alignment = OdGeMatrix3d::planeToWorld(m_text.extrusion.normal()).inverse() * point;
}

void OdDbText::setHeight(double height) {
  odcheck::positive(height);
  assertWriteEnabled();
  m_text.height = height;
}

void OdDbText::setRotation(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_text.rotation = angle;
}

void OdDbText::setWidthFactor(double factor) {
  odcheck::positive(factor);
  assertWriteEnabled();
  m_text.widthFactor = factor;
}

void OdDbText::setOblique(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_text.oblique = angle;
}

void OdDbText::setTextStyle(OdDbObjectId style) {
  assertWriteEnabled();
  m_text.style = style;
}

OdDb::TextHorzMode OdDbText::horizontalMode() const {
  return static_cast<OdDb::TextHorzMode>(m_text.horizontal);
}

void OdDbText::setHorizontalMode(OdDb::TextHorzMode mode) {
  assertWriteEnabled();
  m_text.horizontal = mode;
}

OdDb::TextVertMode OdDbText::verticalMode() const {
  return static_cast<OdDb::TextVertMode>(m_text.vertical);
}

void OdDbText::setVerticalMode(OdDb::TextVertMode mode) {
  assertWriteEnabled();
  m_text.vertical = mode;
}

bool OdDbText::isDefaultAlignment() const {
  return m_text.horizontal == OdDb::kTextLeft && m_text.vertical == OdDb::kTextBase;
}

bool OdDbText::isMirroredInX() const { return m_text.generation & kBackwards; }
bool OdDbText::isMirroredInY() const { return m_text.generation & kUpsideDown; }

void OdDbText::mirrorInX(bool mirror) {
  assertWriteEnabled();
  m_text.generation = mirror ? m_text.generation | kBackwards : m_text.generation & ~kBackwards;
}

void OdDbText::mirrorInY(bool mirror) {
  assertWriteEnabled();
  m_text.generation = mirror ? m_text.generation | kUpsideDown : m_text.generation & ~kUpsideDown;
}

void OdDbText::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_text.extrusion.setThickness(thickness);
}

void OdDbText::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  const OdGePoint3d place = position();
  const OdGePoint3d fastened = alignmentPoint();
  m_text.extrusion.setNormal(n);
  setPosition(place);
  setAlignmentPoint(fastened);
}

bool OdDbText::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_text.extrusion.normal());
  if (!plane.valid) return false;
  Data moved = m_text;
  moved.position = plane.inPlane * m_text.position;
  // Texts that begin at their position have no other place, and need none.
  const bool isAligned = m_text.horizontal != OdDb::kTextLeft || m_text.vertical != OdDb::kTextBase;
  if (isAligned || m_text.alignment != OdGePoint3d())
    moved.alignment = plane.inPlane * m_text.alignment;
  moved.height *= plane.scale();
  moved.rotation = plane.angle(m_text.rotation);
  if (plane.mirrors) {
    // Mirrored letters run backwards along a base line that points the other way.
    moved.rotation = odgeNormalAngle(moved.rotation + kOdaPi);
    moved.generation ^= kBackwards;
  }
  moved.extrusion.setThickness(moved.extrusion.thickness() * plane.rise);
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::areFinite(moved.position, moved.alignment, moved.height, moved.rotation,
                          moved.extrusion.thickness()) ||
      moved.height <= 0)
    return false;
  assertWriteEnabled();
  m_text = std::move(moved);
  return true;
}
