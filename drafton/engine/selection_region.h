// The regions by which users choose: windows, polygons, fences.
#pragma once

#include "drafton/engine/entity_shape.h"

namespace drafton {

/// A part of the plane that a user has drawn.
class SelectionRegion {
 public:
  static SelectionRegion window(const OdGePoint3d& a, const OdGePoint3d& b);
  /// The last corner is joined to the first. Three corners at least.
  static SelectionRegion polygon(const std::vector<OdGePoint3d>& corners);
  /// A line that has no inside. Two points at least.
  static SelectionRegion fence(const std::vector<OdGePoint3d>& points);

  const FlatBox& box() const { return m_box; }
  /// All of the shape lies inside; on the border counts.
  bool contains(const EntityShape& shape) const;
  /// Something of the shape lies inside or on the border.
  bool meets(const EntityShape& shape) const;
  /// How fine shapes have to be for this region.
  double deviation() const;

 private:
  enum class Kind { kWindow, kPolygon, kFence };
  SelectionRegion(Kind kind, Outline outline);

  bool isInside(const OdGePoint2d& point) const;
  bool meets(const Outline& line) const;

  Kind m_kind;
  std::vector<Outline> m_outline; ///< one; closed unless it is a fence
  FlatBox m_box;
  double m_tolerance;
};

} // namespace drafton
