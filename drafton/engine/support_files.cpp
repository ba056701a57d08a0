#include "drafton/engine/support_files.h"

#include "drafton/engine/engine.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFileInfo>

namespace drafton {

OdString findSupportFile(Engine& engine, const Document* document, const OdString& name,
                         const OdString& extension) {
  OdString file = odpath::fromPlatform(name);
  if (odpath::extensionOf(file).isEmpty()) file += u'.' + extension;
  QStringList folders{OdString()};
  if (odpath::isRelative(file))
    folders += {document ? odpath::folderOf(document->path()) : OdString(),
                engine.application().userDataFolder(), engine.programFolder()};
  for (const OdString& folder : folders) {
    const OdString path = folder.isEmpty() ? file : folder + u'\\' + file;
    // The working folder can be another one when the path is used.
    if (const QFileInfo info(odpath::toPlatform(path)); info.isFile())
      return odpath::fromPlatform(QDir::cleanPath(info.absoluteFilePath()));
  }
  return {};
}

} // namespace drafton
