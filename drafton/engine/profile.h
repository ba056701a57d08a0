// The settings as modules see them.
#pragma once

#include "drafton/engine/settings_store.h"
#include "host/profile.h"

namespace drafton {

/// One section of the settings. It may outlive the engine that gave it.
class Profile : public CKVUnknownImpl<IProfile> {
 public:
  Profile(std::shared_ptr<SettingsStore> store, SettingsStore::Section section)
    : m_store(std::move(store))
    , m_section(std::move(section)) {}

  KVPtr<IProfile> openSection(const OdString& name, bool create) override;
  bool get(const OdString& key, OdVariant& out) override;
  void set(const OdString& key, const OdVariant& value) override;
  bool deleteValue(const OdString& key) override;
  QStringList keys() override;

 private:
  std::shared_ptr<SettingsStore> m_store;
  SettingsStore::Section m_section;
};

} // namespace drafton
