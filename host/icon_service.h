// The host's icons.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

class QImage;

/// Gives the host's own icons by name.
class IHostIconService : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostIconService";

  /// The icon of that name in `pixels` by `pixels`; a null image if there is none.
  virtual QImage icon(const OdString& name, int pixels) = 0;

 protected:
  ~IHostIconService() = default;
};
