#include "persistence/catalog_filer.h"

#include "host/host_locator.h"

namespace tc {

bool OdTcCatalogFilerImpl::openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool saving) {
  if (saving) return writeRoot(stream, root);
  const bool done = parse(stream) && read(root);
  report();
  return done;
}

bool OdTcCatalogFilerImpl::read(OdTcPersist* root) {
  m_parent = findElement("Catalog");
  if (!m_parent) return failed(host::translate(QStringLiteral("it holds no catalog")));
  // The attributes of the root element are written but not read back.
  m_current = m_parent->FirstChildElement();
  return readRoot(root);
}

OdTcFilerPtr makeCatalogFiler() { return odrxMake<OdTcCatalogFilerImpl>(); }

} // namespace tc
