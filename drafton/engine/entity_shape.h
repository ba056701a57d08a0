// What is seen of an entity in the plane of the screen, for choosing it.
#pragma once

#include "drawing/entities/entity.h"

#include <vector>

namespace drafton {

/// Corners in the plane; a closed one ends where it begins.
using Outline = std::vector<OdGePoint2d>;

/// A box in the plane; empty before its first point.
struct FlatBox {
  OdGePoint2d low{1e308, 1e308}, high{-1e308, -1e308};

  bool isEmpty() const { return low.x > high.x; }
  void add(const OdGePoint2d& p);
  bool contains(const OdGePoint2d& p, double tolerance = 0) const;
  bool contains(const FlatBox& other, double tolerance = 0) const;
  bool meets(const FlatBox& other) const;
};

/// The pieces that an entity shows, seen from above. Curves stand as chords that leave them by no
/// more than what shapeOf() was asked for.
struct EntityShape {
  std::vector<Outline> lines;              ///< pieces without an inside
  std::vector<std::vector<Outline>> areas; ///< rings; what is in an odd number of them is filled
  FlatBox box;                             ///< around all of it, around curves exactly

  bool isEmpty() const { return lines.empty() && areas.empty(); }
};

/// What has no shape of its own is given as its box, filled. `deviation` is in drawing units.
EntityShape shapeOf(const OdDbEntity& entity, double deviation);

/// The distance of a point from a shape, 0 inside a filled one; infinite without pieces.
double distanceTo(const EntityShape& shape, const OdGePoint2d& point);

inline OdGePoint2d flat(const OdGePoint3d& point) { return {point.x, point.y}; }

} // namespace drafton
