// Paths as the system stores them, and as the platform wants them.
#pragma once

#include "frame/string.h"

/// Operations on stored paths. A stored path is text with `\` between its folders, since catalogs
/// travel between systems; `/` is understood as well. Nothing else in the code asks what platform
/// it runs on.
namespace odpath {

/// The form that the platform's file functions take.
OdString toPlatform(const OdString& path);
/// The stored form of a path that came from the platform.
OdString fromPlatform(const OdString& path);
/// True unless the path starts with a separator or with a drive letter and a colon.
bool isRelative(const OdString& path);
/// Everything before the last separator; empty if there is none.
OdString folderOf(const OdString& path);
/// Everything behind the last separator.
OdString fileNameOf(const OdString& path);
/// The file name without its last extension.
OdString titleOf(const OdString& path);
/// The last extension in lower case, without the dot; empty if there is none.
OdString extensionOf(const OdString& path);
/// True if both name the same place, whatever their separators, `.` and `..` parts and, where the
/// platform's file system ignores it, case.
bool samePlace(const OdString& a, const OdString& b);

} // namespace odpath
