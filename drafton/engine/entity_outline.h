// Entities as straight pieces in the plane of the screen, for choosing them.
#pragma once

#include "drawing/entities/entity.h"

#include <vector>

namespace drafton {

/// The visible line of an entity: corners joined by straight pieces; round ones are cut into pieces
/// that leave them by less than a thousandth of their radius. What has no line of its own, such as
/// a text, is given as the box around it and counts as filled.
struct EntityOutline {
  std::vector<OdGePoint2d> points;
  bool isFilled = false;
};
EntityOutline outlineOf(const OdDbEntity& entity);

/// The distance of a point from the outline, 0 inside a filled one; infinite without points.
double distanceTo(const EntityOutline& outline, const OdGePoint3d& point);
/// True if the outline meets the box.
bool meetsBox(const EntityOutline& outline, const OdGeExtents3d& box);

} // namespace drafton
