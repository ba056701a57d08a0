#include "persistence/unread_original.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/path_operations.h"

namespace tc {
namespace {

/// A path in the folder that no file has yet: the name itself or, if it is taken, with a number.
OdString freePath(const OdString& folder, const OdString& original) {
  const OdString extension = odpath::extensionOf(original);
  const OdString title = odpath::titleOf(original);
  const OdString end = extension.isEmpty() ? OdString() : u'.' + extension;
  OdString path = folder + u'\\' + title + end;
  for (int number = 2; odrxSystemServices()->fileExists(path); ++number)
    path = QStringLiteral("%1\\%2 (%3)%4").arg(folder, title, OdString::number(number), end);
  return path;
}

} // namespace

void reportUnreadFile(const OdString& path, const OdString& reason) {
  host::print(QStringLiteral("\n") +
              host::translate(QStringLiteral("Error: cannot read file %1: %2")).arg(path, reason));
}

void keepUnreadOriginal(const OdString& path) {
  OdRxSystemServices* const services = odrxSystemServices();
  if (!services->fileExists(path)) return;
  if (!host::application())
    throw OdFileError(eFileAccess, path,
                      host::translate(QStringLiteral("there is no folder to keep it in")));
  const OdString folder = baseFolder() + QStringLiteral("\\Unread");
  if (!services->folderExists(folder) && !services->createFolder(folder))
    throw OdFileError(eFileAccess, folder,
                      host::translate(QStringLiteral("the folder cannot be made")));
  const OdString copy = freePath(folder, path);
  services->copyFile(path, copy);
  host::print(QStringLiteral("\n") +
              host::translate(QStringLiteral("The file %1, which could not be read, is kept as %2"))
                  .arg(path, copy));
}

} // namespace tc
