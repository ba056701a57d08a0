// Carries tools from one place to another.
#pragma once

#include "frame/array.h"
#include "module/persist_impl.h"

namespace tc {

/// A transient carrier: it is stored in no file and does nothing of its own.
class OdTcToolBuffer : public OdTcPersistImpl<OdTcPersist> {
 public:
  OdArray<OdRxObjectPtr> items;

  /// The buffer of the module; null before its start and after its stop.
  static OdTcToolBuffer* instance();
  static void setInstance(const OdSmartPtr<OdTcToolBuffer>& buffer);
};
using OdTcToolBufferPtr = OdSmartPtr<OdTcToolBuffer>;

} // namespace tc
