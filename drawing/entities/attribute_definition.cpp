#include "drawing/entities/attribute_definition.h"

#include "drawing/checks.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/attribute.h"

OdDbAttributeText::OdDbAttributeText() = default;
OdDbAttributeDefinition::OdDbAttributeDefinition() = default;
OdDbAttribute::OdDbAttribute() = default;

void OdDbAttributeText::assignFrom(const OdDbObject& other) {
  OdDbText::assignFrom(other);
  const auto& text = static_cast<const OdDbAttributeText&>(other);
  m_attribute = text.m_attribute;
  m_mtext = text.m_mtext;
}
void OdDbAttributeDefinition::assignFrom(const OdDbObject& other) {
  OdDbAttributeText::assignFrom(other);
}
void OdDbAttribute::assignFrom(const OdDbObject& other) { OdDbAttributeText::assignFrom(other); }

void OdDbAttributeText::setTag(const OdString& tag) {
  if (tag.isEmpty() || tag.contains(QLatin1Char(' ')))
    throw OdError(eInvalidInput, QStringLiteral("\"%1\" is no tag of an attribute").arg(tag));
  assertWriteEnabled();
  m_attribute.tag = tag;
}

void OdDbAttributeText::setFieldLength(int length) {
  assertWriteEnabled();
  m_attribute.fieldLength = length;
}

void OdDbAttributeText::setLockPositionInBlock(bool lock) {
  assertWriteEnabled();
  m_attribute.lockPosition = lock;
}

void OdDbAttributeText::setFlag(int bit, bool on) {
  assertWriteEnabled();
  m_attribute.flags = on ? m_attribute.flags | bit : m_attribute.flags & ~bit;
}

OdDbMTextPtr OdDbAttributeText::getMTextAttribute() const {
  return m_mtext ? OdDbMTextPtr(m_mtext->clone()) : OdDbMTextPtr();
}

void OdDbAttributeText::setMTextAttribute(const OdDbMText* text) {
  assertWriteEnabled();
  m_mtext = text ? OdDbMTextPtr(text->clone()) : OdDbMTextPtr();
}

void OdDbAttributeText::setTextString(const OdString& text) {
  OdDbText::setTextString(text);
  if (!m_mtext) return;
  const OdDbMTextPtr changed = m_mtext->clone();
  changed->setContents(text);
  m_mtext = changed;
}

bool OdDbAttributeText::transformBy(const OdGeMatrix3d& transform) {
  const OdDbMTextPtr moved = getMTextAttribute();
  if (moved && !moved->transformBy(transform)) return false;
  if (!OdDbText::transformBy(transform)) return false;
  m_mtext = moved;
  return true;
}

void OdDbAttributeText::worldDraw(OdGiWorldDraw& draw) const {
  if (isInvisible()) return;
  if (m_mtext)
    m_mtext->worldDraw(draw);
  else
    OdDbText::worldDraw(draw);
}

void OdDbAttributeDefinition::setPrompt(const OdString& prompt) {
  assertWriteEnabled();
  m_attribute.prompt = prompt;
}

void OdDbAttributeDefinition::worldDraw(OdGiWorldDraw& draw) const {
  for (const OdGiTextRun& run : runsOf(isConstant() ? textString() : tag())) draw.text(run);
}

bool OdDbAttribute::setAttributeFromBlock(const OdDbAttributeDefinition& definition,
                                          const OdGeMatrix3d& blockToWorld) {
  OdDbObjectPtr moved = definition.clone();
  const bool whole = static_cast<OdDbAttributeText&>(*moved).transformBy(blockToWorld);
  if (!whole)
    if (const OdDbEntityPtr bent = definition.getTransformedCopy(blockToWorld)) moved = bent;
  assertWriteEnabled();
  // The classes differ in no more than what they are called, and in what files keep of them.
  OdDbAttributeText::assignFrom(*moved);
  editResidue() = {};
  m_attribute.prompt.clear();
  return whole;
}
