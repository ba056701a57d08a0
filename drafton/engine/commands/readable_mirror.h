// Mirroring texts so that they can still be read.
#pragma once

#include "drawing/entities/entity.h"

namespace drafton {

/// Mirrors an entity, but turns texts and the attributes of inserts: the middle of a text and its
/// base line come to stand as in a mirror, and it can be read. False, and nothing changed, if the
/// entity cannot take the shape.
bool mirrorReadably(OdDbEntity& entity, const OdGeMatrix3d& mirror);

} // namespace drafton
