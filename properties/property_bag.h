// A set of properties.
#pragma once

#include "module/enum.h"
#include "properties/property.h"

namespace tc {

/// Properties in order of adding; element `GeneralProperties`. Nothing checks for two of one name.
class OdTcPropertyBag : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcPropertyBag);

 public:
  /// Appends the property and takes a reference.
  virtual void add(OdTcProperty* property) = 0;
  virtual OdString getName() const = 0;
  virtual void setName(const OdString& name) = 0;
  virtual OdTcEnumPtr<OdTcProperty> enumProperties() const = 0;
  /// The first property with that display name, or null. Borrowed.
  virtual OdTcProperty* findByName(const OdString& name) const = 0;
  virtual int count() const = 0;
  virtual void clear() = 0;
};
using OdTcPropertyBagPtr = OdSmartPtr<OdTcPropertyBag>;

} // namespace tc
