#include "catalog/catalog_save.h"

#include "catalog/database.h"
#include "catalog/inside_folder.h"
#include "catalog/palette_loader_impl.h"
#include "catalog/write_file.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "persistence/path_operations.h"

#include <utility>

namespace tc {
namespace {

/// The fields of a loader that a save changes. The time comes last, since the others set it, too.
constexpr std::array<const char16_t*, 3> kChangedFields = {u"ItemName", u"Description",
                                                           u"modifiedUniversalDateTime"};

OdString changedField(std::size_t position) {
  return OdString::fromUtf16(kChangedFields[position]);
}

} // namespace

CatalogSave::CatalogSave(OdTcCatalogImpl& catalog, const OdString& path, Way way)
  : m_catalog(catalog)
  , m_path(path)
  , m_formerPath(catalog.m_path)
  , m_way(way) {}

CatalogSave::~CatalogSave() {
  if (m_isDone) return;
  m_catalog.m_path = m_formerPath;
  for (const OdTcPaletteLoaderPtr& loader : m_added) m_catalog.m_loaders->remove(loader->id());
  // The last change goes first: a loader that was changed twice ends as it was before the first.
  for (auto renamed = m_renamed.rbegin(); renamed != m_renamed.rend(); ++renamed)
    for (std::size_t i = 0; i < kChangedFields.size(); ++i)
      renamed->loader->setPropertyValue(changedField(i), renamed->former[i]);
  for (const OdTcToolPalettePtr& palette : m_placed) palette->getDatabase()->setPath(OdString());
}

bool CatalogSave::run() {
  m_catalog.complete();
  m_catalog.m_unread.keepBefore(m_path);
  m_catalog.m_stamp.keepBefore(m_path);
  m_catalog.m_path = m_path;
  for (const OdTcToolPalettePtr& palette : m_catalog.m_palettes)
    if (!palette->isDeleted()) updateLoader(*palette);
  m_isDone = write();
  if (!m_isDone) return false;
  m_catalog.m_unread.noteWritten(m_path);
  m_catalog.m_stamp.note(m_path);
  return m_isDone;
}

bool CatalogSave::write() {
  const OdTcFilerPtr filer = makeCatalogFiler();
  if (m_way == Way::kInPlace)
    return writeFile(m_path, creationFor(m_path), *filer, &m_catalog, &OdTcFiler::openCatalog);
  return writeBeside(m_path, [&](const OdString& fresh) {
    return writeFile(fresh, Oda::kCreateAlways, *filer, &m_catalog, &OdTcFiler::openCatalog);
  });
}

void CatalogSave::updateLoader(OdTcToolPalette& palette) {
  OdTcCatalogItem* const loader = m_catalog.m_loaders->find(palette.id());
  if (!loader) {
    addLoader(palette);
    return;
  }
  const OdString name = palette.name();
  const OdString description = palette.description();
  if (loader->name() == name && loader->description() == description) return;
  Renamed renamed{OdTcPaletteLoaderPtr(loader), {}};
  for (std::size_t i = 0; i < kChangedFields.size(); ++i)
    renamed.former[i] = loader->propertyValue(changedField(i));
  m_renamed.push_back(std::move(renamed));
  loader->properties()->setName(name);
  loader->properties()->setDescription(description);
}

void CatalogSave::addLoader(OdTcToolPalette& palette) {
  if (palette.getPath().isEmpty()) {
    palette.getDatabase()->setPath(m_catalog.pathFor(palette));
    m_placed.emplace_back(&palette);
  }
  const auto loader = odrxMake<OdTcPaletteLoaderImpl>();
  loader->setId(palette.id());
  loader->properties()->setName(palette.name());
  loader->properties()->setDescription(palette.description());
  loader->setHref(hrefFor(palette.getPath()));
  m_catalog.m_loaders->add(loader);
  m_added.emplace_back(loader);
}

OdString CatalogSave::hrefFor(const OdString& file) const {
  const OdString folder = odpath::folderOf(m_path);
  OdString relative;
  if (isInsideFolder(file, folder) && makeRelativePath(file, folder, relative)) return relative;
  return collapsedStoredPath(file);
}

} // namespace tc
