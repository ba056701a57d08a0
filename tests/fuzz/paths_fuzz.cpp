// Feeds any text to the operations on stored paths. What is collapsed for a file has to come back,
// a path in normal form has no part that leads to itself, and no operation runs without end.
#include "persistence/path_operations.h"
#include "support/test_host.h"

#include <cstdlib>

using namespace tc;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void check(const OdString& path, const OdString& base) {
  require(expandedStoredPath(collapsedStoredPath(path)) == path ||
          path != expandedStoredPath(path)); // a path with a macro is no path yet

  OdString normal = path;
  normalizePath(normal);
  require(normal.size() <= path.size());
  require(!normal.contains(QLatin1String("\\.\\")));

  OdString name = path;
  cleanFileName(name);
  OdString again = name;
  cleanFileName(again);
  require(again == name);

  for (const OdString& part : splitPathList(path)) require(!part.contains(u';'));
  combinePath(path, base);
  OdString relative;
  if (makeRelativePath(path, base, relative)) require(!relative.isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  auto& settings = testhost::host().application.settings;
  settings[QStringLiteral("Shx")] = QStringLiteral("C:\\f1;C:\\f2");
  settings[QStringLiteral("ToolPaletteDir")] = QStringLiteral("C:\\a;C:\\b");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const OdString text =
      OdString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const qsizetype end = text.indexOf(u'\n');
  check(end < 0 ? text : text.left(end), end < 0 ? OdString() : text.mid(end + 1));
  return 0;
}
