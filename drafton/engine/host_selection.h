// Choosing entities for modules.
#pragma once

#include "host/selection.h"

namespace drafton {

/// Lets SELECT ask, within the command of the module.
class HostSelection : public CKVUnknownImpl<IHostSelection> {
 public:
  std::vector<OdDbObjectId> choose(IHostDocument& document) override;
};

} // namespace drafton
