#include "drawing/objects/layout.h"

#include "drawing/checks.h"
#include "drawing/objects/named_styles.h"

OdDbLayout::OdDbLayout() = default;

void OdDbLayout::assignFrom(const OdDbObject& other) {
  OdDbPlotSettings::assignFrom(other);
  m_layout = static_cast<const OdDbLayout&>(other).m_layout;
}

void OdDbLayout::setLayoutName(const OdString& name) {
  if (name.isEmpty()) throw OdDbError(eInvalidName, QStringLiteral("A layout needs a name"));
  if (database()) {
    const OdDbObjectId found = oddb::findLayout(*database(), name);
    if (!found.isNull() && found != objectId())
      throw OdDbError(eDuplicateRecordName,
                      QStringLiteral("There is a layout \"%1\" already").arg(name));
    const OdDbObjectPtr owner = ownerId().openObject(OdDb::kForWrite);
    if (auto* const dictionary = odrxCast<OdDbDictionary>(owner.get()))
      dictionary->setName(objectId(), name);
  }
  assertWriteEnabled();
  m_layout.name = name;
}

void OdDbLayout::setBlockTableRecordId(OdDbObjectId block) {
  assertWriteEnabled();
  m_layout.block = block;
}

void OdDbLayout::setTabOrder(int order) {
  assertWriteEnabled();
  m_layout.tabOrder = order;
}

void OdDbLayout::getLimits(OdGePoint2d& lower, OdGePoint2d& upper) const {
  lower = m_layout.limitsMin;
  upper = m_layout.limitsMax;
}

void OdDbLayout::setLimits(const OdGePoint2d& lower, const OdGePoint2d& upper) {
  odcheck::finite(lower);
  odcheck::finite(upper);
  assertWriteEnabled();
  m_layout.limitsMin = lower;
  m_layout.limitsMax = upper;
}

void OdDbLayout::getExtents(OdGePoint3d& lower, OdGePoint3d& upper) const {
  lower = m_layout.extentsMin;
  upper = m_layout.extentsMax;
}

void OdDbLayout::setExtents(const OdGePoint3d& lower, const OdGePoint3d& upper) {
  odcheck::finite(lower);
  odcheck::finite(upper);
  assertWriteEnabled();
  m_layout.extentsMin = lower;
  m_layout.extentsMax = upper;
}
