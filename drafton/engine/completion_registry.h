// Sources of offers on the command line.
#pragma once

#include "drafton/engine/owner_scope.h"
#include "host/completion.h"

#include <vector>

namespace drafton {

/// The registered sources, in order of registration.
class CompletionRegistry : public HostEdCompletion::Registry {
 public:
  explicit CompletionRegistry(const OwnerScope& owners)
    : m_owners(owners) {}

  void registerSource(const OdString& name, HostEdCompletion::Provider provider) override;

  /// Calls back once for each offer of every source, with an entry that is never null.
  void ask(const HostEdCompletion::Callback& callback) const;
  /// Runs the first offer of `source` with that display text; false if there is none or it has no
  /// action.
  bool runOffer(const OdString& source, const OdString& displayText) const;
  /// Removes the sources of one owner.
  void drop(int owner);

 private:
  struct Source {
    OdString name;
    HostEdCompletion::Provider provider;
    int owner;
  };
  const OwnerScope& m_owners;
  std::vector<Source> m_sources;
};

} // namespace drafton
