// The host's hatch settings store.
#pragma once

#include "frame/variant.h"
#include "host/unknown.h"

/// Values of the hatch commands that are no variables: "hatch_type" (integer) and
/// "hatch_pattern_file" (text).
class IHostHatchSettings : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostHatchSettings";

  virtual bool get(const OdString& key, OdVariant& out) = 0;
  virtual void set(const OdString& key, const OdVariant& value) = 0;

 protected:
  ~IHostHatchSettings() = default;
};
