#include "drawing/objects/stored_path.h"

#include "frame/file_path.h"

#include <QFileInfo>

namespace {

OdString beside(const OdString& drawing, const OdString& name) {
  const OdString folder = odpath::folderOf(drawing);
  return folder.isEmpty() ? name : folder + u'\\' + name;
}

OdString absolute(const OdString& path, const OdString& drawing) {
  return odpath::isRelative(path) ? beside(drawing, path) : path;
}

} // namespace

OdString oddb::findStoredFile(const OdString& path, const OdString& drawing) {
  if (path.isEmpty()) return {};
  const auto isFile = [](const OdString& stored) {
    return QFileInfo(odpath::toPlatform(stored)).isFile();
  };
  const OdString named = absolute(path, drawing);
  if (isFile(named)) return odpath::fromPlatform(named);
  const OdString near = beside(drawing, odpath::fileNameOf(path));
  return isFile(near) ? odpath::fromPlatform(near) : OdString();
}

bool oddb::isNoFile(const OdString& path, const OdString& drawing) {
  if (path.isEmpty()) return false;
  const QFileInfo info(odpath::toPlatform(absolute(path, drawing)));
  return info.exists() && !info.isFile();
}

OdString oddb::givenPath(const OdString& path) {
  const bool hasDrive = path.size() > 1 && path[1] == u':' && path[0].isLetter();
  const bool isNetwork = path.startsWith(QLatin1String("\\\\"));
  return hasDrive || isNetwork ? path : odpath::toPlatform(path);
}
