// What several parallel lines in one look like.
#pragma once

#include "drawing/dxf/kept_tags.h"
#include "drawing/graphics/world_draw.h"

class OdDbDatabase;

namespace oddb {

/// Shows an MLINE from its tags: where its lines run stands among them, how they look in its style.
void drawMline(const OdDbKeptTags& tags, const OdDbDatabase& database, OdGiWorldDraw& draw);

} // namespace oddb
