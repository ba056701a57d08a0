// A module that notes in a file what its loader does with it. Built once for each kind, see
// CMakeLists.txt.
#include "frame/error.h"
#include "frame/module_object.h"

#include <QFile>

namespace {

void note(const char* what) {
  QFile file(qEnvironmentVariable("LOADED_MODULE_LOG"));
  if (file.open(QIODevice::Append)) file.write(what);
}

class LoadedModule : public OdRxModule {
 public:
  explicit LoadedModule(OdModuleHandle handle)
    : OdRxModule(handle) {}
  OdString moduleName() const override { return QStringLiteral("loader_module"); }
  void initApp() override {
    note("init ");
#ifdef MODULE_FAILING
    throw OdError(eInvalidInput, QStringLiteral("it does not want to"));
#endif
  }
  void uninitApp() override {
    note("uninit ");
#ifdef MODULE_STUBBORN
    throw OdError(eInvalidInput, QStringLiteral("it does not want to stop"));
#endif
  }
};

} // namespace

#ifdef MODULE_FOREIGN
extern "C" __attribute__((visibility("default"))) void somethingElse() { note("called"); }
#else
extern "C" __attribute__((visibility("default"))) void odrxCreateModuleObject(OdModuleHandle handle,
                                                                              OdRxModule** module) {
#ifdef MODULE_HOLLOW
  *module = nullptr;
  Q_UNUSED(handle)
#else
  static OdRxModule* const only = new LoadedModule(handle);
  *module = only;
#endif
}

extern "C" __attribute__((visibility("default"))) void
odrxGetAPIVersion(unsigned* major, unsigned* majorMinor, unsigned* minor, unsigned* buildMinor) {
  *major = 4;
  *majorMinor = 3;
#ifdef MODULE_OUTDATED
  *minor = 0;
#else
  *minor = 1;
#endif
  *buildMinor = 0;
}
#endif
