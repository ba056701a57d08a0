#include "module/entry/talking_command.h"

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "frame/file_path.h"
#include "ui/palette_set.h"

#include <QFileInfo>

namespace tc {

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

void printLine(const OdString& text) { host::print(u'\n' + text); }

std::optional<OdString> ask(IHostDocument* document, const char16_t* prompt) {
  constexpr unsigned kFlags =
      IHostUserInput::kAllowBlanks | IHostUserInput::kKeepCase | IHostUserInput::kAllowEmpty;
  IHostUserInput* const input = document ? document->userInput() : nullptr;
  OdString answer;
  if (!input) return std::nullopt;
  const auto result = input->getString(kFlags, translated(prompt), answer);
  if (result == IHostUserInput::Result::kCancelled) return std::nullopt;
  return answer.trimmed();
}

OdString typedPath(const OdString& typed) {
  OdString path = typed;
  path.remove(u'"');
  return odpath::fromPlatform(QFileInfo(odpath::toPlatform(path)).absoluteFilePath());
}

OdTcCatalog* findCatalog(const OdString& folder) {
  const OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  if (!manager) return nullptr;
  if (folder.isEmpty() && manager->activeCatalog()) return manager->activeCatalog();
  const OdSmartPtr<OdTcPaletteManager::CatalogEnum> all = manager->catalogsEnum();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  while (all->next(path, catalog))
    if (folder.isEmpty() || odpath::samePlace(odpath::folderOf(path), typedPath(folder)))
      return catalog;
  return nullptr;
}

OdTcToolPalette* findPalette(const OdString& word) {
  const OdTcPaletteManager* const manager = OdTcPaletteManager::instance();
  if (!manager) return nullptr;
  const OdSmartPtr<OdTcPaletteManager::CatalogEnum> all = manager->catalogsEnum();
  OdString path;
  OdTcCatalog* catalog = nullptr;
  OdTcToolPalette* named = nullptr;
  while (all->next(path, catalog)) {
    if (OdTcToolPalette* const palette = catalog->findPalette(word)) return palette;
    if (!named) named = catalog->findPaletteByName(word);
  }
  return named;
}

void refreshWindow() {
  ITcUiPaletteSet* const window = ITcUiPaletteSet::instance();
  if (window && window->isVisible()) window->refresh();
}

} // namespace tc
