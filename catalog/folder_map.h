// Folders that have moved.
#pragma once

#include "frame/string.h"

#include <optional>
#include <utility>
#include <vector>

namespace tc {

/// Folders at the start of paths and what takes their place, in order; the first that fits counts.
/// Compared without regard to case and to the kind of separator.
using OdTcFolderMap = std::vector<std::pair<OdString, OdString>>;

/// Where a path leads once its folder has moved; nothing if it lies in none of these.
std::optional<OdString> movedPath(const OdString& path, const OdTcFolderMap& map);

} // namespace tc
