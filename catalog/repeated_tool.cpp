#include "catalog/repeated_tool.h"

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "catalog/tool_palette.h"
#include "host/host_locator.h"
#include "host/repetition.h"

namespace tc {
namespace {

OdTcTool* findTool(const OdTcToolPalette& palette, const OdString& id) {
  if (!palette.findItem(id)) return nullptr;
  const OdTcEnumPtr<OdTcTool> tools = palette.enumTools();
  while (OdTcTool* const tool = tools->next())
    if (tool->id() == id) return tool;
  return nullptr;
}

OdTcTool* findTool(const OdString& id) {
  const OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  if (!manager) return nullptr;
  const OdSmartPtr<OdTcPaletteManager::CatalogEnum> catalogs = manager->catalogsEnum();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (catalogs->next(path, catalog)) {
    const OdTcEnumPtr<OdTcToolPalette> palettes = catalog->loading()->palettesSoFar();
    while (const OdTcToolPalette* const palette = palettes->next())
      if (OdTcTool* const tool = findTool(*palette, id)) return tool;
  }
  return nullptr;
}

/// Knows the tool by its id: between two runs it may be removed, or read anew.
class RepeatedTool : public CKVUnknownImpl<IHostRepeatable> {
 public:
  explicit RepeatedTool(const OdTcTool& tool)
    : m_id(tool.id())
    , m_name(host::ownText(tool.name())) {}

  OdString name() const override { return m_name; }
  void repeat() override {
    const OdTcToolPtr tool(findTool(m_id));
    IHostDocument* const document = host::curDocument();
    if (!tool || !document || !document->database()) return;
    tool->execute(document);
  }

 private:
  OdString m_id, m_name;
};

} // namespace

void tellUserRan(const OdTcTool& tool) {
  if (!tool.isRegular()) return;
  if (const auto repetition = host::service<IHostRepetition>())
    repetition->userRan(kvMake<RepeatedTool>(tool).get());
}

} // namespace tc
