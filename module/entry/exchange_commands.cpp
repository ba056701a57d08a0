#include "module/entry/exchange_commands.h"

#include "catalog/catalog.h"
#include "catalog/foreign_store.h"
#include "catalog/palette_export.h"
#include "frame/file_path.h"
#include "host/window_services.h"
#include "module/entry/talking_command.h"
#include "module/message_table.h"
#include "module/string_table.h"
#include "ui/catalog_folder.h"
#include "ui/palette_set.h"
#include "ui/window/window_commands.h"

namespace tc {
namespace {

/// What is said of pictures that do not come in.
struct PictureText {
  OdTcPictureFate fate;
  const char16_t* text;
};
constexpr PictureText kPictureTexts[] = {
    {OdTcPictureFate::kRefused, u"%1: the picture \"%2\" is refused: it leads out of its folder."},
    {OdTcPictureFate::kUnreadable, u"%1: the picture \"%2\" cannot be read."},
    {OdTcPictureFate::kMissing, u"%1: the picture \"%2\" is missing."},
};

/// What is worth a line: a tool that changed, or that lacks something.
void printTool(const OdTcImportedTool& tool) {
  if ((tool.fate != OdTcToolFate::kSkipped || tool.isUnread) && !tool.reason.isEmpty())
    printLine(QStringLiteral("%1: %2").arg(tool.name, tool.reason));
  for (const PictureText& row : kPictureTexts)
    if (tool.picture == row.fate) printLine(translated(row.text).arg(tool.name, tool.pictureFile));
  if (tool.source == OdTcSourceFate::kMissing)
    printLine(translated(u"%1: the file \"%2\" is missing.").arg(tool.name, tool.sourceFile));
}

bool importOne(OdTcCatalog& catalog, const OdString& file, const OdString& group) {
  OdTcImportOptions options;
  options.group = group;
  OdTcImportReport report;
  const OdTcToolPalettePtr palette = catalog.importPalette(file, options, report);
  // Of what did not come in, only the reason is of use.
  if (palette)
    for (const OdTcImportedTool& tool : report.tools) printTool(tool);
  for (const OdString& note : report.notes) printLine(note);
  if (palette) {
    printLine(translated(u"%1 is now the palette \"%2\".").arg(file, report.palette));
    return true;
  }
  if (report.isUnreadable) showMessage(StringId::kPaletteReadError, true);
  printLine(translated(u"%1 is not imported: %2.").arg(file, report.problem));
  return false;
}

int runImport(IHostDocument* document) {
  const auto file = ask(document, u"Palette file: ");
  if (!file || file->isEmpty()) return kFailed;
  const auto folder = ask(document, u"Folder of the catalog <the default>: ");
  if (!folder) return kFailed;
  const auto group = ask(document, u"Group <none>: ");
  if (!group) return kFailed;
  OdTcCatalog* const catalog = findCatalog(*folder);
  if (!catalog) {
    printLine(translated(u"There is no catalog to take the palette."));
    return kFailed;
  }
  const OdTcCatalogPtr held(catalog);
  OdTcForeignPalettes found;
  findForeignPalettes(typedPath(*file), found);
  for (const OdTcForeignPalettes::Problem& problem : found.problems) printLine(problem.inWords());
  bool isDone = found.problems.empty();
  for (const OdString& palette : found.files)
    isDone = importOne(*catalog, palette, *group) && isDone;
  refreshWindow();
  return isDone ? kDone : kFailed;
}

int runExport(IHostDocument* document) {
  const auto word = ask(document, u"Palette: ");
  if (!word || word->isEmpty()) return kFailed;
  const auto file = ask(document, u"File to write: ");
  if (!file || file->isEmpty()) return kFailed;
  const OdTcToolPalettePtr palette = findPalette(*word);
  if (!palette) {
    printLine(translated(u"There is no palette \"%1\".").arg(*word));
    return kFailed;
  }
  OdString target = typedPath(*file);
  if (odpath::extensionOf(target) != QLatin1String("xtp")) target += QLatin1String(".xtp");
  const OdTcExportReport report = exportPalette(*palette, target);
  for (const OdString& name : report.withoutPicture)
    printLine(translated(u"%1: its picture is missing.").arg(name));
  if (!report.problem.isEmpty()) {
    printLine(translated(u"%1 is not written: %2.").arg(target, report.problem));
    return kFailed;
  }
  printLine(translated(u"%1 is written.").arg(target));
  return kDone;
}

/// The palettes where the host has windows, shown; null elsewhere.
ITcUiPaletteSet* shownWindow() {
  if (!host::service<IHostWindowServices>()) return nullptr;
  if (!ITcUiPaletteSet::instance())
    ITcUiPaletteSet::setInstance(makePaletteSet());
  else if (!isPaletteSetShown())
    ITcUiPaletteSet::instance()->show(1, 0, 1);
  if (!isPaletteSetShown()) setPaletteSetShown(true);
  return ITcUiPaletteSet::instance();
}

int runOpen(IHostDocument* document) {
  ITcUiPaletteSet* const window = shownWindow();
  if (window && window->dispatchCommand(kCommandOpenCatalog)) return kDone;
  const auto folder = ask(document, u"Folder of the catalog: ");
  if (!folder || folder->isEmpty() || !openCatalogFolder(typedPath(*folder))) return kFailed;
  refreshWindow();
  return kDone;
}

} // namespace

ICmdProcess* makeOpenCommand() { return TalkingCommand<&runOpen>::create(); }
ICmdProcess* makeImportCommand() { return TalkingCommand<&runImport>::create(); }
ICmdProcess* makeExportCommand() { return TalkingCommand<&runExport>::create(); }

} // namespace tc
