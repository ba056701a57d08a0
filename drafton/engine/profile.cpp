#include "drafton/engine/profile.h"

namespace drafton {

KVPtr<IProfile> Profile::openSection(const OdString& name, bool create) {
  const SettingsStore::Section below = m_section + QStringList(name);
  if (!m_store->hasSection(below)) {
    if (!create) return nullptr;
    m_store->makeSection(below);
  }
  return kvMake<Profile>(m_store, below);
}

bool Profile::get(const OdString& key, OdVariant& out) { return m_store->get(m_section, key, out); }

void Profile::set(const OdString& key, const OdVariant& value) {
  m_store->set(m_section, key, value);
}

bool Profile::deleteValue(const OdString& key) { return m_store->remove(m_section, key); }

QStringList Profile::keys() { return m_store->keys(m_section); }

} // namespace drafton
