#include "drawing/entities/mtext.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/mtext/parser.h"

namespace {
constexpr int kFill = 1, kFillInGround = 2;
constexpr double kLeastSpacing = 0.25, kMostSpacing = 4;
constexpr double kLeastFill = 1, kMostFill = 5;

void requireRange(double value, double low, double high) {
  odcheck::finite(value);
  if (value < low || value > high)
    throw OdError(eInvalidInput,
                  QStringLiteral("%1 is not between %2 and %3").arg(value).arg(low).arg(high));
}
} // namespace

OdDbMText::OdDbMText() = default;

void OdDbMText::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_mtext = static_cast<const OdDbMText&>(other).m_mtext;
}

void OdDbMText::setDatabaseDefaults(const OdDbDatabase& database) {
  OdDbEntity::setDatabaseDefaults(database);
  setTextStyle(database.currentTextStyle());
  setTextHeight(database.sysVarReal("TEXTSIZE"));
}

void OdDbMText::setContents(const OdString& contents) {
  assertWriteEnabled();
  m_mtext.contents = contents;
}

OdString OdDbMText::plainText() const { return odmtext::plainText(m_mtext.contents); }

void OdDbMText::setLocation(const OdGePoint3d& location) {
  odcheck::finite(location);
  assertWriteEnabled();
  m_mtext.location = location;
}

OdDbMText::AttachmentPoint OdDbMText::attachment() const {
  return static_cast<AttachmentPoint>(std::clamp<int>(m_mtext.attachment, kTopLeft, kBottomRight));
}

void OdDbMText::setAttachment(AttachmentPoint attachment) {
  assertWriteEnabled();
  m_mtext.attachment = attachment;
}

OdDbMText::FlowDirection OdDbMText::flowDirection() const {
  const int flow = m_mtext.flow;
  return flow == kTopToBottom || flow == kByStyle ? static_cast<FlowDirection>(flow) : kLeftToRight;
}

void OdDbMText::setFlowDirection(FlowDirection direction) {
  assertWriteEnabled();
  m_mtext.flow = direction;
}

void OdDbMText::setTextHeight(double height) {
  odcheck::positive(height);
  assertWriteEnabled();
  m_mtext.height = height;
}

void OdDbMText::setWidth(double width) {
  requireRange(width, 0, std::numeric_limits<double>::max());
  assertWriteEnabled();
  m_mtext.width = width;
}

double OdDbMText::rotation() const {
  if (m_mtext.direction.isZeroLength() || (!m_mtext.directionLast && m_mtext.rotation != 0))
    return m_mtext.rotation;
  const OdGeVector3d flat =
      OdGeMatrix3d::planeToWorld(m_mtext.normal).inverse() * m_mtext.direction;
  return std::atan2(flat.y, flat.x);
}

void OdDbMText::setRotation(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_mtext.rotation = angle;
  m_mtext.direction = {};
  m_mtext.directionLast = false;
}

OdGeVector3d OdDbMText::direction() const {
  const double angle = rotation();
  return OdGeMatrix3d::planeToWorld(m_mtext.normal) *
         OdGeVector3d{std::cos(angle), std::sin(angle), 0};
}

void OdDbMText::setDirection(const OdGeVector3d& direction) {
  const OdGeVector3d d = odcheck::direction(direction);
  assertWriteEnabled();
  m_mtext.direction = d;
  m_mtext.directionLast = true;
  m_mtext.rotation = 0;
}

void OdDbMText::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_mtext.normal = n;
}

void OdDbMText::setTextStyle(OdDbObjectId style) {
  assertWriteEnabled();
  m_mtext.style = style;
}

OdDbMText::LineSpacingStyle OdDbMText::lineSpacingStyle() const {
  return m_mtext.spacingStyle == kExactly ? kExactly : kAtLeast;
}

void OdDbMText::setLineSpacingStyle(LineSpacingStyle style) {
  assertWriteEnabled();
  m_mtext.spacingStyle = style;
}

void OdDbMText::setLineSpacingFactor(double factor) {
  requireRange(factor, kLeastSpacing, kMostSpacing);
  assertWriteEnabled();
  m_mtext.spacingFactor = factor;
}

