#include "catalog/palette_loader_impl.h"

#include "catalog/catalog.h"
#include "catalog/tool_palette_impl.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "module/owner_link.h"
#include "persistence/path_macros.h"
#include "persistence/path_operations.h"

namespace tc {

OdString resolvedHref(const OdString& href, const OdString& baseFolder) {
  const HeldPathMacros heldMacros(baseFolder + u'\\');
  OdString path = odpath::fromPlatform(expandedStoredPath(href));
  if (path.isEmpty()) return {};
  if (isRelativePath(path) && !baseFolder.isEmpty()) return combinePath(path, baseFolder + u'\\');
  normalizePath(path);
  return path;
}

OdSmartPtr<OdTcToolPalette> OdTcPaletteLoaderImpl::loadPalette(const OdString& baseFolder) {
  const OdString path = resolvedHref(m_href, baseFolder);
  OdRxSystemServices* const services = odrxSystemServices();
  if (!services->fileExists(path) && !services->folderExists(path)) return {};
  const auto palette = odrxMake<OdTcToolPaletteImpl>();
  const bool isRead = palette->load(path);
  if (!palette->hasStoredId())
    palette->setId(id());
  else if (palette->id() != id())
    setId(palette->id());
  if (!isRead) {
    palette->properties()->setName(name());
    palette->properties()->setDescription(description());
  }
  return palette;
}

OdSmartPtr<OdTcToolPalette> OdTcPaletteLoaderImpl::loadPaletteFromCatalog() {
  const OdTcCatalog* const root = catalog();
  if (!root) return {};
  return loadPalette(odpath::folderOf(root->path()));
}

void OdTcPaletteLoaderImpl::writeFields(OdTcFiler* filer) {
  OdTcCatalogItemImplBase::writeFields(filer);
  filer->writeElementAttribute(QStringLiteral("Url"), QStringLiteral("href"), m_href);
}

bool OdTcPaletteLoaderImpl::readField(const OdString& name, const OdVariant& value) {
  if (OdTcCatalogItemImplBase::readField(name, value)) return true;
  if (name != QLatin1String("href")) return false;
  m_href = value.toString();
  return true;
}

OdTcCatalogItemPtr OdTcPaletteLoaderImpl::clone(bool) const {
  const auto copy = odrxMake<OdTcPaletteLoaderImpl>();
  copyItemTo(*copy);
  copy->m_href = m_href;
  return copy;
}

OdTcPaletteLoaderListImpl::~OdTcPaletteLoaderListImpl() {
  for (const OdTcPaletteLoaderPtr& loader : itemVector()) forgetOwner(loader, owner());
}

bool OdTcPaletteLoaderListImpl::acceptsElement(const OdString& element) const {
  return element == QLatin1String("Palette");
}

} // namespace tc
