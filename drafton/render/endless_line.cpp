#include "drafton/render/endless_line.h"

#include "drafton/render/thin_lines.h"

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
  if (!narrowTo(rect, from, way, enters, leaves) || !std::isfinite(enters) ||
      !std::isfinite(leaves))
    return std::nullopt;
  return std::pair(enters, leaves);
}

} // namespace drafton
