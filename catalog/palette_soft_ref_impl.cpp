#include "catalog/palette_soft_ref_impl.h"

#include "catalog/catalog.h"
#include "catalog/tool_palette.h"
#include "persistence/filer.h"

namespace tc {

OdString OdTcPaletteSoftRefImpl::name() const {
  const OdTcToolPalette* const palette = resolve();
  return palette ? palette->name() : OdString();
}

OdTcToolPalette* OdTcPaletteSoftRefImpl::resolve() const {
  const OdTcCatalog* const root = catalog();
  return root ? root->findPalette(m_target.get()) : nullptr;
}

void OdTcPaletteSoftRefImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("ID"), m_target.get());
}

bool OdTcPaletteSoftRefImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("ID")) return false;
  m_target.set(value.toString());
  return true;
}

OdTcCatalogItemPtr OdTcPaletteSoftRefImpl::clone(bool) const {
  const auto copy = odrxMake<OdTcPaletteSoftRefImpl>();
  copyItemTo(*copy);
  copy->m_target.set(m_target.get());
  return copy;
}

} // namespace tc
