#include "tpal/brought_file.h"

#include "frame/error.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QFile>

namespace tpal {
namespace {

bool isSameContent(const OdString& a, const OdString& b) {
  constexpr qint64 kPiece = 1 << 16;
  QFile first(odpath::toPlatform(a));
  QFile second(odpath::toPlatform(b));
  if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) ||
      first.size() != second.size())
    return false;
  while (!first.atEnd())
    if (first.read(kPiece) != second.read(kPiece)) return false;
  return true;
}

} // namespace

OdString bringFile(const OdString& from, const OdString& to) {
  if (isSameContent(from, to)) return {};
  OdRxSystemServices* const services = odrxSystemServices();
  services->createFolder(odpath::folderOf(to));
  const OdString fresh = to + QLatin1String(".new");
  if (services->fileExists(fresh)) services->removeFile(fresh);
  OdString problem;
  try {
    services->copyFile(from, fresh);
    if (services->replaceFile(fresh, to)) return {};
    problem = QStringLiteral("the file cannot be replaced");
  } catch (const OdFileError& error) {
    problem = error.reason();
  }
  if (services->fileExists(fresh)) services->removeFile(fresh);
  return problem;
}

} // namespace tpal
