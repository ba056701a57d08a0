// What an entity offers to object snaps.
#pragma once

#include "drafton/desktop/object_snap.h"
#include "drawing/geometry/curve_segment.h"

#include <vector>

namespace drafton {

/// Adds the pieces of curves that an entity shows, and the places that it offers by itself (nodes
/// and insertion points), with those of entities within blocks.
void appendSnapParts(const OdDbEntity& entity, OdGeCurveSegments& segments,
                     std::vector<Snap>& places);

/// Adds the places that follow from one piece of a curve and the question.
void appendSegmentSnaps(const OdGeCurveSegment& segment, const SnapQuestion& question,
                        std::vector<Snap>& places);

} // namespace drafton
