#include "catalog/group_impl.h"

#include "catalog/catalog.h"
#include "catalog/group_lists_impl.h"
#include "catalog/group_tree.h"
#include "catalog/palette_soft_ref_impl.h"
#include "catalog/tool_palette.h"
#include "host/host_locator.h"
#include "module/owner_link.h"

namespace tc {

OdTcGroupImpl::OdTcGroupImpl()
  : m_contents(odrxMake<OdTcGroupContentListImpl>()) {
  m_contents->setOwnerQuiet(this);
}

OdTcGroupImpl::~OdTcGroupImpl() {
  for (int i = 0; i < m_contents->count(); ++i) forgetOwner(m_contents->at(i), this);
  forgetOwner(m_contents, this);
}

bool OdTcGroupImpl::takesGroup(const OdTcGroup* group) const {
  if (!group) return false;
  // A group inside itself would have no end.
  for (const OdTcPersist* above = this; above; above = above->owner())
    if (above == group) return false;
  if (groupDepth(this) + groupHeight(group) <= kMaxGroupDepth) return true;
  host::print(host::translate(QStringLiteral("\nGroups cannot be nested any deeper.")));
  return false;
}

bool OdTcGroupImpl::addItem(OdTcCatalogItem* item) {
  if (auto* const palette = odrxCast<OdTcToolPalette>(item)) {
    const auto reference = odrxMake<OdTcPaletteSoftRefImpl>();
    reference->setId(palette->id());
    palette->setReferenced(true);
    m_contents->add(reference);
    return true;
  }
  if (!odrxCast<OdTcPaletteSoftRef>(item) && !takesGroup(odrxCast<OdTcGroup>(item))) return false;
  m_contents->add(item);
  markReferenced(catalog(), idsReferencedBy(item));
  notifyAdded(item);
  return true;
}

bool OdTcGroupImpl::removeItem(const OdString& id) {
  const OdTcCatalogItemPtr item = m_contents->find(id);
  if (!item) return false;
  notifyRemoved(item);
  // A reactor may have taken it away already, and another item may have the same id.
  if (m_contents->find(id) != item.get() || !m_contents->remove(id)) return false;
  orderListObject()->removeFirst(id);
  updateReferenced(catalog(), item);
  return true;
}

void OdTcGroupImpl::writeFields(OdTcFiler* filer) {
  OdTcCatalogItemImplBase::writeFields(filer);
  filer->writeElement(QStringLiteral("ActivePaletteIndex"), m_activePaletteIndex);
  filer->writeObject(m_contents);
  filer->writeObject(orderListObject());
}

bool OdTcGroupImpl::readField(const OdString& name, const OdVariant& value) {
  if (OdTcCatalogItemImplBase::readField(name, value)) return true;
  if (name == QLatin1String("ActivePaletteIndex"))
    m_activePaletteIndex = value.toInt32();
  else if (name == QLatin1String("Contents"))
    m_contents = value.objectAs<OdTcGroupContentList>();
  else if (name == QLatin1String("CatalogItemOrder"))
    readOrderList(value);
  else
    return false;
  return true;
}

OdTcCatalogItemPtr OdTcGroupImpl::clone(bool) const { return odrxMake<OdTcGroupImpl>(); }

} // namespace tc
