// Feeds any bytes to the reader of drawings. Beyond crashes it looks for two broken promises: what
// was read can be saved and read again, and saving that gives the same bytes.
#include "drawing/database.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, static_cast<qsizetype>(size));
  try {
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(bytes, QStringLiteral("fuzz.dxf"));
    const QByteArray first = db->writeDxf();
    const OdDbDatabasePtr back = OdDbDatabase::readDxf(first, QStringLiteral("saved.dxf"));
    if (back->writeDxf() != first) std::abort();
  } catch (const OdFileError&) {
    // A clear refusal.
  }
  return 0;
}
