// The name, description, times and images that every catalog item shows.
#pragma once

#include "module/persist.h"

namespace tc {

class OdTcImageList;

/// The shared record of an item. It stands this low because every item has one; what it does is
/// told in properties/properties_impl.h.
class OdTcProperties : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcProperties);

 public:
  /// The item name or, if that is empty, the resource.
  virtual OdString getName() const = 0;
  virtual void setName(const OdString& name) = 0;
  virtual void setDescription(const OdString& description) = 0;
  virtual OdString getDescription() const = 0;
  /// Forgets the fields `resource` and `src`.
  virtual void clearResource() = 0;

  /// UTC time stamps as text; empty if unknown.
  virtual OdString created() const = 0;
  virtual OdString modified() const = 0;
  /// A resource reference that stands instead of the name, and its source file.
  virtual OdString resource() const = 0;
  virtual OdString src() const = 0;
  virtual void setResource(const OdString& resource, const OdString& src) = 0;

  /// May be null.
  virtual OdTcImageList* images() const = 0;
  virtual void setImages(OdTcImageList* images) = 0;

  /// The field of that element or attribute name as a value; void for an unknown name.
  virtual OdVariant propertyValue(const OdString& name) const = 0;
  /// Sets a field by its name; false for an unknown name.
  virtual bool setPropertyValue(const OdString& name, const OdVariant& value) = 0;
};
using OdTcPropertiesPtr = OdSmartPtr<OdTcProperties>;

} // namespace tc
