// Whether and how a general property is set.
#pragma once

#include "module/persist.h"

#include <cstdint>

namespace tc {

/// Element `BasicPropInfo`.
class OdTcPropertyBasicInfo : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcPropertyBasicInfo);

 public:
  /// True if the tool leaves the drawing's current value alone.
  virtual bool isUnspecified() const = 0;
  virtual void setUnspecified(bool unspecified) = 0;
  /// The kind of `value`, as its maker gave it; written only if it was set or read.
  virtual std::int32_t valueType() const = 0;
  virtual void setValueType(std::int32_t type) = 0;
  virtual bool hasValueType() const = 0;
  /// The value in plain form.
  virtual OdVariant value() const = 0;
  virtual void setValue(const OdVariant& value) = 0;
};
using OdTcPropertyBasicInfoPtr = OdSmartPtr<OdTcPropertyBasicInfo>;

} // namespace tc
