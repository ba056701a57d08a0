#include "tools/tool_source.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "images/image_home.h"
#include "persistence/path_operations.h"

namespace tc {

OdString sourceFromPalette(const OdTcPersist& agent, const OdString& path) {
  if (path.isEmpty() || !odpath::isRelative(path)) return path;
  const OdString palette = imageHomePath(agent.database());
  if (palette.isEmpty()) return path;
  const OdString beside = combinePath(path, palette);
  return odrxSystemServices()->fileExists(beside) ? beside : path;
}

} // namespace tc
