#include "drafton/engine/completion_registry.h"

#include <algorithm>

namespace drafton {

void CompletionRegistry::registerSource(const OdString& name, HostEdCompletion::Provider provider) {
  const auto at = std::find_if(m_sources.begin(), m_sources.end(),
                               [&](const Source& s) { return s.name == name; });
  if (!provider) {
    if (at != m_sources.end()) m_sources.erase(at);
  } else if (at != m_sources.end()) {
    at->provider = std::move(provider);
    at->owner = m_owners.current();
  } else {
    m_sources.push_back({name, std::move(provider), m_owners.current()});
  }
}

QStringList CompletionRegistry::sourceNames() const {
  QStringList names;
  for (const Source& s : m_sources) names << s.name;
  return names;
}

std::vector<std::shared_ptr<HostEdCompletion::Entry>>
CompletionRegistry::offers(const OdString& source) const {
  std::vector<std::shared_ptr<HostEdCompletion::Entry>> result;
  for (const Source& s : m_sources)
    if (s.name == source)
      s.provider([&](std::shared_ptr<HostEdCompletion::Entry> entry) {
        if (entry) result.push_back(std::move(entry));
      });
  return result;
}

bool CompletionRegistry::runOffer(const OdString& source, const OdString& displayText) const {
  for (const auto& entry : offers(source))
    if (entry->displayText == displayText && entry->action) {
      entry->action->run();
      return true;
    }
  return false;
}

void CompletionRegistry::drop(int owner) {
  std::erase_if(m_sources, [owner](const Source& s) { return s.owner == owner; });
}

} // namespace drafton
