#include "drawing/objects/raw_object.h"

#include "drawing/dxf/in.h"
#include "drawing/dxf/out.h"

void OdDbRawObject::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_name = static_cast<const OdDbRawObject&>(other).m_name;
}

void OdDbRawEntity::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  const auto& raw = static_cast<const OdDbRawEntity&>(other);
  m_name = raw.m_name;
  m_followers = raw.m_followers;
}

OdRxObjectPtr OdDbRawEntity::clone() const {
  throw OdError(eNotApplicable,
                QStringLiteral("Objects of class %1 cannot be copied").arg(QLatin1String(m_name)));
}

void OdDbRawEntity::dxfOutFollowers(OdDbDxfOut& out) const {
  for (const OdDbObjectId id : m_followers)
    if (const OdDbObjectPtr follower = id.openObject()) out.object(*follower);
}

bool OdDbRawEntity::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  // The end of a block is written with its marker by whoever writes the block.
  return m_name == "ENDBLK" && tag.is(100, "AcDbBlockEnd");
}
