// Where the files lie that tools bring in.
#pragma once

#include "module/persist.h"

namespace tc {

/// The stored path of a tool's source file. A relative one is looked for from the folder of the
/// palette's file, so that a catalog moves with its drawings; where there is no such file, or no
/// palette, the path stands as it is.
OdString sourceFromPalette(const OdTcPersist& agent, const OdString& path);

} // namespace tc
