// Names of general properties that a kind of tool hides and does not apply.
#pragma once

#include "module/persist.h"

namespace tc {

/// A list of property names.
class OdTcPropertyFilter : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcPropertyFilter);

 public:
  virtual bool contains(const OdString& name) const = 0;
  virtual void add(const OdString& name) = 0;
};
using OdTcPropertyFilterPtr = OdSmartPtr<OdTcPropertyFilter>;

} // namespace tc
