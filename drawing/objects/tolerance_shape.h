// What frames of tolerances look like.
#pragma once

#include "drawing/graphics/world_draw.h"

class OdDbDatabase;
class OdDbKeptTags;

namespace oddb {

/// Shows a TOLERANCE from its tags: rows of cells in frames, of the size and in the colours of its
/// dimension style.
void drawTolerance(const OdDbKeptTags& tags, const OdDbDatabase& database, OdGiWorldDraw& draw);

} // namespace oddb
