#include "catalog/catalog_entry.h"

#include "catalog/catalog_save.h"
#include "catalog/database.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "images/image_home.h"
#include "images/image_list.h"

namespace tc {

CatalogEntry::CatalogEntry(OdTcCatalogImpl& catalog, OdTcToolPalette* palette)
  : m_folders(odpath::folderOf(catalog.path()) + QLatin1String("\\Palettes\\Images"))
  , m_held(&catalog)
  , m_catalog(catalog)
  , m_palette(palette) {}

CatalogEntry::~CatalogEntry() {
  if (!m_isCommitted) takeBack();
}

void CatalogEntry::takeBack() {
  if (m_group && m_isGroupNew)
    m_catalog.m_groups->remove(m_group->id());
  else if (m_group)
    m_group->contents()->remove(m_palette->id());
  if (m_isEntered) {
    m_catalog.letGo(m_palette);
    m_catalog.unregister(m_palette);
  }
  for (const OdString& file : m_made)
    if (odrxSystemServices()->fileExists(file)) odrxSystemServices()->removeFile(file);
}

void CatalogEntry::enterGroup(const OdString& name) {
  const OdTcEnumPtr<OdTcCatalogItem> groups = m_catalog.groupsEnum();
  while (OdTcCatalogItem* const item = groups->next())
    if (item->name() == name && !m_group) m_group = OdTcGroupPtr(item);
  if (!m_group) {
    m_group = OdTcGroup::createObject();
    m_group->setName(name);
    m_catalog.m_groups->add(m_group);
    m_isGroupNew = true;
  }
  m_group->addItem(m_palette);
}

void CatalogEntry::enter(const OdString& group) {
  m_catalog.addPalette(m_palette);
  m_isEntered = true;
  if (!group.isEmpty()) enterGroup(group);
}

/// Pictures that were made, and not copied, come on the disk with the palette's file.
void CatalogEntry::notePictures() {
  const auto note = [this](const OdTcCatalogItem& item) {
    const OdTcImageList* const images = item.images();
    if (!images) return;
    const OdTcEnumPtr<OdTcImage> all = images->enumImages();
    while (const OdTcImage* const image = all->next()) {
      const OdString file = image->isResource() || image->src().isEmpty()
                                ? OdString()
                                : imagePathBeside(m_palette->getPath(), image->src());
      if (!file.isEmpty() && !odrxSystemServices()->fileExists(file)) m_made << file;
    }
  };
  note(*m_palette);
  const OdTcEnumPtr<OdTcTool> tools = m_palette->enumTools();
  while (const OdTcTool* const tool = tools->next()) note(*tool);
}

bool CatalogEntry::save() {
  if (m_catalog.path().isEmpty()) {
    m_problem = host::translate(QStringLiteral("the catalog has no file yet"));
    return false;
  }
  notePictures();
  m_made << m_palette->getPath();
  if (!m_palette->save()) {
    m_problem = m_palette->getDatabase()->saveProblem();
    return false;
  }
  try {
    if (CatalogSave(m_catalog, m_catalog.path(), CatalogSave::Way::kAtOnce).run()) return true;
    m_problem = m_catalog.path();
  } catch (const OdFileError& error) {
    m_problem = error.description();
  }
  return false;
}

void CatalogEntry::commit() {
  m_isCommitted = true;
  m_folders.keep();
  m_catalog.notifyAdded(m_palette);
  if (m_isGroupNew) m_catalog.notifyAdded(m_group);
}

} // namespace tc
