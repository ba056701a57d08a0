#include "ui/catalog_folder.h"

#include "catalog/palette_manager.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "host/show_message.h"
#include "module/string_table.h"

#include <QDir>

namespace tc {
namespace {

const OdString& catalogFile() {
  static const OdString name = QStringLiteral("DrfTcCatalog.dtc");
  return name;
}

/// Only a file of exactly this name counts, whatever the file system makes of case.
bool holdsCatalog(const OdString& folder) {
  return QDir(odpath::toPlatform(folder))
      .entryList(QDir::Files)
      .contains(catalogFile(), Qt::CaseSensitive);
}

} // namespace

bool openCatalogFolder(const OdString& folder) {
  OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  if (!manager) return false;
  if (!holdsCatalog(folder)) {
    host::showMessage(stringText(StringId::kFolderHasNoCatalog),
                      host::translate(QStringLiteral("Tool Palettes")), messagebox::kWarning);
    return false;
  }
  manager->openCatalog(folder + u'\\' + catalogFile());
  return true;
}

} // namespace tc
