// Links an element of a line type to the snapshot of its text style.
#pragma once

#include "module/persist.h"

#include <cstdint>

namespace tc {

/// Element `Reference`.
class OdTcPropertyReference : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcPropertyReference);

 public:
  /// A label: the handle that the style had where the line type was taken.
  virtual std::uint64_t handle() const = 0;
  virtual void setHandle(std::uint64_t handle) = 0;
  /// The text style property that holds the snapshot; may be null.
  virtual OdTcPersist* textStyle() const = 0;
  virtual void setTextStyle(OdTcPersist* textStyle) = 0;
};
using OdTcPropertyReferencePtr = OdSmartPtr<OdTcPropertyReference>;

} // namespace tc
