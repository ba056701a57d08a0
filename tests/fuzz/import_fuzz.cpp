// Imports any bytes as a palette of another program, in earnest and as a dry run, and exports what
// came of it. A refused import leaves the catalog's folder as it was; one that went through can be
// read again, and its export can be imported.
#include "catalog/catalog.h"
#include "catalog/palette_export.h"
#include "frame/file_path.h"
#include "host/integration/editor_reactor.h"
#include "host/integration/editor_reactor_ex.h"
#include "module/entry/class_table.h"
#include "module/entry/singletons.h"
#include "support/test_host.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

using namespace tc;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

QTemporaryDir& folder() {
  static QTemporaryDir made;
  return made;
}

OdString path(const char* name) {
  return odpath::fromPlatform(folder().filePath(QLatin1String(name)));
}

int filesBelow(const char* name) {
  QDirIterator files(folder().filePath(QLatin1String(name)), QDir::Files | QDir::Hidden,
                     QDirIterator::Subdirectories);
  int count = 0;
  for (; files.hasNext(); files.next()) ++count;
  return count;
}

/// A catalog of its own, so that no name and no file is in the way.
OdTcCatalogPtr freshCatalog() {
  QDir(folder().filePath(QStringLiteral("c"))).removeRecursively();
  QDir(folder().path()).mkdir(QStringLiteral("c"));
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->load(path("c/DrfTcCatalog.dtc"));
  return catalog;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  registerModuleClasses();
  TcEditorReactor::rxInit(nullptr);
  TcEditorReactorEx::rxInit(nullptr);
  createSingletons();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  QFile file(folder().filePath(QStringLiteral("p.xtp")));
  require(file.open(QIODevice::WriteOnly));
  file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  file.close();

  const OdTcCatalogPtr catalog = freshCatalog();
  OdTcImportOptions options;
  options.convertCommands = size % 2 == 0;
  options.dryRun = true;
  OdTcImportReport tried, done;
  const bool isPossible = !catalog->importPalette(path("p.xtp"), options, tried).isNull();
  require(filesBelow("c") == 0);
  options.dryRun = false;
  const OdTcToolPalettePtr palette = catalog->importPalette(path("p.xtp"), options, done);
  require(isPossible == !palette.isNull());
  require(tried.tools.size() == done.tools.size());
  if (palette) {
    const OdTcCatalogPtr again = OdTcCatalog::createObject();
    require(again->load(catalog->path()) && again->findPalette(palette->id()));
    require(exportPalette(*palette, path("out.xtp")).problem.isEmpty());
    require(!freshCatalog()->importPalette(path("out.xtp"), {}, done).isNull());
  } else {
    require(!done.problem.isEmpty() && filesBelow("c") == 0);
  }
  testhost::host().log.clear();
  testhost::host().messages.printed.clear();
  testhost::host().messages.boxes.clear();
  return 0;
}
