// What comes into a catalog and leaves it.
#include "catalog/catalog_impl.h"

#include "catalog/database.h"
#include "catalog/group_tree.h"
#include "catalog/inside_folder.h"
#include "catalog/palette_loader_impl.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "module/owner_link.h"
#include "module/string_table.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tc {
namespace {

void printKept(const char16_t* text, const OdString& file) {
  host::print(formatText(host::translate(OdString::fromUtf16(text)), file));
}

/// A text that holds separators would lead out of the folder.
OdString withoutSeparators(OdString text) {
  return text.removeIf([](QChar c) { return c == u'\\' || c == u'/'; });
}

/// The beginning of the text that takes at most so many bytes.
OdString beginning(const OdString& text, qsizetype bytes) {
  QByteArray utf8 = text.toUtf8();
  if (utf8.size() <= bytes) return text;
  const auto isInside = [&](qsizetype at) { return (utf8[at] & 0xC0) == 0x80; };
  qsizetype end = std::max<qsizetype>(bytes, 0);
  while (end > 0 && isInside(end)) --end;
  return OdString::fromUtf8(utf8.left(end));
}

/// The name of a palette's file, as the palette is named. The id as well can come from anybody's
/// file.
OdString fileNameFor(const OdTcToolPalette& palette) {
  // What systems allow, less the ending of the file that a save writes beside it.
  constexpr qsizetype kMostBytes = 255 - std::string_view(".new").size();
  const OdString end = formatText(QStringLiteral("_%s.dtc"), withoutSeparators(palette.id()));
  return beginning(withoutSeparators(palette.displayName()), kMostBytes - end.toUtf8().size()) +
         end;
}

/// The list in which an item of a group stands.
OdTcGroupContentList* contentsAround(const OdTcCatalogItem& item) {
  const auto* const group = odrxCast<OdTcGroup>(item.owner());
  return group ? group->contents() : nullptr;
}

} // namespace

OdString OdTcCatalogImpl::pathFor(const OdTcToolPalette& palette) const {
  if (const OdTcPaletteLoader* const loader = findLoader(palette.id()))
    return resolvedHref(loader->getHref(), odpath::folderOf(m_path));
  return palettesFolder() + u'\\' + fileNameFor(palette);
}

void OdTcCatalogImpl::addPalette(OdTcToolPalette* palette) {
  complete();
  // A catalog that is nowhere yet has no folder for palettes; its first save gives them their
  // place.
  if (!m_path.isEmpty()) palette->getDatabase()->setPath(pathFor(*palette));
  takeIn(palette);
  palette->setReferenced(isReferencedInSubtree(m_groups, palette->id()));
}

bool OdTcCatalogImpl::addItem(OdTcCatalogItem* item) {
  if (auto* const palette = odrxCast<OdTcToolPalette>(item)) {
    if (findPalette(palette->id()) == palette) return false;
    addPalette(palette);
  } else if (auto* const group = odrxCast<OdTcGroup>(item)) {
    if (m_groups->find(group->id()) == group) return false;
    m_groups->add(group);
    markReferenced(this, idsReferencedBy(group));
  } else {
    return false;
  }
  notifyAdded(item);
  return true;
}

bool OdTcCatalogImpl::removeItem(const OdString& id) {
  if (const OdTcToolPalettePtr palette = findPalette(id)) {
    removePalette(palette);
    return true;
  }
  const OdTcCatalogItemPtr group = m_groups->find(id);
  return group && removeGroup(group);
}

bool OdTcCatalogImpl::removeGroup(const OdTcCatalogItemPtr& group) {
  const OdString id = group->id();
  notifyRemoved(group);
  // A reactor may have taken it away already, and another group may have the same id.
  if (m_groups->find(id) != group.get() || !m_groups->remove(id)) return false;
  orderListObject()->removeFirst(id);
  updateReferenced(this, group);
  return true;
}

void OdTcCatalogImpl::removePalette(const OdTcToolPalettePtr& palette) {
  const OdString id = palette->id();
  // A group may hold two references to it.
  while (isReferencedInSubtree(m_groups, id)) removeFromSubtree(m_groups, id);
  palette->announceRemoval();
  const OdTcEnumPtr<OdTcTool> tools = palette->enumTools();
  while (OdTcTool* const tool = tools->next()) tool->setDeleted();
  removePaletteFile(*palette);
  m_loaders->remove(id);
  palette->setDeleted();
  notifyRemoved(palette);
  // A reactor may have taken it away already.
  if (!letGo(palette)) return;
  unregister(palette);
  orderListObject()->removeFirst(id);
}

bool OdTcCatalogImpl::letGo(const OdTcToolPalettePtr& palette) {
  const auto at = std::find(m_palettes.begin(), m_palettes.end(), palette);
  if (at == m_palettes.end()) return false;
  m_palettes.erase(at);
  m_paletteIndex.drop();
  forgetOwner(palette, this);
  return true;
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
  OdTcPaletteLoader* const loader = findLoader(id);
  if (!loader) return nullptr;
  const OdTcToolPalettePtr palette = loader->loadPaletteFromCatalog();
  if (!palette) return nullptr;
  takeIn(palette);
  palette->setReferenced(isReferencedInSubtree(m_groups, palette->id()));
  return palette;
}

bool OdTcCatalogImpl::unloadPalette(const OdString& id) {
  const OdTcToolPalettePtr palette = findPalette(id);
  return palette && unregister(palette) && letGo(palette);
}

void OdTcCatalogImpl::removeReferences(const OdString& id) {
  // Through the groups themselves, so that their reactors hear of it.
  std::vector<OdTcGroupPtr> holders;
  findDepthFirst(m_groups, [&](OdTcCatalogItem* item, OdTcList*) {
    if (item->isKindOf(OdTcPaletteSoftRef::desc()) && item->id() == id)
      if (auto* const holder = odrxCast<OdTcGroup>(item->owner())) holders.emplace_back(holder);
    return false;
  });
  for (const OdTcGroupPtr& holder : holders) holder->removeItem(id);
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
  const OdTcGroupContentList* const contents = contentsAround(*group);
  // With ids that stand twice, another item may be in the way.
  if (!contents || contents->find(id) != group.get()) return false;
  const OdTcGroupPtr holder(group->owner());
  return holder->removeItem(id) && addItem(group);
}

} // namespace tc
