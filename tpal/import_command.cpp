// tpal import: palettes of other programs into a catalog.
#include "catalog/foreign_store.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "persistence/path_operations.h"
#include "tpal/command.h"
#include "tpal/console_host.h"
#include "tpal/import_text.h"
#include "tpal/loaded_catalog.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace tpal {
namespace {

/// The files of a folder and of those in it, in a stable order.
QStringList filesBelow(const QString& folder) {
  QStringList files;
  QDirIterator each(folder, {QStringLiteral("*.xtp"), QStringLiteral("*.atc")}, QDir::Files,
                    QDirIterator::Subdirectories);
  while (each.hasNext()) files << each.next();
  files.sort();
  return files;
}

tc::OdTcForeignPalettes palettesIn(const QStringList& words) {
  tc::OdTcForeignPalettes found;
  for (const OdString& word : words) {
    const QFileInfo info(odpath::toPlatform(word));
    const QString path = info.absoluteFilePath();
    const QStringList files = info.isDir() ? filesBelow(path) : QStringList(path);
    if (files.isEmpty())
      found.problems << QStringLiteral("%1: there are no palettes in the folder").arg(word);
    for (const QString& file : files) tc::findForeignPalettes(odpath::fromPlatform(file), found);
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
  const LoadedCatalog target = openOrNewCatalog(arguments.into);
  if (!target.isRead) {
    for (const OdString& message : target.messages) console.err << "tpal: " << message << "\n";
    return kFailed;
  }
  const OdString folder = odpath::folderOf(target.file);
  if (!arguments.dryRun && !odrxSystemServices()->createFolder(folder)) {
    console.err << "tpal: the folder " << folder << " cannot be made\n";
    return kFailed;
  }
  const tc::OdTcForeignPalettes found = palettesIn(arguments.words);
  ExitCode code = found.problems.isEmpty() ? kOk : kFindings;
  QJsonArray rows;
  for (const OdString& file : found.files) {
    tc::OdTcImportReport report;
    target.catalog->importPalette(file, optionsOf(arguments), report);
    ConsoleHost::instance().takeMessages();
    if (arguments.json)
      rows.append(jsonOf(report, arguments.dryRun));
    else
      printReport(report, arguments.dryRun, console.out);
    if (!report.problem.isEmpty())
      code = kFailed;
    else if (hasSomethingLeftOut(report))
      code = std::max(code, kFindings);
  }
  for (const OdString& problem : found.problems) console.err << "tpal: " << problem << "\n";
  if (arguments.json) console.out << OdString::fromUtf8(QJsonDocument(rows).toJson());
  return found.files.isEmpty() ? kFailed : code;
}

} // namespace tpal
