// Blocks and layouts as short texts.
#pragma once

#include "drawing/database.h"

/// The blocks that have names of their own, with what stands in them:
///   Door at 0,0,0: LINE 0,0,0 10,0,0 & CIRCLE 5,0,0 r1
///   wheel attached: CIRCLE 0,0,0 r4           (overlay, unloaded)
OdString describeBlocks(OdDbDatabase& database);

/// The layouts and the windows on them; the current one has a star:
///   Model
///   *Layout1 420x297 margins 7.5,7.5,7.5,7.5: 10,10 to 200,150 shows 50,25 h70
/// Behind the height stand `off`, `locked` and the frozen layers.
OdString describeLayouts(OdDbDatabase& database);
