#include "drafton/engine/commands/circle_geometry.h"

namespace drafton {

std::optional<Circle2d> circleThrough(const OdGePoint3d& a, const OdGePoint3d& b,
                                      const OdGePoint3d& c) {
  // Against the first point, so that places far from the origin lose no digits.
  const double bx = b.x - a.x;
  const double by = b.y - a.y;
  const double cx = c.x - a.x;
  const double cy = c.y - a.y;
  const double area = 2 * (bx * cy - by * cx);
  const double bb = bx * bx + by * by;
  const double cc = cx * cx + cy * cy;
  constexpr double kFlat = 1e-12;
  if (std::abs(area) <= kFlat * (bb + cc)) return std::nullopt;
  const double x = (cy * bb - by * cc) / area;
  const double y = (bx * cc - cx * bb) / area;
  return Circle2d{{a.x + x, a.y + y, a.z}, std::hypot(x, y)};
}

std::optional<Circle2d> circleOnDiameter(const OdGePoint3d& a, const OdGePoint3d& b) {
  const double radius = std::hypot(b.x - a.x, b.y - a.y) / 2;
  if (radius == 0) return std::nullopt;
  return Circle2d{{(a.x + b.x) / 2, (a.y + b.y) / 2, a.z}, radius};
}

} // namespace drafton
