// tpal export: a palette of a catalog for other programs.
#include "catalog/palette_export.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "tpal/command.h"
#include "tpal/console_host.h"
#include "tpal/loaded_catalog.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tpal {
namespace {

void print(const tc::OdTcExportReport& report, bool json, Console& console) {
  if (json) {
    const QJsonObject row{
        {QStringLiteral("file"), odpath::toPlatform(report.file)},
        {QStringLiteral("imageFolder"), odpath::toPlatform(report.imageFolder)},
        {QStringLiteral("pictures"), report.pictures},
        {QStringLiteral("withoutPicture"), QJsonArray::fromStringList(report.withoutPicture)},
        {QStringLiteral("written"), report.problem.isEmpty()},
        {QStringLiteral("problem"), report.problem}};
    console.out << OdString::fromUtf8(QJsonDocument(row).toJson());
    return;
  }
  if (report.problem.isEmpty())
    console.out << odpath::toPlatform(report.file) << ": written, " << report.pictures
                << " pictures in " << odpath::toPlatform(report.imageFolder) << "\n";
  else
    console.out << odpath::toPlatform(report.file) << ": not written: " << report.problem << "\n";
  for (const OdString& name : report.withoutPicture)
    console.out << "  without its picture: " << name << "\n";
}

} // namespace

ExitCode exportCommand(const Arguments& arguments, Console& console) {
  const OdString& word = arguments.words[1];
  const QFileInfo target(odpath::toPlatform(arguments.words[2]));
  if (target.suffix().compare(QLatin1String("xtp"), Qt::CaseInsensitive) != 0) {
    console.err << "tpal: " << arguments.words[2] << " does not end in .xtp\n";
    return kUsage;
  }
  const ModuleClasses classes;
  // Sources that start from the catalog are to be found from anywhere.
  const LoadedCatalog loaded =
      loadCatalog(QFileInfo(odpath::toPlatform(arguments.words[0])).absoluteFilePath());
  for (const OdString& message : loaded.messages) console.err << "tpal: " << message << "\n";
  if (!loaded.isRead) return kFailed;
  OdString problem;
  tc::OdTcToolPalette* const palette = findPalette(*loaded.catalog, word, problem);
  if (!palette) {
    console.err << "tpal: " << problem << "\n";
    return kFailed;
  }
  // Others know nothing of the macro for this folder.
  ConsoleHost::instance().setToolPaletteFolders({});
  const tc::OdTcExportReport report =
      tc::exportPalette(*palette, odpath::fromPlatform(target.absoluteFilePath()));
  print(report, arguments.json, console);
  if (!report.problem.isEmpty()) return kFailed;
  return report.withoutPicture.isEmpty() ? kOk : kFindings;
}

} // namespace tpal
