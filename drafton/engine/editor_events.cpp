#include "drafton/engine/editor_events.h"

#include <algorithm>

namespace drafton {

void EditorEvents::addReactor(HostEditorReactor* reactor) {
  if (reactor) m_reactors.push_back({reactor, m_owners.current()});
}

void EditorEvents::removeReactor(HostEditorReactor* reactor) {
  bool found = false; // one that was added twice is removed once
  remove([&](const Listed& l) {
    const bool hit = !found && l.reactor == reactor;
    found = found || hit;
    return hit;
  });
}

void EditorEvents::drop(int owner) {
  remove([owner](const Listed& l) { return l.owner == owner; });
}

void EditorEvents::remove(const std::function<bool(const Listed&)>& doomed) {
  for (Listed& l : m_reactors)
    if (l.reactor && doomed(l)) l.reactor = nullptr;
  if (m_firing == 0) std::erase_if(m_reactors, [](const Listed& l) { return !l.reactor; });
}

void EditorEvents::fire(const std::function<void(HostEditorReactor&)>& event) {
  ++m_firing;
  // The list only grows while it is walked, and what is new hears the next event.
  const std::size_t count = m_reactors.size();
  for (std::size_t i = 0; i < count; ++i)
    if (HostEditorReactor* const reactor = m_reactors[i].reactor) event(*reactor);
  if (--m_firing == 0) std::erase_if(m_reactors, [](const Listed& l) { return !l.reactor; });
}

} // namespace drafton
