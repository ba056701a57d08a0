// Feeds any bytes to the reader of drawings. Beyond crashes it looks for two broken promises: what
// was read can be saved and read again; and, if nothing was left out, saves give the same bytes.
// Tags in a place where they mean nothing come to another one with the first save, where they may
// be taken for something else or for nothing: from the second one on all is quiet.
#include "drawing/database.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArrayView bytes(data, static_cast<qsizetype>(size));
  try {
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(bytes, QStringLiteral("fuzz.dxf"));
    const QByteArray first = db->writeDxf();
    const OdDbDatabasePtr back = OdDbDatabase::readDxf(first, QStringLiteral("saved.dxf"));
    const QByteArray second = back->writeDxf();
    const OdDbDatabasePtr again = OdDbDatabase::readDxf(second, QStringLiteral("again.dxf"));
    const QByteArray third = again->writeDxf();
    if (db->unknownContent().isEmpty() && third != second) std::abort();
  } catch (const OdFileError&) {
    // A clear refusal.
  }
  return 0;
}
