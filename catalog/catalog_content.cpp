// What comes into a catalog and leaves it.
#include "catalog/catalog_impl.h"

#include "catalog/database.h"
#include "catalog/group_tree.h"
#include "catalog/inside_folder.h"
#include "catalog/owner_link.h"
#include "catalog/palette_loader_impl.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "module/string_table.h"

namespace tc {
namespace {

void printKept(const char16_t* text, const OdString& file) {
  host::print(formatText(host::translate(OdString::fromUtf16(text)), file));
}

} // namespace

OdString OdTcCatalogImpl::pathFor(const OdTcToolPalette& palette) const {
  const auto* const loader = static_cast<OdTcPaletteLoader*>(m_loaders->find(palette.id()));
  if (loader) return resolvedHref(loader->getHref(), odpath::folderOf(m_path));
  return palettesFolder() + u'\\' +
         formatText(QStringLiteral("%s_%s"), palette.displayName(), palette.id()) +
         QLatin1String(".dtc");
}

void OdTcCatalogImpl::addPalette(OdTcToolPalette* palette) {
  // A catalog that is nowhere yet has no folder for palettes; its first save gives them their
  // place.
  if (!m_path.isEmpty()) palette->getDatabase()->setPath(pathFor(*palette));
  takeIn(palette);
}

bool OdTcCatalogImpl::addItem(OdTcCatalogItem* item) {
  if (auto* const palette = odrxCast<OdTcToolPalette>(item)) {
    if (findPalette(palette->id()) == palette) return false;
    addPalette(palette);
  } else if (auto* const group = odrxCast<OdTcGroup>(item)) {
    if (m_groups->find(group->id()) == group) return false;
    m_groups->add(group);
  } else {
    return false;
  }
  notifyAdded(item);
  return true;
}

bool OdTcCatalogImpl::removeItem(const OdString& id) {
  const qsizetype position = m_paletteIndex.find(m_palettes, id);
  if (position >= 0) {
    removePalette(position);
    return true;
  }
  const OdTcCatalogItemPtr group = m_groups->find(id);
  if (!group) return false;
  notifyRemoved(group);
  m_groups->remove(id);
  unregister(group);
  orderListObject()->removeFirst(id);
  updateReferenced(this, group);
  return true;
}

void OdTcCatalogImpl::removePalette(qsizetype position) {
  const OdTcToolPalettePtr palette = m_palettes[static_cast<std::size_t>(position)];
  const OdString id = palette->id();
  if (palette->isReferenced()) removeFromSubtree(m_groups, id);
  palette->announceRemoval();
  const OdTcEnumPtr<OdTcTool> tools = palette->enumTools();
  while (OdTcTool* const tool = tools->next()) tool->setDeleted();
  removePaletteFile(*palette);
  if (const OdTcCatalogItemPtr loader = m_loaders->find(id)) {
    m_loaders->remove(id);
    unregister(loader);
  }
  palette->setDeleted();
  notifyRemoved(palette);
  m_palettes.erase(std::find(m_palettes.begin(), m_palettes.end(), palette));
  m_paletteIndex.drop();
  unregister(palette);
  orderListObject()->removeFirst(id);
  forgetOwner(palette, this);
}

void OdTcCatalogImpl::removePaletteFile(const OdTcToolPalette& palette) const {
  const OdString file = palette.getPath();
  OdRxSystemServices* const services = odrxSystemServices();
  if (file.isEmpty() || !services->fileExists(file)) return;
  // A catalog may name any file of the machine as a palette's, its own included.
  if (!isInsideFolder(file, odpath::folderOf(m_path)) || odpath::samePlace(file, m_path)) {
    printKept(u"\nThe file %s does not belong to the catalog alone, and is not deleted.", file);
    return;
  }
  for (const OdTcToolPalettePtr& other : m_palettes)
    if (other.get() != &palette && odpath::samePlace(other->getPath(), file)) {
      printKept(u"\nThe file %s is that of another palette too, and is not deleted.", file);
      return;
    }
  if (!services->removeFile(file)) printKept(u"\nCannot delete the palette file %s.", file);
}

OdTcToolPalette* OdTcCatalogImpl::loadPalette(const OdString& id) {
  if (findItem(id)) return findPalette(id);
  auto* const loader = static_cast<OdTcPaletteLoader*>(m_loaders->find(id));
  if (!loader) return nullptr;
  const OdTcToolPalettePtr palette = loader->loadPaletteFromCatalog();
  if (!palette) return nullptr;
  takeIn(palette);
  palette->setReferenced(isReferencedInSubtree(m_groups, palette->id()));
  return palette;
}

bool OdTcCatalogImpl::unloadPalette(const OdString& id) {
  if (!findItem(id) || m_palettes.empty()) return false;
  const OdTcToolPalettePtr palette = findPalette(id);
  if (!palette || !unregister(palette)) return false;
  m_palettes.erase(std::find(m_palettes.begin(), m_palettes.end(), palette));
  m_paletteIndex.drop();
  forgetOwner(palette, this);
  return true;
}

void OdTcCatalogImpl::removeReferences(const OdString& id) {
  // Through the groups themselves, so that their reactors hear of it.
  std::vector<OdTcCatalogItemPtr> holders;
  findDepthFirst(m_groups, [&](OdTcCatalogItem* item, OdTcList* list) {
    if (item->isKindOf(OdTcPaletteSoftRef::desc()) && item->id() == id)
      holders.emplace_back(static_cast<OdTcCatalogItem*>(list->owner()));
    return false;
  });
  for (const OdTcCatalogItemPtr& holder : holders) holder->removeItem(id);
}

bool OdTcCatalogImpl::moveToGroup(const OdString& id) {
  if (OdTcToolPalette* const palette = findPalette(id)) {
    removeReferences(id);
    palette->setReferenced(false);
    return true;
  }
  if (m_groups->contains(id)) return true;
  const OdTcCatalogItemPtr group = findDepthFirst(m_groups, [&](OdTcCatalogItem* item, OdTcList*) {
    return item->isKindOf(OdTcGroup::desc()) && item->id() == id;
  });
  if (!group) return false;
  auto* const holder = static_cast<OdTcCatalogItem*>(group->owner());
  // With ids that stand twice, another item may be in the way.
  if (static_cast<OdTcList*>(static_cast<OdTcGroup*>(holder)->contents())->find(id) !=
          group.get() ||
      !holder->removeItem(id))
    return false;
  addItem(group);
  markReferenced();
  return true;
}

} // namespace tc
