#include "drafton/engine/commands/offset_curves.h"

#include <limits>

namespace drafton {
namespace {

/// A distance of this part tells the sides of a curve apart without eating up narrow places.
constexpr double kProbe = 1e-3;

double distanceTo(const std::vector<OdDbEntityPtr>& curves, const OdGePoint3d& point) {
  double nearest = std::numeric_limits<double>::infinity();
  for (const OdDbEntityPtr& entity : curves)
    if (const auto* const curve = odrxCast<OdDbCurve>(entity.get()))
      nearest = std::min(nearest, curve->getClosestPointTo(point).distanceTo(point));
  return nearest;
}

} // namespace

bool canBeOffset(OdDbObjectId entity) {
  const OdDbObjectPtr object = entity.openObject();
  const auto* const curve = odrxCast<OdDbCurve>(object.get());
  if (!curve || !curve->hasShape()) return false;
  const double probe = kProbe * curve->length();
  return probe > 0 &&
         !(curve->getOffsetCurves(probe).empty() && curve->getOffsetCurves(-probe).empty());
}

std::vector<OdDbEntityPtr> offsetTowards(const OdDbCurve& curve, const OdGePoint3d& point,
                                         std::optional<double> distance) {
  // Sides are those of the plane that is looked at; the height of the point says nothing.
  const double height = curve.getClosestPointTo(point).z;
  const OdGePoint3d side{point.x, point.y, height};
  const double away = curve.getClosestPointTo(side).distanceTo(side);
  if (away == 0) return {};
  const double probe = kProbe * std::min(away, curve.length());
  const bool isPositive = distanceTo(curve.getOffsetCurves(probe), side) <
                          distanceTo(curve.getOffsetCurves(-probe), side);
  const double wanted = distance.value_or(away);
  return curve.getOffsetCurves(isPositive ? wanted : -wanted);
}

} // namespace drafton
