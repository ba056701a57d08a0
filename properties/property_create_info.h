// The concrete value of a general property.
#pragma once

#include "module/persist.h"

namespace tc {

/// Base of the create infos, each of which has an element of its own.
class OdTcPropertyCreateInfo : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcPropertyCreateInfo);
};
using OdTcPropertyCreateInfoPtr = OdSmartPtr<OdTcPropertyCreateInfo>;

} // namespace tc
