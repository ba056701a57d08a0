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

void CompletionRegistry::ask(const HostEdCompletion::Callback& callback) const {
  for (const Source& s : m_sources)
    s.provider([&](std::shared_ptr<HostEdCompletion::Entry> entry) {
      if (entry) callback(std::move(entry));
    });
}

bool CompletionRegistry::runOffer(const OdString& source, const OdString& displayText) const {
  std::shared_ptr<HostEdCompletion::Entry> found;
  for (const Source& s : m_sources)
    if (s.name == source)
      s.provider([&](std::shared_ptr<HostEdCompletion::Entry> entry) {
        if (!found && entry && entry->action && entry->displayText == displayText)
          found = std::move(entry);
      });
  if (found) found->action->run();
  return found != nullptr;
}

void CompletionRegistry::drop(int owner) {
  std::erase_if(m_sources, [owner](const Source& s) { return s.owner == owner; });
}

} // namespace drafton
