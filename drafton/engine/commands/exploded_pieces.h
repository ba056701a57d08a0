// Putting what an entity was exploded into in its place.
#pragma once

#include "drawing/database.h"

namespace drafton {

/// Appends the pieces of `whole`. Leaders among the pieces of an insert lead to the copies of their
/// notes, hatches follow the copies of their boundaries; what was left behind is let go.
void appendPieces(OdDbBlockTableRecord& space, const OdDbEntity& whole,
                  const std::vector<OdDbEntityPtr>& pieces);

/// Why an insert cannot be exploded: which kind of entity in its block cannot take its shape. Empty
/// if that is not the reason.
OdString explodingFault(const OdDbEntity& whole);

} // namespace drafton
