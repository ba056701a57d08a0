// Rounding and cutting the corners of entities.
#pragma once

#include "drafton/engine/commands/corner_geometry.h"
#include "drafton/engine/selection.h"

#include <functional>

namespace drafton {

/// What FILLET or CHAMFER makes of the corner of two sides; none if there is none.
using CornerMaker =
    std::function<std::optional<Corner>(const CornerSide& first, const CornerSide& second)>;

/// Joins two entities, or two sides of one polyline, at their corner, as one step that can be taken
/// back. Lines and arcs are made to end there if `trims` says so; sides of a polyline always are.
/// Gives what is wrong in words, and then nothing is changed; empty if the corner is there.
OdString joinAtCorner(CommandContext& context, const PickedEntity& first,
                      const PickedEntity& second, const CornerMaker& maker, bool trims);

/// What became of the corners of a polyline.
struct TreatedCorners {
  int treated = 0, left = 0; ///< left: the sides are too short, or curved
};
/// Treats all corners of a polyline. None if the entity is no polyline.
std::optional<TreatedCorners> treatCorners(OdDbObjectId polyline, const CornerMaker& maker);

} // namespace drafton
