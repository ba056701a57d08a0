#include "catalog/write_file.h"

namespace tc {

bool writeFile(const OdString& path, Oda::FileCreationDisposition creation, OdTcFiler& filer,
               OdTcPersist* root, bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool)) {
  const OdStreamBufPtr stream =
      odrxSystemServices()->createFile(path, Oda::kFileWrite, Oda::kShareDenyNo, creation);
  if (!(filer.*open)(stream, root, true)) return false;
  filer.flush();
  stream->flush();
  return true;
}

Oda::FileCreationDisposition creationFor(const OdString& path) {
  return odrxSystemServices()->fileExists(path) ? Oda::kTruncateExisting : Oda::kCreateAlways;
}

} // namespace tc
