// The host services object: what `get_host_funcptr(2)` leads to.
#pragma once

#include "host/unknown.h"

class IHostDocumentManager;
class IHostEditorEvents;

namespace HostEdCompletion {
class Registry;
}

/// The root of the host's services. The three that every run of a tool needs have an accessor; all
/// others are asked for with queryInterface, and each may be missing.
class IHostServices : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostServices";

  /// Null if the host has none. Borrowed: they live as long as the host.
  virtual IHostDocumentManager* documentManager() = 0;
  virtual IHostEditorEvents* editorEvents() = 0;
  virtual HostEdCompletion::Registry* completionRegistry() = 0;

 protected:
  ~IHostServices() = default;
};
