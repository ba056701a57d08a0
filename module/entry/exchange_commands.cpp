#include "module/entry/exchange_commands.h"

#include "catalog/catalog.h"
#include "catalog/foreign_store.h"
#include "catalog/palette_export.h"
#include "catalog/palette_manager.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "host/user_input.h"
#include "module/message_table.h"
#include "module/string_table.h"
#include "ui/palette_set.h"

#include <QFileInfo>

#include <optional>

namespace tc {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

void printLine(const OdString& text) { host::print(u'\n' + text); }

/// Asks for one text; nothing if that was cancelled.
std::optional<OdString> ask(IHostUserInput* input, const char16_t* prompt) {
  constexpr unsigned kFlags =
      IHostUserInput::kAllowBlanks | IHostUserInput::kKeepCase | IHostUserInput::kAllowEmpty;
  OdString answer;
  if (!input) return std::nullopt;
  const auto result = input->getString(kFlags, translated(prompt), answer);
  if (result == IHostUserInput::Result::kCancelled) return std::nullopt;
  return answer.trimmed();
}

/// The stored form of a path that the user typed, made absolute.
OdString typedPath(const OdString& typed) {
  OdString path = typed;
  path.remove(u'"');
  return odpath::fromPlatform(QFileInfo(odpath::toPlatform(path)).absoluteFilePath());
}

/// The catalog in a folder or, for no folder, the active one, or else the first.
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

/// A palette of any catalog, by its id or its name.
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

/// What is worth a line: a tool that changed, or that lacks something.
void printTool(const OdTcImportedTool& tool) {
  if (tool.fate != OdTcToolFate::kSkipped && !tool.reason.isEmpty())
    printLine(QStringLiteral("%1: %2").arg(tool.name, tool.reason));
  if (tool.picture >= OdTcPictureFate::kRefused)
    printLine(translated(u"%1: the picture \"%2\" is missing.").arg(tool.name, tool.pictureFile));
  if (tool.source == OdTcSourceFate::kMissing)
    printLine(translated(u"%1: the file \"%2\" is missing.").arg(tool.name, tool.sourceFile));
}

bool importOne(OdTcCatalog& catalog, const OdString& file, const OdString& group) {
  OdTcImportOptions options;
  options.group = group;
  OdTcImportReport report;
  const OdTcToolPalettePtr palette = catalog.importPalette(file, options, report);
  for (const OdTcImportedTool& tool : report.tools) printTool(tool);
  for (const OdString& note : report.notes) printLine(note);
  if (palette) {
    printLine(translated(u"%1 is now the palette \"%2\".").arg(file, report.palette));
    return true;
  }
  if (!report.isReported) showMessage(static_cast<int>(StringId::kPaletteReadError), true);
  printLine(translated(u"%1 is not imported: %2.").arg(file, report.problem));
  return false;
}

int runImport(IHostUserInput* input) {
  const auto file = ask(input, u"Palette file: ");
  if (!file || file->isEmpty()) return kFailed;
  const auto folder = ask(input, u"Folder of the catalog <the default>: ");
  if (!folder) return kFailed;
  const auto group = ask(input, u"Group <none>: ");
  if (!group) return kFailed;
  OdTcCatalog* const catalog = findCatalog(*folder);
  if (!catalog) {
    printLine(translated(u"There is no catalog to take the palette."));
    return kFailed;
  }
  const OdTcCatalogPtr held(catalog);
  OdTcForeignPalettes found;
  findForeignPalettes(typedPath(*file), found);
  for (const OdString& problem : found.problems) printLine(problem);
  bool isDone = found.problems.isEmpty();
  for (const OdString& palette : found.files)
    isDone = importOne(*catalog, palette, *group) && isDone;
  ITcUiPaletteSet* const window = ITcUiPaletteSet::instance();
  if (window && window->isVisible()) window->refresh();
  return isDone ? kDone : kFailed;
}

int runExport(IHostUserInput* input) {
  const auto word = ask(input, u"Palette: ");
  if (!word || word->isEmpty()) return kFailed;
  const auto file = ask(input, u"File to write: ");
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
  if (!report.problem.isEmpty()) return kFailed;
  printLine(translated(u"%1 is written.").arg(target));
  return kDone;
}

/// A command that talks to the user of the document in which it runs.
template <int (*Body)(IHostUserInput*)>
class ExchangeCommand final : public CKVUnknownImpl<ICmdProcess> {
 public:
  static ICmdProcess* create() { return new ExchangeCommand; }

  unsigned long addRef() override { return CKVUnknownImpl<ICmdProcess>::addRef(); }
  unsigned long release() override { return CKVUnknownImpl<ICmdProcess>::release(); }
  bool queryInterface(KVInterfaceId id, void** out) override {
    return CKVUnknownImpl<ICmdProcess>::queryInterface(id, out);
  }
  int Run() override {
    IHostDocument* const document = m_context ? m_context->document() : host::curDocument();
    return Body(document ? document->userInput() : nullptr);
  }
  void cancel() override {}
  void finish() override {}
  int state() override { return 1; }
  IRunContext* context() override { return m_context.get(); }
  void setContext(IRunContext* context) override {
    if (context != m_context.get()) m_context = KVPtr<IRunContext>(context);
  }

 private:
  KVPtr<IRunContext> m_context;
};

} // namespace

ICmdProcess* makeImportCommand() { return ExchangeCommand<&runImport>::create(); }
ICmdProcess* makeExportCommand() { return ExchangeCommand<&runExport>::create(); }

} // namespace tc
