// Moving entities together with their extended data.
#pragma once

#include "drawing/entities/entity.h"

namespace oddb {

/// As transformBy(), and takes the places, displacements, directions, distances and scale factors
/// along that applications keep with the entity. False, and nothing is changed, if its shape is
/// impossible.
bool transformWithXData(OdDbEntity& entity, const OdGeMatrix3d& transform);
/// Only what applications keep: for an entity that was moved already.
void transformXData(OdDbEntity& entity, const OdGeMatrix3d& transform);

} // namespace oddb
