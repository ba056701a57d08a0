// Reads any bytes as a palette and as a catalog with all the classes of the module, and saves what
// came of it. From the first save on the bytes have to stay the same, but for the attributes of the
// root element, which are never read back.
#include "catalog/catalog.h"
#include "catalog/database.h"
#include "host/integration/editor_reactor.h"
#include "host/integration/editor_reactor_ex.h"
#include "module/entry/class_table.h"
#include "module/entry/singletons.h"
#include "persistence/filer.h"
#include "support/test_host.h"

#include <cstdlib>

using namespace tc;

namespace {

using Open = bool (OdTcFiler::*)(OdStreamBuf*, OdTcPersist*, bool);

struct Kind {
  OdTcFilerPtr (*makeFiler)();
  Open open;
  OdTcPersistPtr (*makeRoot)();
};
const Kind kKinds[] = {
    {&makePaletteFiler, &OdTcFiler::openPalette,
     [] { return OdTcPersistPtr(OdTcDatabase::createObject()); }},
    {&makeCatalogFiler, &OdTcFiler::openCatalog,
     [] { return OdTcPersistPtr(OdTcCatalog::createObject()); }},
};

void require(bool holds) {
  if (!holds) std::abort();
}

/// What a save writes after the bytes were read; empty if they were refused.
QByteArray savedAgain(const Kind& kind, const QByteArray& bytes) {
  const OdTcPersistPtr root = kind.makeRoot();
  const OdTcFilerPtr reader = kind.makeFiler(), writer = kind.makeFiler();
  if (!((*reader).*kind.open)(odrxMake<OdMemoryStream>(bytes), root, false)) {
    require(!reader->problem().isEmpty());
    return {};
  }
  const auto out = odrxMake<OdMemoryStream>();
  require(((*writer).*kind.open)(out, root, true));
  writer->flush();
  return out->bytes();
}

/// What follows the tag of the root element.
QByteArray contentOf(const QByteArray& document) { return document.mid(document.indexOf('>')); }

void startModule() {
  registerModuleClasses();
  TcEditorReactor::rxInit(nullptr);
  TcEditorReactorEx::rxInit(nullptr);
  createSingletons();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  startModule();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const Kind& kind : kKinds) {
    const QByteArray first = savedAgain(kind, bytes);
    // Half a flyout shifts the texts of the next one, wherever that is.
    if (!first.isEmpty() && !bytes.contains("Flyout"))
      require(contentOf(savedAgain(kind, first)) == contentOf(first));
  }
  testhost::host().log.clear();
  return 0;
}
