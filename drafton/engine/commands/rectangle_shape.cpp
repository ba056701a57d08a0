#include "drafton/engine/commands/rectangle_shape.h"

#include <algorithm>

namespace drafton {
namespace {

/// What is taken from the sides at a corner.
struct CornerCut {
  double before = 0, behind = 0;
  double bulge = 0;
  bool isNone() const { return before == 0 && behind == 0; }
};

CornerCut cornerCutOf(const RectangleModes& modes) {
  // The bulge of a quarter circle.
  if (modes.fillet > 0) return {modes.fillet, modes.fillet, std::tan(kOdaPi / 8)};
  return {modes.chamferBefore, modes.chamferBehind, 0};
}

OdGePoint2d towards(const OdGePoint2d& from, const OdGePoint2d& to, double distance) {
  const double whole = from.distanceTo(to);
  return {from.x + (to.x - from.x) * distance / whole, from.y + (to.y - from.y) * distance / whole};
}

} // namespace

RectangleSides sidesBetween(const OdGePoint3d& corner, const OdGePoint3d& opposite,
                            double rotation) {
  const double dx = opposite.x - corner.x;
  const double dy = opposite.y - corner.y;
  if (rotation == 0) return {dx, dy}; // exact
  const double c = std::cos(rotation);
  const double s = std::sin(rotation);
  return {dx * c + dy * s, dy * c - dx * s};
}

std::vector<OdDbPolyline::Vertex> rectangleOutline(const OdGePoint3d& corner,
                                                   const RectangleSides& sides,
                                                   const RectangleModes& modes) {
  const double c = std::cos(modes.rotation);
  const double s = std::sin(modes.rotation);
  const auto at = [&](double x, double y) {
    return OdGePoint2d{corner.x + x * c - y * s, corner.y + x * s + y * c};
  };
  const OdGePoint2d corners[4] = {at(0, 0), at(sides.length, 0), at(sides.length, sides.width),
                                  at(0, sides.width)};
  const CornerCut cut = cornerCutOf(modes);
  const double shorter = std::min(std::abs(sides.length), std::abs(sides.width));
  const bool isTreated = !cut.isNone() && cut.before + cut.behind <= shorter;
  const bool isClockwise = (sides.length < 0) != (sides.width < 0);

  std::vector<OdDbPolyline::Vertex> outline;
  for (std::size_t i = 0; i < 4; ++i) {
    if (!isTreated) {
      outline.push_back({corners[i]});
      continue;
    }
    const OdGePoint2d& before = corners[(i + 3) % 4];
    const OdGePoint2d& behind = corners[(i + 1) % 4];
    outline.push_back(
        {towards(corners[i], before, cut.before), isClockwise ? -cut.bulge : cut.bulge});
    outline.push_back({towards(corners[i], behind, cut.behind)});
  }
  return outline;
}

double sideForArea(double area, double side, const RectangleModes& modes) {
  const CornerCut cut = cornerCutOf(modes);
  const double lost =
      modes.fillet > 0 ? (4 - kOdaPi) * modes.fillet * modes.fillet : 2 * cut.before * cut.behind;
  return (area + lost) / side;
}

} // namespace drafton
