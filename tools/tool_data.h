// What a tool does and the general properties that are in force while it does it.
#pragma once

#include "tools/action_agent.h"

namespace tc {

/// Element `Data`.
class OdTcToolData : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcToolData);

 public:
  /// May be null. Borrowed.
  virtual OdTcToolActionAgent* actionAgent() const = 0;
  virtual void setActionAgent(OdTcToolActionAgent* agent) = 0;
  /// The bag named "General"; may be null. Borrowed.
  virtual OdTcPropertyBag* generalProperties() const = 0;
};
using OdTcToolDataPtr = OdSmartPtr<OdTcToolData>;

} // namespace tc
