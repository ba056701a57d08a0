// Where a flat entity lies, and how high it rises.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/seldom.h"

/// The thickness of an entity and the normal of its plane. Nearly all have 0 and the z axis, which
/// takes no room.
class OdDbExtrusion {
 public:
  double thickness() const { return m_parts->thickness; }
  void setThickness(double thickness) { m_parts.set(&Parts::thickness, thickness); }
  const OdGeVector3d& normal() const { return m_parts->normal; }
  void setNormal(const OdGeVector3d& normal) { m_parts.set(&Parts::normal, normal); }
  /// From the plane to its parallel.
  OdGeVector3d rise() const { return normal() * thickness(); }
  bool operator==(const OdDbExtrusion&) const = default;

 private:
  struct Parts {
    double thickness = 0;
    OdGeVector3d normal = OdGeVector3d::zAxis();
    bool operator==(const Parts&) const = default;
  };
  OdDbSeldom<Parts> m_parts;
};
