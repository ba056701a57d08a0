// Boxes around things.
#pragma once

#include "drawing/geometry/geometry.h"

#include <algorithm>
#include <limits>

/// The smallest box along the axes around some points; empty before the first one.
class OdGeExtents3d {
 public:
  OdGeExtents3d() = default;

  bool isEmpty() const { return m_min.x > m_max.x; }
  /// Lower and upper corner; without meaning while the box is empty.
  const OdGePoint3d& minPoint() const { return m_min; }
  const OdGePoint3d& maxPoint() const { return m_max; }
  void addPoint(const OdGePoint3d& p) {
    m_min = {std::min(m_min.x, p.x), std::min(m_min.y, p.y), std::min(m_min.z, p.z)};
    m_max = {std::max(m_max.x, p.x), std::max(m_max.y, p.y), std::max(m_max.z, p.z)};
  }
  void addExt(const OdGeExtents3d& other) {
    if (other.isEmpty()) return;
    addPoint(other.m_min);
    addPoint(other.m_max);
  }
  bool operator==(const OdGeExtents3d&) const = default;

 private:
  static constexpr double kFar = std::numeric_limits<double>::infinity();
  OdGePoint3d m_min{kFar, kFar, kFar};
  OdGePoint3d m_max{-kFar, -kFar, -kFar};
};
