// Parts that an object owns.
#pragma once

#include "module/persist.h"

namespace tc {

/// Takes `part` into `owner`; null is passed on.
template <class T>
OdSmartPtr<T> adoptPart(OdSmartPtr<T> part, OdTcPersist* owner) {
  if (part) part->setOwner(owner);
  return part;
}

/// A deep copy of a part with another owner; null gives null.
template <class T>
OdSmartPtr<T> clonePart(const OdSmartPtr<T>& part, OdTcPersist* owner) {
  if (!part) return nullptr;
  const OdRxObjectPtr copy = part->clone();
  return adoptPart(OdSmartPtr<T>(dynamic_cast<T*>(copy.get())), owner);
}

} // namespace tc
