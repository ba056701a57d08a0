#include "persistence/value_storage.h"

#include "host/host_locator.h"

namespace tc {
namespace {

// Not an object at namespace scope: the storage must not outlive what its end needs.
OdSmartPtr<OdTcValueStorageImpl>& holder() {
  static OdSmartPtr<OdTcValueStorageImpl> storage;
  return storage;
}

OdString setting(const OdString& name) {
  OdString value;
  IHostApplication* const application = host::application();
  return application && application->setting(name, value) ? value : OdString();
}

} // namespace

OdString OdTcValueStorageImpl::toolPaletteFolders() const {
  return setting(QStringLiteral("ToolPaletteDir"));
}

OdString OdTcValueStorageImpl::fontFolders() const { return setting(QStringLiteral("Shx")); }

OdTcValueStorageImpl* OdTcValueStorageImpl::instance() { return holder(); }

void OdTcValueStorageImpl::setInstance(const OdSmartPtr<OdTcValueStorageImpl>& storage) {
  holder() = storage;
}

} // namespace tc
