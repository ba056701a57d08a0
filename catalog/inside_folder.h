// Whether a file lies below a folder.
#pragma once

#include "frame/string.h"

namespace tc {

/// True if the file lies in the folder or below it, whatever ".." its path holds. Paths that cannot
/// be compared lie outside.
bool isInsideFolder(const OdString& file, const OdString& folder);

} // namespace tc
