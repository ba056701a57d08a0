// What all kinds of property share.
#pragma once

#include "module/persist_impl.h"
#include "properties/property.h"

namespace tc {

/// A property under the interface T. The label is not kept: it is looked up in the table of the
/// property's kind, since a catalog holds very many properties and shows few.
template <class T>
class OdTcPropertyImplBase : public OdTcPersistImpl<T> {
 public:
  OdString displayName() const override { return this->getDisplayName(); }
  bool isVisible() const override { return true; }
  bool isEnabled() const override { return true; }
};

} // namespace tc
