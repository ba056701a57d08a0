#include "catalog/inside_folder.h"

#include "frame/file_path.h"
#include "persistence/path_operations.h"

namespace tc {
namespace {

OdString normal(const OdString& path) {
  OdString result = odpath::fromPlatform(path);
  normalizePath(result);
  return result;
}

} // namespace

bool isInsideFolder(const OdString& file, const OdString& folder) {
  OdString relative;
  if (!makeRelativePath(normal(file), normal(folder), relative)) return false;
  return relative.split(u'\\').indexOf(QLatin1String("..")) < 0;
}

} // namespace tc
