// Host variables.
#pragma once

#include "frame/variant.h"

/// The variables of the host and of one document, by name without regard to case. Colours travel as
/// the whole 32-bit value of an OdCmColor in an integer.
class IHostVariables {
 public:
  /// False if there is no such variable; `out` is then unchanged.
  virtual bool get(const OdString& name, OdVariant& out) = 0;
  /// False if there is no such variable or the value is out of its range.
  virtual bool set(const OdString& name, const OdVariant& value) = 0;

 protected:
  ~IHostVariables() = default;
};
