#include "drafton/engine/support_files.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/translator.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFileInfo>

namespace drafton {

namespace {

/// Where a support file may stand, the likeliest place first; platform's absolute paths.
QStringList placesOf(Engine& engine, const Document* document, const OdString& name,
                     const OdString& extension) {
  OdString file = odpath::fromPlatform(name);
  if (odpath::extensionOf(file).isEmpty()) file += u'.' + extension;
  QStringList folders{OdString()};
  if (odpath::isRelative(file))
    folders += {document ? odpath::folderOf(document->path()) : OdString(),
                engine.application().userDataFolder(), engine.programFolder()};
  QStringList places;
  for (const OdString& folder : folders) {
    const OdString path = folder.isEmpty() ? file : folder + u'\\' + file;
    // The working folder can be another one when the path is used.
    places << QDir::cleanPath(QFileInfo(odpath::toPlatform(path)).absoluteFilePath());
  }
  return places;
}

} // namespace

OdString findSupportFile(Engine& engine, const Document* document, const OdString& name,
                         const OdString& extension) {
  for (const OdString& place : placesOf(engine, document, name, extension))
    if (QFileInfo(place).isFile()) return odpath::fromPlatform(place);
  return {};
}

OdString whyNoSupportFile(Engine& engine, const Document* document, const OdString& name,
                          const OdString& extension) {
  constexpr qsizetype kShown = 200;
  QStringList places = placesOf(engine, document, name, extension);
  // Devices have no extension that could be left out.
  places << odpath::toPlatform(name);
  for (const OdString& place : places)
    if (QFileInfo::exists(place)) return translated(u"%1 is not a file.").arg(place);
  return translated(u"There is no file \"%1\".").arg(name.left(kShown));
}

} // namespace drafton
