// Paths of files that drawings refer to. Not for use outside of the library.
#pragma once

#include "frame/string.h"

namespace oddb {

/// The file that a path of a drawing stands for, in the stored form: the path itself, taken from
/// the drawing's folder if it is relative, or a file of its name in that folder. Empty if there is
/// none; `drawing` may be empty. Whoever asks gets what the drawing shows: DXF keeps no list of the
/// files that a drawing depended on, so that there is no other record of what stood behind a path.
OdString findStoredFile(const OdString& path, const OdString& drawing);

/// True if something else stands where the path points to: a folder, a device or a pipe.
bool isNoFile(const OdString& path, const OdString& drawing);

/// The form in which a drawing gets the path of a file: that of the platform, since other programs
/// here look for the file too. What has a drive letter or names another computer's folder belongs
/// to another platform and stays.
OdString givenPath(const OdString& path);

} // namespace oddb
