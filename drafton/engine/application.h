// The application object: settings by name, folders, and who hears of changed settings.
#pragma once

#include "drafton/engine/owner_scope.h"
#include "drafton/engine/settings_store.h"
#include "host/application.h"

#include <vector>

namespace drafton {

/// A setting's name is its path in the settings ("ToolPaletteDir", "CommandLine/completetools",
/// separated by `/` or `\`).
class Application : public IHostApplication {
 public:
  /// `userDataFolder` is a stored path, the place for the user's data unless the setting
  /// "UserDataFolder" names another.
  Application(std::shared_ptr<SettingsStore> settings, const OwnerScope& owners,
              OdString userDataFolder);
  ~Application();

  /// A value set for this run, else that of the settings, else a preset: "ToolPaletteDir" is the
  /// folder of the default catalog.
  bool setting(const OdString& name, OdString& out) override;
  OdString userDataFolder() override;
  KVPtr<IProfile> profile() override;
  void addPropReactor(const OdString& setting, IPropReactor* reactor) override;
  void removePropReactor(const OdString& setting, IPropReactor* reactor) override;

  /// Changes a setting and keeps it. A value for this run ends.
  void setSetting(const OdString& name, const OdVariant& value);
  /// A value that counts for this run only.
  void overrideSetting(const OdString& name, const OdString& value);
  /// Removes the reactors of one owner.
  void drop(int owner);

 private:
  struct Subscription {
    OdString setting;
    KVPtr<IPropReactor> reactor;
    int owner;
  };
  void tell(const OdString& name);

  std::shared_ptr<SettingsStore> m_settings;
  const OwnerScope& m_owners;
  OdString m_userDataFolder;
  std::map<OdString, OdString> m_overrides;
  std::vector<Subscription> m_subscriptions;
};

} // namespace drafton
