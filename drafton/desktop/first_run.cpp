#include "drafton/desktop/first_run.h"

#include "frame/file_path.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace drafton {
namespace {

constexpr const char* kMark = "SamplesBrought";
const OdString kCatalogs = QStringLiteral("ToolPaletteDir");

/// Copies a folder with all that is in it; false, with nothing left, if anything cannot be copied.
bool copyFolder(const QString& from, const QString& to) {
  // Whoever comes upon the folder finds it whole.
  const QString part = to + QLatin1String(".part");
  QDir(part).removeRecursively();
  const QDir source(from);
  bool isCopied = QDir().mkpath(part);
  QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
  while (isCopied && files.hasNext()) {
    const QString file = files.next();
    const QString copy = part + u'/' + source.relativeFilePath(file);
    isCopied = QDir().mkpath(QFileInfo(copy).path()) && QFile::copy(file, copy) &&
               QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
  }
  isCopied = isCopied && QDir().rename(part, to);
  if (!isCopied) QDir(part).removeRecursively();
  return isCopied;
}

} // namespace

OdString bringSamples(Desktop& desktop, const OdString& programFolder) {
  Engine& engine = desktop.engine();
  const QString samples = programFolder + QLatin1String("/samples");
  OdVariant named;
  if (desktop.setting(kMark).toInt32() != 0 || engine.settings().get({}, kCatalogs, named) ||
      !QFile::exists(samples))
    return {};
  const QString own =
      odpath::toPlatform(engine.application().userDataFolder()) + QLatin1String("/Samples");
  if (!QFile::exists(own) && !copyFolder(samples, own)) {
    engine.print(translated(u"The samples cannot be copied to %1.").arg(own));
    return {};
  }
  desktop.setSetting(kMark, 1);
  engine.application().setSetting(kCatalogs,
                                  odpath::fromPlatform(own) + QLatin1String("\\catalog"));
  engine.settings().set({QStringLiteral("Startup")}, QStringLiteral("ToolPalettes"), 1);
  return own + QLatin1String("/drawings/floor-plan.dxf");
}

} // namespace drafton
