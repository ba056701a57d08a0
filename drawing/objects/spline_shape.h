// What a curve that is kept by its tags looks like.
#pragma once

#include "drawing/dxf/kept_tags.h"
#include "drawing/graphics/world_draw.h"

namespace oddb {

/// Shows the curve that an entity is beside what else it knows, as a HELIX, from the tags of its
/// spline. Nothing if they do not fit together.
void drawSpline(const OdDbKeptTags& tags, OdGiWorldDraw& draw);

} // namespace oddb
