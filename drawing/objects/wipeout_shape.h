// Areas that cover what is drawn before them.
#pragma once

#include "drawing/dxf/kept_tags.h"
#include "drawing/graphics/world_draw.h"

class OdDbDatabase;

namespace oddb {

/// Shows a WIPEOUT from its tags, as an area in the colour of the ground, with a frame if the
/// drawing shows such frames.
void drawWipeout(const OdDbKeptTags& tags, const OdDbDatabase& database, OdGiWorldDraw& draw);

} // namespace oddb
