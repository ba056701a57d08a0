// Files that go with a copy of a catalog.
#pragma once

#include "frame/string.h"

namespace tpal {

/// Copies a file to a place where there may be a former one, in one step; one of the same content
/// stays. Folders are made. Gives why that failed; empty if all is well.
OdString bringFile(const OdString& from, const OdString& to);

} // namespace tpal
