#include "catalog/configured_folders.h"

#include "frame/file_path.h"
#include "persistence/path_operations.h"
#include "persistence/value_storage.h"

#include <QSet>

namespace tc {

OdString catalogKey(const OdString& path) {
  OdString key = odpath::fromPlatform(path);
  // A path on another machine begins with two separators, and keeps them.
  const qsizetype start = key.startsWith(QLatin1String("\\\\")) ? 1 : 0;
  for (qsizetype at; (at = key.indexOf(QLatin1String("\\\\"), start)) >= 0;) key.remove(at, 1);
  normalizePath(key);
  return key;
}

OdString catalogKeyOfFolder(const OdString& folder) {
  return catalogKey(folder + u'\\' + OdString::fromUtf16(kCatalogFileName));
}

QStringList configuredCatalogFiles() {
  const OdTcValueStorageImpl* const storage = OdTcValueStorageImpl::instance();
  const OdString setting = storage ? storage->toolPaletteFolders() : OdString();
  const QStringList folders = splitPathList(setting);
  // A setting without separators is one folder, even if it is blank; in a list blanks are none.
  const bool isList = setting.contains(u';');
  QStringList files;
  QSet<OdString> known;
  for (const OdString& part : folders) {
    const OdString folder = part.trimmed();
    if (folder.isEmpty() && isList) continue;
    const OdString file = catalogKeyOfFolder(folder);
    if (known.contains(file)) continue;
    known.insert(file);
    files << file;
  }
  return files;
}

} // namespace tc
