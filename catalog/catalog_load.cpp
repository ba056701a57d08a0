// How a catalog is read: its own file, and then its palettes, at once or one by one.
#include "catalog/catalog_impl.h"

#include "catalog/group_tree.h"
#include "catalog/read_file.h"
#include "frame/system_services.h"

namespace tc {

bool OdTcCatalogImpl::beginLoad(const OdString& path) {
  const bool isThere = odrxSystemServices()->fileExists(path);
  // What waits is to be found beside the file that named it.
  if (!isThere) complete();
  m_path = path;
  m_stamp.note(path);
  m_unread.note(path, OdString());
  if (!isThere) return false;
  clearContent();
  const ReadOutcome outcome = readFile(path, *makeCatalogFiler(), this, &OdTcFiler::openCatalog);
  m_unread.note(path, outcome.problem);
  if (!outcome.isRead) {
    // What was read up to the failure is no catalog.
    clearContent();
    return false;
  }
  m_pending.begin(*m_loaders, referencedIds(m_groups));
  return true;
}

bool OdTcCatalogImpl::load(const OdString& path) {
  if (!beginLoad(path)) return false;
  while (const auto entry = m_pending.takeNext()) bring(*entry);
  return true;
}

std::optional<OdTcToolPalettePtr> OdTcCatalogImpl::bring(const PendingPalettes::Entry& entry) {
  const OdTcToolPalettePtr palette = entry.loader->loadPaletteFromCatalog();
  if (!m_pending.strike(entry)) return std::nullopt;
  if (palette) {
    palette->setOwnerQuiet(this);
    const auto at = m_palettes.begin() + m_pending.enter(entry);
    if (at != m_palettes.end()) m_paletteIndex.drop();
    m_palettes.insert(at, palette);
    palette->setReferenced(m_pending.isReferenced(palette->id()));
  }
  if (m_pending.count() == 0) finishLoad();
  return palette;
}

void OdTcCatalogImpl::finishLoad() {
  m_pending.clear();
  for (const OdTcToolPalettePtr& palette : m_palettes) {
    palette->setReferenced(false);
    registerItem(palette);
  }
  // Of palettes with one id, groups show the first, which may have come after another.
  markReferenced(this, referencedIds(m_groups));
}

bool OdTcCatalogImpl::loadAndTell(const std::optional<PendingPalettes::Entry>& entry) {
  if (!entry) return false;
  // Whoever hears of the palette may let go of the catalog.
  const OdTcCatalogPtr held(this);
  const std::optional<OdTcToolPalettePtr> palette = bring(*entry);
  if (!palette) return true;
  const bool isLast = m_pending.count() == 0;
  if (*palette) notifyAdded(*palette);
  if (isLast) itemRecord().notify(&OdTcCatalogItemReactor::itemChanged, this);
  return true;
}

void OdTcCatalogImpl::complete() const {
  if (m_pending.count() == 0) return;
  auto* const self = const_cast<OdTcCatalogImpl*>(this);
  const OdTcCatalogPtr held(self);
  while (self->loadAndTell(self->m_pending.takeAny())) {
  }
}

OdTcEnumPtr<OdTcToolPalette> OdTcCatalogImpl::palettesSoFar() const {
  return odrxMake<OdTcEnumImpl<OdTcToolPalette, Palettes>>(this, m_palettes);
}

OdTcToolPalette* OdTcCatalogImpl::findSoFar(const OdString& id) const {
  const qsizetype position = m_paletteIndex.find(m_palettes, id);
  return position < 0 ? nullptr : m_palettes[static_cast<std::size_t>(position)].get();
}

} // namespace tc
