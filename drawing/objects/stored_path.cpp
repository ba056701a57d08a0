#include "drawing/objects/stored_path.h"

#include "frame/file_path.h"

#include <QFileInfo>

OdString oddb::findStoredFile(const OdString& path, const OdString& drawing) {
  if (path.isEmpty()) return {};
  const OdString folder = odpath::folderOf(drawing);
  const auto isFile = [](const OdString& stored) {
    return QFileInfo(odpath::toPlatform(stored)).isFile();
  };
  const auto beside = [&](const OdString& name) {
    return folder.isEmpty() ? name : folder + u'\\' + name;
  };
  const OdString named = odpath::isRelative(path) ? beside(path) : path;
  if (isFile(named)) return named;
  const OdString near = beside(odpath::fileNameOf(path));
  return isFile(near) ? near : OdString();
}
