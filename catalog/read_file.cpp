#include "catalog/read_file.h"

#include "frame/system_services.h"
#include "persistence/path_macros.h"
#include "persistence/unread_original.h"

namespace tc {

ReadOutcome readFile(const OdString& path, OdTcFiler& filer, OdTcPersist* root,
                     bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool)) {
  const HeldPathMacros heldMacros(path);
  ReadOutcome outcome;
  try {
    const OdStreamBufPtr stream = odrxSystemServices()->createFile(
        path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting);
    outcome.isRead = (filer.*open)(stream, root, false);
    outcome.problem = filer.problem();
  } catch (const OdFileError& error) {
    // What is wrong inside a file the filer tells; this one could not even be opened.
    outcome.problem = error.reason();
    reportUnreadFile(path, outcome.problem);
  }
  return outcome;
}

} // namespace tc
