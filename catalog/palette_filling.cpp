#include "catalog/palette_filling.h"

#include "catalog/catalog_entry.h"
#include "catalog/database.h"
#include "frame/system_services.h"
#include "host/host_locator.h"

namespace tc {
namespace {

OdTcToolPalettePtr findPalette(const OdTcCatalog& catalog, const OdString& word) {
  OdTcToolPalette* const byId = catalog.findPalette(word);
  return OdTcToolPalettePtr(byId ? byId : catalog.findPaletteByName(word));
}

} // namespace

OdTcPaletteFilling::OdTcPaletteFilling(OdTcCatalog& catalog, const OdString& palette,
                                       const OdString& group)
  : m_palette(findPalette(catalog, palette)) {
  if (!m_palette) {
    m_palette = OdTcToolPalette::createObject();
    m_palette->setName(palette);
    m_entry = std::make_unique<CatalogEntry>(static_cast<OdTcCatalogImpl&>(catalog), m_palette);
    m_entry->enter(group);
  }
  m_palette->suspendAutoSave();
}

OdTcPaletteFilling::~OdTcPaletteFilling() {
  m_palette->resumeAutoSave();
  if (m_isCommitted) return;
  // A new palette goes with all that is on it.
  while (!m_entry && !m_added.empty()) dropLast();
  for (const OdString& file : m_files)
    if (odrxSystemServices()->fileExists(file)) odrxSystemServices()->removeFile(file);
}

void OdTcPaletteFilling::add(OdTcTool* tool) {
  m_added.emplace_back(tool);
  m_palette->addItem(tool);
}

void OdTcPaletteFilling::dropLast() {
  const OdTcToolPtr tool = m_added.back();
  m_added.pop_back();
  m_palette->removeItem(tool->id());
}

bool OdTcPaletteFilling::save() {
  if (m_entry) {
    if (m_entry->save()) {
      m_entry->commit();
      return true;
    }
    m_problem = m_entry->problem();
    return false;
  }
  if (m_palette->getDatabase()->isUnread()) {
    m_problem = host::translate(QStringLiteral("the palette could not be read")) +
                QLatin1String(": ") + m_palette->getDatabase()->readProblem();
    return false;
  }
  if (m_palette->getDatabase()->saveAtOnce()) return true;
  m_problem = m_palette->getDatabase()->saveProblem();
  return false;
}

bool OdTcPaletteFilling::commit() {
  m_isCommitted = save();
  return m_isCommitted;
}

} // namespace tc
