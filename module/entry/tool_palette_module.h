// The module object: brings everything up in order, and takes it down in another.
#pragma once

#include "frame/module_object.h"

namespace tc {

/// Made once by the exported `odrxCreateModuleObject`. The loader calls initApp and uninitApp
/// exactly once each, on the main thread.
class OdTcModule final : public OdRxModule {
 public:
  explicit OdTcModule(OdModuleHandle handle)
    : OdRxModule(handle) {}
  ~OdTcModule() override;

  OdString moduleName() const override;
  /// Registers the classes and the two reactor classes, makes the seven singletons, adds the two
  /// editor reactors to the host, loads the catalogs and registers the completion source. A failure
  /// is an exception, and leaves in place what came before it.
  void initApp() override;
  /// Deletes the classes first, then takes the reactors from the host, releases the singletons and
  /// removes the completion source. Objects that others still hold live on without a class.
  void uninitApp() override;

  /// The one module object, made at the first call.
  static OdTcModule* instance(OdModuleHandle handle);
};

} // namespace tc
