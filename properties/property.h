// Properties of tools.
#pragma once

#include "module/persist.h"

class OdDbDatabase;
class OdDbObject;

namespace tc {

class OdTcPropertyBasicInfo;
class OdTcPropertyCreateInfo;

/// A named value of a tool.
class OdTcProperty : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcProperty);

 public:
  /// The label, by which a bag finds the property.
  virtual OdString getDisplayName() const = 0;

  /// Keeps the drawing's current value, and imposes the tool's unless it is unspecified.
  virtual void applyToDatabase(OdDbDatabase* database) = 0;
  /// Puts the kept value back.
  virtual void restoreToDatabase(OdDbDatabase* database) = 0;
  /// Takes the value from a drawing object; false if the object has none.
  virtual bool captureFromObject(const OdDbObject* object) = 0;

  /// Null if the property has none.
  virtual OdTcPropertyBasicInfo* getBasicInfo() const = 0;
  virtual OdTcPropertyCreateInfo* getCreateInfo() const = 0;

  /// For the editor: the value that is shown, and the edited one.
  virtual OdVariant getValue() const = 0;
  virtual void setValue(const OdVariant& value) = 0;

  /// False hides the property or keeps it from being edited.
  virtual bool isVisible() const = 0;
  virtual bool isEnabled() const = 0;
};
using OdTcPropertyPtr = OdSmartPtr<OdTcProperty>;

/// A general property: it drives one of the drawing's current values while a tool runs.
class OdTcDatabaseProperty : public OdTcProperty {
  ODRX_DECLARE_MEMBERS(OdTcDatabaseProperty);

 public:
  /// The editor offers "-- use current".
  virtual bool offersCurrent() const = 0;
  virtual void setOffersCurrent(bool offers) = 0;
  /// A frozen property neither keeps nor imposes a value.
  virtual bool isFrozen() const = 0;
  virtual void setFrozen(bool frozen) = 0;
};
using OdTcDatabasePropertyPtr = OdSmartPtr<OdTcDatabaseProperty>;

} // namespace tc
