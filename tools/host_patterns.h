// The hatch patterns that the host has.
#pragma once

#include "frame/string.h"

namespace tc {

/// False if the host has no pattern of that name, neither in the file, which may be empty, nor
/// among its own. Without a host that shows patterns nobody knows which it has, and all count as
/// known.
bool isPatternKnown(const OdString& name, const OdString& file);

} // namespace tc
