// Checked conversion of a value that carries a stored object.
#pragma once

#include "frame/variant.h"
#include "module/persist.h"

#include <typeinfo>

namespace tc {

/// The object of `value` as T, also for classes without a class description of their own. Raises
/// OdError_NotThatKindOfClass if the value is no object or one of another class.
template <class T>
OdSmartPtr<T> persistCast(const OdVariant& value) {
  OdRxObject* const object = value.object();
  if (auto* found = dynamic_cast<T*>(object)) return OdSmartPtr<T>(found);
  const auto* persist = dynamic_cast<const OdTcPersist*>(object);
  throw OdError_NotThatKindOfClass(persist  ? persist->elementName()
                                   : object ? QString::fromLatin1(typeid(*object).name())
                                            : QStringLiteral("(value)"),
                                   QString::fromLatin1(typeid(T).name()));
}

} // namespace tc
