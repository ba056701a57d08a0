// Owner links at an owner's end.
#pragma once

#include "module/persist.h"

namespace tc {

/// Takes `owner`, which is going, off the object: somebody else may hold the object for longer.
inline void forgetOwner(OdTcPersist* object, const OdTcPersist* owner) {
  if (object && object->owner() == owner) object->setOwnerQuiet(nullptr);
}

} // namespace tc
