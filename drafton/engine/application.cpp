#include "drafton/engine/application.h"

#include "drafton/engine/profile.h"
#include "frame/file_path.h"

#include <algorithm>

namespace drafton {
namespace {

QStringList pathOf(const OdString& name) {
  OdString path = name;
  return path.replace(u'\\', u'/').split(u'/');
}

} // namespace

Application::Application(std::shared_ptr<SettingsStore> settings, const OwnerScope& owners,
                         OdString userDataFolder)
  : m_settings(std::move(settings))
  , m_owners(owners)
  , m_userDataFolder(std::move(userDataFolder)) {
  m_settings->setListener([this](const OdString& name) { tell(name); });
}

Application::~Application() { m_settings->setListener({}); }

bool Application::setting(const OdString& name, OdString& out) {
  QStringList path = pathOf(name);
  if (const auto at = m_overrides.find(path.join(u'/')); at != m_overrides.end()) {
    out = at->second;
    return true;
  }
  const OdString key = path.takeLast();
  if (OdVariant value; m_settings->get(path, key, value)) {
    out = value.toString();
    return true;
  }
  if (name != QLatin1String("ToolPaletteDir")) return false;
  out = userDataFolder() + QStringLiteral("\\ToolPalette");
  return true;
}

OdString Application::userDataFolder() {
  OdVariant named;
  if (!m_settings->get({}, QStringLiteral("UserDataFolder"), named)) return m_userDataFolder;
  OdString folder = odpath::fromPlatform(named.toString());
  while (folder.size() > 1 && folder.endsWith(u'\\')) folder.chop(1);
  return folder.isEmpty() ? m_userDataFolder : folder;
}

KVPtr<IProfile> Application::profile() { return kvMake<Profile>(m_settings, QStringList()); }

void Application::addPropReactor(const OdString& setting, IPropReactor* reactor) {
  if (reactor) m_subscriptions.push_back({setting, reactor, m_owners.current()});
}

void Application::removePropReactor(const OdString& setting, IPropReactor* reactor) {
  const auto at =
      std::find_if(m_subscriptions.begin(), m_subscriptions.end(), [&](const Subscription& s) {
        return s.setting == setting && s.reactor.get() == reactor;
      });
  if (at != m_subscriptions.end()) m_subscriptions.erase(at);
}

void Application::drop(int owner) {
  std::erase_if(m_subscriptions, [owner](const Subscription& s) { return s.owner == owner; });
}

void Application::setSetting(const OdString& name, const OdVariant& value) {
  QStringList path = pathOf(name);
  const OdString whole = path.join(u'/');
  const bool ended = m_overrides.erase(whole) > 0;
  const OdString key = path.takeLast();
  OdVariant former;
  const bool isSame = m_settings->get(path, key, former) && former == value;
  m_settings->set(path, key, value);
  // The settings tell a changed value themselves; this one changes back to what they hold.
  if (ended && isSame) tell(whole);
}

void Application::overrideSetting(const OdString& name, const OdString& value) {
  const OdString whole = pathOf(name).join(u'/');
  m_overrides[whole] = value;
  tell(whole);
}

void Application::tell(const OdString& name) {
  // Reactors may come and go while they are called; each hears it if it is still subscribed.
  const std::vector<Subscription> subscribed = m_subscriptions;
  for (const Subscription& s : subscribed) {
    const bool isThere =
        std::any_of(m_subscriptions.begin(), m_subscriptions.end(), [&](const Subscription& now) {
          return now.setting == s.setting && now.reactor.get() == s.reactor.get();
        });
    if (isThere && pathOf(s.setting).join(u'/') == name) s.reactor->onPropertyChanged(name);
  }
}

} // namespace drafton
