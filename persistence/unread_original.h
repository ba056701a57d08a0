// Files that could not be read are not lost when something is saved over them.
#pragma once

#include "frame/string.h"

namespace tc {

/// Tells the user on the command line that a catalog or palette file could not be read, with its
/// name and the reason.
void reportUnreadFile(const OdString& path, const OdString& reason);

/// Copies the file into the folder `Unread` of the module's base folder, under a name that is not
/// taken, and says so on the command line. Raises OdFileError if the copy fails: the original must
/// then not be overwritten. A file that does not exist needs no copy.
void keepUnreadOriginal(const OdString& path);

} // namespace tc
