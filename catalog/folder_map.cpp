#include "catalog/folder_map.h"

#include "frame/file_path.h"

namespace tc {
namespace {

OdString withoutSeparatorAtEnd(const OdString& folder) {
  OdString stored = odpath::fromPlatform(folder);
  while (stored.endsWith(u'\\')) stored.chop(1);
  return stored;
}

/// The rest of the path behind the folder; nothing if the path does not lie in it.
std::optional<OdString> restBehind(const OdString& folder, const OdString& path) {
  const OdString beginning = withoutSeparatorAtEnd(folder);
  const OdString stored = odpath::fromPlatform(path);
  if (beginning.isEmpty() || !stored.startsWith(beginning, Qt::CaseInsensitive)) return {};
  const OdString rest = stored.mid(beginning.size());
  if (!rest.isEmpty() && !rest.startsWith(u'\\')) return {};
  return rest;
}

} // namespace

std::optional<OdString> movedPath(const OdString& path, const OdTcFolderMap& map) {
  for (const auto& [from, to] : map)
    if (const auto rest = restBehind(from, path)) return withoutSeparatorAtEnd(to) + *rest;
  return {};
}

} // namespace tc
