// Finding curves by place.
#pragma once

#include "drafton/engine/boundary/flat_segment.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace drafton {

/// The boxes of curves in a tree. Curves are told by their place in the list that the tree was made
/// from.
class CurveIndex {
 public:
  explicit CurveIndex(std::span<const OdGeCurveSegment> curves);
  ~CurveIndex();

  /// The curves whose boxes are within `reach` of a box, in no order.
  std::vector<std::uint32_t> in(const OdGeExtents3d& box, double reach = 0) const;
  /// Takes each two curves whose boxes come within `reach` of each other.
  void forEachPair(double reach,
                   const std::function<void(std::uint32_t a, std::uint32_t b)>& take) const;
  /// The curves whose boxes are nearest to a point.
  std::vector<std::uint32_t> nearest(const OdGePoint3d& point, unsigned count) const;

 private:
  struct Tree;
  std::unique_ptr<Tree> m_tree;
};

} // namespace drafton
