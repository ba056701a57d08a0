#include "drafton/engine/flat_geometry.h"

#include <algorithm>

namespace drafton {
namespace {

/// Above 0 if `p` lies to the left of the way from `a` to `b`.
double side(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& p) {
  return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

bool isWithin(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& p) {
  return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
         p.y <= std::max(a.y, b.y);
}

} // namespace

double distanceToPiece(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& p) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double length = dx * dx + dy * dy;
  const double t =
      length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0;
  return p.distanceTo({a.x + t * dx, a.y + t * dy});
}

bool piecesCross(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& c,
                 const OdGePoint2d& d) {
  const double ca = side(c, d, a), cb = side(c, d, b);
  const double ac = side(a, b, c), ad = side(a, b, d);
  return ((ca > 0 && cb < 0) || (ca < 0 && cb > 0)) && ((ac > 0 && ad < 0) || (ac < 0 && ad > 0));
}

bool piecesMeet(const OdGePoint2d& a, const OdGePoint2d& b, const OdGePoint2d& c,
                const OdGePoint2d& d) {
  if (piecesCross(a, b, c, d)) return true;
  return (side(c, d, a) == 0 && isWithin(c, d, a)) || (side(c, d, b) == 0 && isWithin(c, d, b)) ||
         (side(a, b, c) == 0 && isWithin(a, b, c)) || (side(a, b, d) == 0 && isWithin(a, b, d));
}

bool isInRings(std::span<const std::vector<OdGePoint2d>> rings, const OdGePoint2d& point) {
  bool inside = false;
  for (const std::vector<OdGePoint2d>& ring : rings)
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const OdGePoint2d &a = ring[i - 1], &b = ring[i];
      if ((a.y > point.y) == (b.y > point.y)) continue;
      if (point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) inside = !inside;
    }
  return inside;
}

} // namespace drafton
