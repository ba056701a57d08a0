// What a loadable module gives its loader.
#pragma once

#include "frame/rx_object.h"

/// The operating system's handle of a loaded library.
using OdModuleHandle = void*;

/// A loadable module. The loader calls initApp once after loading and uninitApp once before
/// unloading, both on the main thread.
class OdRxModule : public OdRxObject {
 public:
  /// The module's name: the file name without folder and extension.
  virtual OdString moduleName() const = 0;
  OdModuleHandle moduleHandle() const { return m_handle; }

  virtual void initApp() = 0;
  virtual void uninitApp() = 0;

 protected:
  /// The count starts at 0: the library owns the object, loaders borrow it.
  explicit OdRxModule(OdModuleHandle handle)
    : OdRxObject(0)
    , m_handle(handle) {}

 private:
  OdModuleHandle m_handle;
};

extern "C" {
/// Exported by every module as `odrxCreateModuleObject`: makes the module object on the first call
/// and gives the same one afterwards.
using OdRxCreateModuleObject = void (*)(OdModuleHandle handle, OdRxModule** module);
/// Exported by every module as `odrxGetAPIVersion`: the version quadruple that it was built for.
using OdRxGetApiVersion = void (*)(unsigned* major, unsigned* majorMinor, unsigned* minor,
                                   unsigned* buildMinor);
}
