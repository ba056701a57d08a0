// Paths of files that drawings refer to. Not for use outside of the library.
#pragma once

#include "frame/string.h"

namespace oddb {

/// The file that a stored path stands for: the path itself, taken from the drawing's folder if it
/// is relative, or a file of its name in that folder. Empty if there is none; `drawing` may be
/// empty. Whoever asks gets what the drawing shows: DXF keeps no list of the files that a drawing
/// depended on, so that there is no other record of what stood behind a path.
OdString findStoredFile(const OdString& path, const OdString& drawing);

/// True if something else stands where the path points to: a folder, a device or a pipe.
bool isNoFile(const OdString& path, const OdString& drawing);

} // namespace oddb
