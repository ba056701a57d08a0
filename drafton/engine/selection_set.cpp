#include "drafton/engine/selection_set.h"

#include <algorithm>
#include <unordered_set>

namespace drafton {

void SelectionSet::add(const Selection& found) {
  m_history.push_back(m_chosen);
  const std::unordered_set<OdDbObjectId> now(m_chosen.begin(), m_chosen.end());
  std::copy_if(found.begin(), found.end(), std::back_inserter(m_chosen),
               [&](const OdDbObjectId& id) { return !now.contains(id); });
}

void SelectionSet::remove(const Selection& found) {
  m_history.push_back(m_chosen);
  const std::unordered_set<OdDbObjectId> doomed(found.begin(), found.end());
  std::erase_if(m_chosen, [&](const OdDbObjectId& id) { return doomed.contains(id); });
}

bool SelectionSet::undo() {
  if (m_history.empty()) return false;
  m_chosen = std::move(m_history.back());
  m_history.pop_back();
  return true;
}

} // namespace drafton
