// Locks that other programs hold on files.
#pragma once

#include "frame/string.h"

namespace odpath {

/// True if somebody has locked the file of a stored path, or a part of it, for themselves alone.
/// Locks that readers share do not count, nor do those of files that cannot be opened.
bool isLockedByOthers(const OdString& path);

} // namespace odpath
