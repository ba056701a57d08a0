// The room that a text takes.
#pragma once

#include "drafton/engine/boundary/flat_segment.h"
#include "drawing/graphics/world_draw.h"

namespace drafton {

/// Four sides around runs of text as they are seen from above, turned with the first run, with some
/// room; in coordinates that have `origin` at 0. Empty if there is nothing to read.
OdGeCurveSegments textBox(const std::vector<OdGiTextRun>& runs, const OdGePoint3d& origin);

} // namespace drafton
