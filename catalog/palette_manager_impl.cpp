#include "catalog/palette_manager_impl.h"

#include "catalog/configured_folders.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "module/message_table.h"
#include "module/string_table.h"
#include "persistence/path_operations.h"
#include "persistence/value_storage.h"
#include "tools/tool_maker.h"

#include <algorithm>

namespace tc {
namespace {

const OdString& watchedSetting() {
  static const OdString name = QStringLiteral("ToolPaletteDir");
  return name;
}

bool isDefaultFile(const OdString& path) { return odpath::samePlace(path, defaultCatalogFile()); }

void reportMissing(const OdString& path) {
  host::print(
      formatText(host::translate(QStringLiteral("\nError: cannot find catalog file: %s")), path));
}

/// `what` names the path and, if it is known, the reason.
void reportUnsaved(const OdString& what) {
  host::print(formatText(host::translate(QStringLiteral("\nCannot save the catalog: %s")), what));
}

/// Walks the map by its keys, so that a catalog may go while it is walked.
class CatalogEnumImpl : public OdTcPaletteManager::CatalogEnum {
 public:
  CatalogEnumImpl(const OdTcPaletteManagerImpl* manager,
                  const OdTcPaletteManagerImpl::CatalogMap& catalogs)
    : m_manager(const_cast<OdTcPaletteManagerImpl*>(manager))
    , m_catalogs(catalogs) {}

  bool next(OdString& path, OdTcCatalog*& catalog) override {
    const auto at = m_started ? m_catalogs.upper_bound(m_last) : m_catalogs.begin();
    if (at == m_catalogs.end()) return false;
    m_started = true;
    m_last = at->first;
    path = at->first;
    catalog = at->second;
    return true;
  }
  void reset() override { m_started = false; }

 private:
  OdTcPaletteManagerPtr m_manager;
  const OdTcPaletteManagerImpl::CatalogMap& m_catalogs;
  OdString m_last;
  bool m_started = false;
};

/// A new tool that one of the maker's roads has filled; null if it could not.
template <class Road, class... Args>
OdTcToolPtr made(Road road, const Args&... args) {
  OdTcToolMaker maker;
  const OdTcToolPtr tool = OdTcTool::createObject();
  return (maker.*road)(*tool, args...) ? tool : OdTcToolPtr();
}

} // namespace

OdTcPaletteManagerImpl::OdTcPaletteManagerImpl()
  : m_imageExtensions(OdTcValueStorageImpl::imageExtensions())
  , m_drawingExtensions(OdTcValueStorageImpl::drawingExtensions())
  , m_watcher(kvMake<TcCfgChangeReactor>(this))
  , m_watched(host::application()) {
  if (m_watched) m_watched->addPropReactor(watchedSetting(), m_watcher.get());
}

OdTcPaletteManagerImpl::~OdTcPaletteManagerImpl() {
  // The host may have gone, or another one come, since the watcher was subscribed.
  if (m_watched && m_watched == host::application())
    m_watched->removePropReactor(watchedSetting(), m_watcher.get());
  m_watcher->disconnect();
  if (m_idle) m_idle->remove(this);
}

bool OdTcPaletteManagerImpl::doPiece() {
  for (const auto& [path, catalog] : m_catalogs) {
    if (catalog->loading()->pendingCount() == 0) continue;
    // Whoever hears of the palette may change the map.
    const OdTcCatalogPtr held = catalog;
    if (held->loading()->loadNext()) return true;
  }
  return false;
}

template <class Notify>
void OdTcPaletteManagerImpl::notify(Notify call) const {
  // A reactor may take itself, or others, off the list while it is told.
  const std::vector<OdTcPaletteManagerReactor*> reactors = m_reactors;
  for (OdTcPaletteManagerReactor* reactor : reactors)
    if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end())
      call(*reactor);
}

void OdTcPaletteManagerImpl::addReactor(OdTcPaletteManagerReactor* reactor) {
  if (reactor) m_reactors.push_back(reactor);
}

void OdTcPaletteManagerImpl::removeReactor(OdTcPaletteManagerReactor* reactor) {
  const auto at = std::find(m_reactors.begin(), m_reactors.end(), reactor);
  if (at != m_reactors.end()) m_reactors.erase(at);
}

bool OdTcPaletteManagerImpl::openCatalog(const OdString& path) {
  const OdString key = catalogKey(path);
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  const auto idle = host::service<IHostIdle>();
  if (!(idle ? catalog->beginLoad(key) : catalog->load(key))) {
    catalog->setId(odrxSystemServices()->createGuid());
    catalog->setName(host::translate(QStringLiteral("Tool Palettes")));
  }
  if (isDefaultFile(key)) catalog->setDefault(true);
  OdTcCatalogPtr& entry = m_catalogs[key];
  if (entry && m_active == entry.get()) m_active = nullptr;
  entry = catalog;
  notify([&](OdTcPaletteManagerReactor& r) { r.catalogAdded(catalog); });
  // A reactor may have removed the catalog again.
  if (catalog->isDefault() && findCatalog(key) == catalog.get()) m_active = catalog;
  if (catalog->loading()->pendingCount() > 0) {
    m_idle = idle;
    m_idle->add(this);
  }
  return true;
}

OdTcCatalog* OdTcPaletteManagerImpl::findCatalog(const OdString& key) const {
  const auto at = m_catalogs.find(key);
  return at == m_catalogs.end() ? nullptr : at->second.get();
}

