// What leaders with several lines look like.
#pragma once

#include "drawing/graphics/world_draw.h"

class OdDbKeptTags;

namespace oddb {

/// Shows a MULTILEADER from its tags: lines with their arrows, landings, and its text or block.
void drawMleader(const OdDbKeptTags& tags, const OdDbEntity& entity, OdGiWorldDraw& draw);

} // namespace oddb
