// Hatches as short texts.
#pragma once

#include "drawing/database.h"

/// The hatches of the model space and the number of all entities:
///   5 entities
///   HATCH SOLID area80 loops1 outer assoc4 color7
/// Behind the name stands what its fill has: `scale2 angle45`, `double`, or the gradient's values.
/// `assoc` tells the number of sources.
OdString describeHatches(OdDbDatabase& database);
