#include "drafton/render/endless_line.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace drafton {

std::optional<std::pair<double, double>> seenPart(const OdGePoint3d& origin,
                                                  const OdGeVector3d& direction, bool bothWays,
                                                  const Projection& projection,
                                                  const QRectF& rect) {
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  const QPointF from = projection(origin), way = projection(direction);
  double enters = bothWays ? -kEndless : 0, leaves = kEndless;
  const auto cut = [&](double start, double delta, double low, double high) {
    if (delta == 0) return start >= low && start <= high;
    double t0 = (low - start) / delta, t1 = (high - start) / delta;
    if (t0 > t1) std::swap(t0, t1);
    enters = std::max(enters, t0);
    leaves = std::min(leaves, t1);
    return enters <= leaves;
  };
  if (!cut(from.x(), way.x(), rect.left(), rect.right()) ||
      !cut(from.y(), way.y(), rect.top(), rect.bottom()) || !std::isfinite(enters) ||
      !std::isfinite(leaves))
    return std::nullopt;
  return std::pair(enters, leaves);
}

} // namespace drafton
