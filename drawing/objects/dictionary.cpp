#include "drawing/objects/dictionary.h"

#include "drawing/database.h"

#include <algorithm>

OdDbDictionary::OdDbDictionary() = default;
OdDbDictionary::OdDbDictionary(bool withDefault)
  : m_withDefault(withDefault) {}

const char* OdDbDictionary::dxfName() const {
  return m_withDefault ? "ACDBDICTIONARYWDFLT" : "DICTIONARY";
}

OdDbObjectPtr OdDbDictionary::newInstance() const { return odrxMake<OdDbDictionary>(); }

void OdDbDictionary::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  const auto& dictionary = static_cast<const OdDbDictionary&>(other);
  m_entries = dictionary.m_entries;
  m_withDefault = dictionary.m_withDefault;
  m_hardOwner = dictionary.m_hardOwner;
  m_cloning = dictionary.m_cloning;
  m_entryCode = dictionary.m_entryCode;
  m_default = dictionary.m_default;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const {
  for (const Entry& entry : m_entries)
    if (entry.name == name && entry.id.isValid()) return entry.id;
  return {};
}

OdString OdDbDictionary::nameAt(OdDbObjectId id) const {
  if (id.isNull()) return {};
  for (const Entry& entry : m_entries)
    if (entry.id == id) return entry.name;
  return {};
}

OdDbObjectId OdDbDictionary::setAt(const OdString& name, OdDbObject* object) {
  if (name.isEmpty())
    throw OdDbError(eInvalidName, QStringLiteral("An entry of a dictionary needs a name"));
  assertWriteEnabled();
  const OdDbObjectId id = database()->addObject(object, objectId());
  setEntry(name, id);
  return id;
}

void OdDbDictionary::setEntry(const OdString& name, OdDbObjectId id) {
  assertWriteEnabled();
  const auto at = std::find_if(m_entries.begin(), m_entries.end(),
                               [&](const Entry& entry) { return entry.name == name; });
  if (at == m_entries.end())
    m_entries.push_back({name, id});
  else
    at->id = id;
}

void OdDbDictionary::setName(OdDbObjectId id, const OdString& name) {
  if (name.isEmpty())
    throw OdDbError(eInvalidName, QStringLiteral("An entry of a dictionary needs a name"));
  const OdDbObjectId other = getAt(name);
  if (!other.isNull() && other != id)
    throw OdDbError(eDuplicateRecordName,
                    QStringLiteral("There is an entry \"%1\" already").arg(name));
  assertWriteEnabled();
  std::erase_if(m_entries, [&](const Entry& e) { return e.name == name && e.id != id; });
  for (Entry& entry : m_entries)
    if (entry.id == id) entry.name = name;
}

bool OdDbDictionary::remove(const OdString& name) {
  if (getAt(name).isNull()) return false;
  assertWriteEnabled();
  std::erase_if(m_entries, [&](const Entry& entry) { return entry.name == name; });
  return true;
}

OdDbDictionaryVar::OdDbDictionaryVar() = default;

void OdDbDictionaryVar::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  const auto& var = static_cast<const OdDbDictionaryVar&>(other);
  m_schema = var.m_schema;
  m_value = var.m_value;
}

void OdDbDictionaryVar::setValue(const OdString& value) {
  assertWriteEnabled();
  m_value = value;
}
