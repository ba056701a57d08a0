// What chosen objects enclose.
#pragma once

#include "drafton/engine/boundary/boundary_sources.h"

namespace drafton {

/// The loops of objects, the outer ones first: each closed object is one of its own, open ones are
/// joined where they meet or come as near as `gap`. Objects on each other make islands as `style`
/// says, chosen texts are kept free.
BoundaryLoops loopsWithin(const BoundarySources& objects, IslandStyle style, double gap);

/// The middle of the box around some entities, at the height of its bottom; the origin without any.
OdGePoint3d middleOf(const std::vector<OdDbObjectId>& entities);

} // namespace drafton
