// Tells reactors what happens in the editor.
#pragma once

#include "drafton/engine/owner_scope.h"
#include "host/editor_reactor.h"

#include <functional>
#include <vector>

namespace drafton {

/// The list of reactors. A reactor may remove itself or others, and add new ones, while it is
/// called: one that is removed is not called any more, one that is added hears the next event.
class EditorEvents : public IHostEditorEvents {
 public:
  explicit EditorEvents(const OwnerScope& owners)
    : m_owners(owners) {}

  void addReactor(HostEditorReactor* reactor) override;
  void removeReactor(HostEditorReactor* reactor) override;

  /// Calls `event` for each reactor, in order.
  void fire(const std::function<void(HostEditorReactor&)>& event);

  /// Removes all reactors that were added while `owner` was registering.
  void drop(int owner);

 private:
  struct Listed {
    HostEditorReactor* reactor; // null: removed during an event
    int owner;
  };
  void remove(const std::function<bool(const Listed&)>& doomed);

  const OwnerScope& m_owners;
  std::vector<Listed> m_reactors;
  int m_firing = 0;
};

} // namespace drafton
