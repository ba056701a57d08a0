#include "catalog/catalog_impl.h"

#include "catalog/catalog_save.h"
#include "catalog/database.h"
#include "catalog/group_lists_impl.h"
#include "catalog/group_tree.h"
#include "catalog/palette_loader_impl.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "module/owner_link.h"
#include "persistence/path_operations.h"

#include <algorithm>
#include <iterator>

namespace tc {

OdTcCatalogImpl::OdTcCatalogImpl() { clearContent(); }

OdTcCatalogImpl::~OdTcCatalogImpl() {
  for (OdTcPersist* item : m_registered) forgetOwner(item, this);
  for (const OdTcToolPalettePtr& palette : m_palettes) forgetOwner(palette, this);
  for (int i = 0; i < m_groups->count(); ++i) forgetOwner(m_groups->at(i), this);
  forgetOwner(m_groups, this);
  forgetOwner(m_loaders, this);
}

void OdTcCatalogImpl::clearContent() {
  for (const OdTcToolPalettePtr& palette : m_palettes) forgetOwner(palette, this);
  m_palettes.clear();
  m_paletteIndex.drop();
  m_pending.clear();
  m_loaders = odrxMake<OdTcPaletteLoaderListImpl>();
  m_loaders->setOwnerQuiet(this);
  m_groups = odrxMake<OdTcGroupListImpl>();
  m_groups->setOwnerQuiet(this);
  m_registered.clear();
}

void OdTcCatalogImpl::registerItem(OdTcPersist* item) {
  if (item && item != this) m_registered.emplace_back(item);
}

bool OdTcCatalogImpl::unregister(const OdTcPersist* item) {
  const auto at = std::find_if(m_registered.rbegin(), m_registered.rend(),
                               [&](const OdTcPersistPtr& mine) { return mine.get() == item; });
  if (at == m_registered.rend()) return false;
  m_registered.erase(std::next(at).base());
  return true;
}

void OdTcCatalogImpl::forgetInCatalog(OdTcPersist* object) {
  const auto isKept = [object](const OdTcPersistPtr& mine) {
    const OdTcPersist* above = mine;
    while (above && above != object) above = above->owner();
    return !above;
  };
  const auto from = std::stable_partition(m_registered.begin(), m_registered.end(), isKept);
  // Released only after the vector is in order again: an object's end may lead back here.
  const std::vector<OdTcPersistPtr> forgotten(from, m_registered.end());
  m_registered.erase(from, m_registered.end());
}

OdString OdTcCatalogImpl::palettesFolder() const { return palettesFolderOf(m_path); }

OdTcEnumPtr<OdTcToolPalette> OdTcCatalogImpl::palettesEnum() const {
  complete();
  return palettesSoFar();
}

OdTcEnumPtr<OdTcCatalogItem> OdTcCatalogImpl::children() const {
  complete();
  return odrxMake<OdTcEnumImpl<OdTcCatalogItem, Palettes>>(this, m_palettes);
}

bool OdTcCatalogImpl::isContainer(const OdString& name) const {
  complete();
  return !m_palettes.empty() || m_groups->isContainer(name);
}

OdTcToolPalette* OdTcCatalogImpl::findPalette(const OdString& id) const {
  complete();
  return findSoFar(id);
}

OdTcToolPalette* OdTcCatalogImpl::findPaletteByName(const OdString& name) const {
  complete();
  for (const OdTcToolPalettePtr& palette : m_palettes)
    if (palette->name() == name) return palette;
  return nullptr;
}

OdTcPaletteSoftRef* OdTcCatalogImpl::findInGroups(const OdTcCatalogItem* palette) const {
  if (!palette) return nullptr;
  const OdString id = palette->id();
  return odrxCast<OdTcPaletteSoftRef>(
      findDepthFirst(m_groups, [&](OdTcCatalogItem* item, OdTcList*) {
        return item->isKindOf(OdTcPaletteSoftRef::desc()) && item->id() == id;
      }));
}

bool OdTcCatalogImpl::findItem(const OdString& id) const {
  return findPalette(id) || m_groups->contains(id);
}

void OdTcCatalogImpl::takeIn(OdTcToolPalette* palette) {
  palette->setOwnerInCatalog(this);
  m_palettes.emplace_back(palette);
}

bool OdTcCatalogImpl::save(const OdString& path) { return CatalogSave(*this, path).run(); }

void OdTcCatalogImpl::writeFields(OdTcFiler* filer) {
  complete();
  OdTcCatalogItemImplBase::writeFields(filer);
  filer->writeAttribute(QStringLiteral("FileRevision"), m_fileRevision);
  filer->writeObject(m_loaders);
  filer->writeObject(m_groups);
  filer->writeObject(orderListObject());
}

bool OdTcCatalogImpl::readField(const OdString& name, const OdVariant& value) {
  if (OdTcCatalogItemImplBase::readField(name, value)) return true;
  if (name == QLatin1String("FileRevision"))
    m_fileRevision = value.toString();
  else if (name == QLatin1String("Palettes"))
    m_loaders = value.objectAs<OdTcPaletteLoaderList>();
  else if (name == QLatin1String("Groups"))
    m_groups = value.objectAs<OdTcGroupList>();
  else if (name == QLatin1String("CatalogItemOrder"))
    readOrderList(value);
  else
    return false;
  return true;
}

OdTcCatalogItemPtr OdTcCatalogImpl::clone(bool) const {
  const auto copy = odrxMake<OdTcCatalogImpl>();
  copyItemTo(*copy);
  copy->m_fileRevision = m_fileRevision;
  return copy;
}

} // namespace tc
