// Grips: the places of a chosen entity by which it is moved and stretched.
#pragma once

#include "drawing/entities/entity.h"

#include <vector>

namespace drafton {

struct Grip {
  OdGePoint3d at;
  int number = 0; ///< for moveGrip()
  /// True for an end or a corner: entities are stretched by moving some of these.
  bool isCorner = false;
};

/// Ends, corners, middles, centres and insertion points, by the kind of the entity; empty for kinds
/// that have none.
std::vector<Grip> gripsOf(const OdDbEntity& entity);

/// Moves one grip of an entity that is open for writing, or in no drawing: a middle, a centre or an
/// insertion point takes all of the entity with it, others stretch it. False, and nothing changed,
/// if the entity cannot take the shape.
bool moveGrip(OdDbEntity& entity, int number, const OdGePoint3d& to);

} // namespace drafton
