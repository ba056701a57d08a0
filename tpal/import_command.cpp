// tpal import: palettes of other programs into a catalog.
#include "catalog/database.h"
#include "catalog/foreign_store.h"
#include "frame/file_path.h"
#include "persistence/path_operations.h"
#include "tpal/command.h"
#include "tpal/console_host.h"
#include "tpal/import_text.h"
#include "tpal/writable_catalog.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace tpal {
namespace {

tc::OdTcForeignPalettes palettesIn(const QStringList& words) {
  tc::OdTcForeignPalettes found;
  for (const OdString& word : words) {
    const QFileInfo info(odpath::toPlatform(word));
    tc::findForeignPalettes(odpath::fromPlatform(info.absoluteFilePath()), found);
  }
  return found;
}

bool hasSomethingLeftOut(const tc::OdTcImportReport& report) {
  return std::any_of(report.tools.begin(), report.tools.end(), [](const tc::OdTcImportedTool& t) {
    return t.fate == tc::OdTcToolFate::kSkipped || t.picture >= tc::OdTcPictureFate::kRefused ||
           t.source >= tc::OdTcSourceFate::kMissing ||
           (t.fate == tc::OdTcToolFate::kTaken && !t.reason.isEmpty());
  });
}

tc::OdTcImportOptions optionsOf(const Arguments& arguments) {
  tc::OdTcImportOptions options;
  options.folderMap = arguments.map;
  options.group = arguments.group;
  options.convertCommands = arguments.convertCommands;
  options.dryRun = arguments.dryRun;
  return options;
}

} // namespace

ExitCode importCommand(const Arguments& arguments, Console& console) {
  if (arguments.into.isEmpty()) {
    console.err << "tpal: --into is missing: which catalog is to take the palettes?\n";
    return kUsage;
  }
  const ModuleClasses classes;
  WritableCatalog target(arguments.into, WritableCatalog::Writes::kCatalogThatMayBeNew, arguments,
                         console);
  if (!target.isOpen()) return kFailed;
  const tc::OdTcForeignPalettes found = palettesIn(arguments.words);
  ExitCode code = found.problems.empty() ? kOk : kFindings;
  QJsonArray rows;
  tc::OdTcImportOptions options = optionsOf(arguments);
  for (const OdString& file : found.files) {
    const OdString problem = target.whyNotWritable(target.file());
    if (!problem.isEmpty()) {
      console.err << "tpal: " << problem << "\n";
      code = kFailed;
      break;
    }
    tc::OdTcImportReport report;
    const tc::OdTcToolPalettePtr palette = target->importPalette(file, options, report);
    if (arguments.dryRun)
      options.takenNames << report.palette;
    else
      target.noteWritten(target.file());
    ConsoleHost::instance().takeMessages();
    if (arguments.json)
      rows.append(jsonOf(report, arguments.dryRun));
    else
      printReport(report, arguments.dryRun, console.out);
    if (!report.problem.isEmpty())
      code = kFailed;
    else if (hasSomethingLeftOut(report) ||
             (palette && !palette->getDatabase()->unsavedPictures().isEmpty()))
      code = std::max(code, kFindings);
  }
  for (const tc::OdTcForeignPalettes::Problem& problem : found.problems) {
    console.err << "tpal: " << problem.inWords() << "\n";
    if (arguments.json) rows.append(jsonOf(problem));
  }
  if (arguments.json) console.out << OdString::fromUtf8(QJsonDocument(rows).toJson());
  return found.files.isEmpty() ? kFailed : code;
}

} // namespace tpal
