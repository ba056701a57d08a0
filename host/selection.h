// Entities that the user points at.
#pragma once

#include "drawing/object_id.h"
#include "host/unknown.h"

#include <vector>

class IHostDocument;

/// Lets a command of a module choose entities as the host's own commands do.
class IHostSelection : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostSelection";

  /// What was chosen before the command, or else what the user chooses now on the document's
  /// command line. Empty if that is nothing, or was cancelled.
  virtual std::vector<OdDbObjectId> choose(IHostDocument& document) = 0;

 protected:
  ~IHostSelection() = default;
};