void OdDbMText::setBackgroundFill(bool on) {
  assertWriteEnabled();
  m_mtext.background = on ? m_mtext.background | kFill : m_mtext.background & ~kFill;
}

void OdDbMText::setUseBackgroundColor(bool on) {
  assertWriteEnabled();
  m_mtext.background =
      on ? m_mtext.background | kFillInGround : m_mtext.background & ~kFillInGround;
}

void OdDbMText::setBackgroundFillColor(const OdCmColor& color) {
  assertWriteEnabled();
  m_mtext.fillColor = color;
  m_mtext.hasFillColor = true;
  m_mtext.fillIndex = -1;
}

void OdDbMText::setBackgroundScaleFactor(double factor) {
  requireRange(factor, kLeastFill, kMostFill);
  assertWriteEnabled();
  m_mtext.fillScale = factor;
}

void OdDbMText::setColumns(const OdMTextColumns& columns) {
  for (const double length : {columns.width, columns.gutter, columns.height})
    odcheck::finite(length);
  for (const double height : columns.heights) odcheck::finite(height);
  assertWriteEnabled();
  m_mtext.columns = columns;
  m_mtext.totalWidth = columns.count * columns.width + (columns.count - 1) * columns.gutter;
  m_mtext.totalHeight = columns.height;
  for (const double height : columns.heights)
    m_mtext.totalHeight = std::max(m_mtext.totalHeight, height);
  m_mtext.hasEmbedded = true;
}

bool OdDbMText::transformBy(const OdGeMatrix3d& transform) {
  const OdGeVector3d x = transform * direction();
  OdGeVector3d z = transform * m_mtext.normal;
  const OdGeVector3d y = transform * m_mtext.normal.crossProduct(direction());
  Data moved = m_mtext;
  moved.location = transform * m_mtext.location;
  if (odgeIsShift(transform)) {
    if (!odcheck::isFinite(moved.location)) return false;
    assertWriteEnabled();
    m_mtext.location = moved.location;
    return true;
  }
  if (!odcheck::areFinite(moved.location, x, y, z) || x.isZeroLength() || y.isZeroLength())
    return false;
  // Letters stay readable: a mirrored text lies in the mirrored place and runs on as it did.
  OdGeVector3d normal = x.crossProduct(y);
  if (normal.isZeroLength()) return false;
  if (normal.dotProduct(z) < 0) normal = -normal;
  const OdGeVector3d up = y - x.normal() * x.normal().dotProduct(y);
  const double high = up.length();
  const double wide = x.length();
  moved.normal = odgeSettledNormal(normal.normal(), m_mtext.normal);
  moved.direction = x.normal();
  if (x.crossProduct(y).dotProduct(z) < 0) {
    // Of the two axes, the one that the mirror turns against the reader is turned back.
    const bool flipsX = transform * direction() != direction() && x.dotProduct(direction()) < 0;
    // Not the negative, which has negative zeros.
    if (flipsX) moved.direction = OdGeVector3d() - moved.direction;
    moved.attachment = mirrored(moved.attachment, flipsX);
  }
  moved.directionLast = true;
  moved.rotation = 0;
  moved.height *= high;
  // Below 0 there is none.
  for (double Data::*member : {&Data::width, &Data::extentsWidth, &Data::totalWidth})
    if (moved.*member > 0) moved.*member *= wide;
  for (double Data::*member : {&Data::definedHeight, &Data::extentsHeight, &Data::totalHeight})
    moved.*member *= high;
  moved.columns.width *= wide;
  moved.columns.gutter *= wide;
  moved.columns.height *= high;
  for (double& h : moved.columns.heights) h *= high;
  if (!odcheck::areFinite(moved.height, moved.width) || !(moved.height > 0)) return false;
  assertWriteEnabled();
  m_mtext = std::move(moved);
  return true;
}

int OdDbMText::mirrored(int attachment, bool alongLines) {
  const int index = std::clamp<int>(attachment, kTopLeft, kBottomRight) - 1;
  const int row = index / 3;
  const int column = index % 3;
  return alongLines ? row * 3 + (2 - column) + 1 : (2 - row) * 3 + column + 1;
}