bool OdTcPaletteManagerImpl::addCatalog(const OdString& path) {
  if (!openCatalog(path)) return false;
  OdTcCatalog* const catalog = findCatalog(catalogKey(path));
  if (catalog) catalog->setId(odrxSystemServices()->createGuid());
  return catalog != nullptr;
}

bool OdTcPaletteManagerImpl::removeCatalog(const OdString& path) {
  const auto at = m_catalogs.find(catalogKey(path));
  if (at == m_catalogs.end()) return false;
  // The catalog outlives its notice, whatever a reactor does to the map.
  const OdTcCatalogPtr catalog = at->second;
  notify([&](OdTcPaletteManagerReactor& r) { r.catalogRemoved(catalog); });
  m_catalogs.erase(catalogKey(path));
  if (m_active == catalog.get()) m_active = defaultCatalog();
  return true;
}

void OdTcPaletteManagerImpl::loadCatalogs() {
  for (const OdString& path : configuredCatalogFiles()) {
    if (odrxSystemServices()->fileExists(path) || isDefaultFile(path))
      openCatalog(path);
    else
      reportMissing(path);
  }
}

void OdTcPaletteManagerImpl::reloadCatalogs() {
  const QStringList files = configuredCatalogFiles();
  bool isChanged = false;

  const QSet<OdString> configured(files.begin(), files.end());
  QStringList gone;
  for (const auto& [path, catalog] : m_catalogs)
    if (!configured.contains(catalogKeyOfFolder(odpath::folderOf(path)))) gone << path;
  for (const OdString& path : gone) {
    removeCatalog(path);
    isChanged = true;
  }

  for (const OdString& path : files) {
    const bool isDefault = isDefaultFile(path);
    if (!odrxSystemServices()->fileExists(path)) {
      if (isDefault) continue;
      reportMissing(path);
      isChanged = true;
      continue;
    }
    if (isDefault || m_catalogs.count(path)) continue;
    addCatalog(path);
    isChanged = true;
  }

  if (m_catalogs.empty()) m_active = nullptr;
  if (isChanged) notify([](OdTcPaletteManagerReactor& r) { r.catalogsChanged(); });
}

void OdTcPaletteManagerImpl::saveAll() {
  const CatalogMap catalogs = m_catalogs;
  for (const auto& [path, catalog] : catalogs) {
    try {
      if (!catalog->save(path)) reportUnsaved(path);
    } catch (const OdFileError& error) {
      reportUnsaved(error.description());
    }
  }
}

OdSmartPtr<OdTcPaletteManager::CatalogEnum> OdTcPaletteManagerImpl::catalogsEnum() const {
  return odrxMake<CatalogEnumImpl>(this, m_catalogs);
}

void OdTcPaletteManagerImpl::openConfiguration() {
  if (!m_openFlag) return;
  const KVPtr<IProfile> section = host::profileSection(QStringLiteral("cmddata"));
  m_configuration =
      section ? section->openSection(QStringLiteral("ToolPaletteManager"), true) : nullptr;
}

OdString OdTcPaletteManagerImpl::palettesFolder(const OdTcCatalog* catalog) const {
  return catalog ? catalog->palettesFolder() : defaultPalettesFolder();
}

OdString OdTcPaletteManagerImpl::imagesFolder(const OdTcCatalog* catalog) const {
  return palettesFolder(catalog) + QLatin1String("\\Images");
}

OdTcCatalog* OdTcPaletteManagerImpl::defaultCatalog() const {
  for (const auto& [path, catalog] : m_catalogs)
    if (catalog->isDefault()) return catalog;
  return nullptr;
}

OdTcToolPtr OdTcPaletteManagerImpl::createToolFromFile(const OdString& path) {
  return made(&OdTcToolMaker::fromFile, path);
}

OdTcToolPtr OdTcPaletteManagerImpl::createToolFromEntity(OdDbObjectId entity) {
  return made(&OdTcToolMaker::fromEntity, entity);
}

OdTcToolPtr OdTcPaletteManagerImpl::createToolFromBlock(const OdString& name,
                                                        IHostDocument* document) {
  return made(&OdTcToolMaker::fromBlock, name, document);
}

OdTcToolPtr OdTcPaletteManagerImpl::createToolFromDrawingBlock(const OdString& file,
                                                               const OdString& name) {
  return made(&OdTcToolMaker::fromDrawingBlock, file, name);
}

OdTcToolPtr OdTcPaletteManagerImpl::createToolFromCommand(const OdString& name) {
  return made(&OdTcToolMaker::fromCommand, name);
}

OdTcToolPtr OdTcPaletteManagerImpl::createToolFromClipboard() {
  return made(&OdTcToolMaker::fromClipboard);
}

OdTcToolPalette* OdTcPaletteManagerImpl::importPalette(OdTcCatalog* catalog, const OdString& path) {
  OdTcCatalog* const target = catalog ? catalog : m_active;
  if (!target) return nullptr;
  OdTcImportReport report;
  const OdTcToolPalettePtr palette = target->importPalette(path, {}, report);
  if (palette) return palette;
  if (report.isUnreadable) showMessage(StringId::kPaletteReadError, true);
  host::print(
      formatText(host::translate(QStringLiteral("\nCannot import %s: %s")), path, report.problem));
  return nullptr;
}

bool OdTcPaletteManagerImpl::isImageExtension(const OdString& extension) const {
  return m_imageExtensions.contains(extension.toLower());
}

bool OdTcPaletteManagerImpl::isDrawingExtension(const OdString& extension) const {
  return m_drawingExtensions.contains(extension.toLower());
}

} // namespace tc
