#include "drawing/tables/linetype_table.h"

#include "drawing/checks.h"

OdDbLinetypeTableRecord::OdDbLinetypeTableRecord() = default;

void OdDbLinetypeTableRecord::assignFrom(const OdDbObject& other) {
  OdDbSymbolTableRecord::assignFrom(other);
  m_linetype = static_cast<const OdDbLinetypeTableRecord&>(other).m_linetype;
}

const OdDbLinetypeTableRecord::Dash& OdDbLinetypeTableRecord::dash(int index) const {
  if (index < 0 || index >= numDashes()) throw OdError_InvalidIndex(index, numDashes());
  return m_linetype.dashes[static_cast<std::size_t>(index)];
}

OdDbLinetypeTableRecord::Dash& OdDbLinetypeTableRecord::editDash(int index) {
  dash(index);
  assertWriteEnabled();
  return m_linetype.dashes[static_cast<std::size_t>(index)];
}

void OdDbLinetypeTableRecord::setComments(const OdString& text) {
  assertWriteEnabled();
  m_linetype.comments = text;
}

void OdDbLinetypeTableRecord::setPatternLength(double length) {
  odcheck::finite(length);
  assertWriteEnabled();
  m_linetype.patternLength = length;
}

void OdDbLinetypeTableRecord::setNumDashes(int count) {
  if (count < 0) throw OdError_InvalidIndex(count, numDashes());
  assertWriteEnabled();
  m_linetype.dashes.resize(static_cast<std::size_t>(count));
}

void OdDbLinetypeTableRecord::setDashLengthAt(int index, double length) {
  odcheck::finite(length);
  editDash(index).length = length;
}

void OdDbLinetypeTableRecord::setShapeStyleAt(int index, OdDbObjectId style) {
  editDash(index).style = style;
}

void OdDbLinetypeTableRecord::setShapeScaleAt(int index, double scale) {
  odcheck::finite(scale);
  editDash(index).scale = scale;
}

void OdDbLinetypeTableRecord::setShapeRotationAt(int index, double angle) {
  odcheck::finite(angle);
  editDash(index).rotation = angle;
}

void OdDbLinetypeTableRecord::setShapeOffsetAt(int index, const OdGePoint2d& offset) {
  odcheck::finite(offset);
  editDash(index).offset = offset;
}

void OdDbLinetypeTableRecord::setShapeIsUcsOrientedAt(int index, bool oriented) {
  editDash(index).ucsOriented = oriented;
}

void OdDbLinetypeTableRecord::setShapeIsUprightAt(int index, bool upright) {
  editDash(index).isUpright = upright;
}

void OdDbLinetypeTableRecord::setShapeNumberAt(int index, std::uint16_t number) {
  editDash(index).shapeNumber = number;
}

void OdDbLinetypeTableRecord::setTextAt(int index, const OdString& text) {
  editDash(index).text = text;
}
