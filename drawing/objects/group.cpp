#include "drawing/objects/group.h"

#include "drawing/objects/named_styles.h"

OdDbGroup::OdDbGroup() = default;

void OdDbGroup::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  m_group = static_cast<const OdDbGroup&>(other).m_group;
}

OdString OdDbGroup::getName() const { return oddb::nameOf(objectId()); }

void OdDbGroup::setDescription(const OdString& text) {
  assertWriteEnabled();
  m_group.description = text;
}

void OdDbGroup::setSelectable(bool selectable) {
  assertWriteEnabled();
  m_group.selectable = selectable;
}

std::vector<OdDbObjectId> OdDbGroup::allEntityIds() const {
  std::vector<OdDbObjectId> ids;
  for (const OdDbObjectId id : m_group.entities)
    if (id.isValid()) ids.push_back(id);
  return ids;
}

bool OdDbGroup::has(OdDbObjectId entity) const {
  return std::find(m_group.entities.begin(), m_group.entities.end(), entity) !=
         m_group.entities.end();
}

void OdDbGroup::append(OdDbObjectId entity) {
  if (entity.isNull())
    throw OdDbError(eNullObjectId, QStringLiteral("A group takes entities of its drawing"));
  if (has(entity)) return;
  assertWriteEnabled();
  m_group.entities.push_back(entity);
}

void OdDbGroup::remove(OdDbObjectId entity) {
  if (!has(entity)) return;
  assertWriteEnabled();
  std::erase(m_group.entities, entity);
}

void OdDbGroup::clear() {
  assertWriteEnabled();
  m_group.entities.clear();
}
