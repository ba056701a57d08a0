#include "drafton/engine/commands/displacement.h"

namespace drafton {
namespace {

/// Coordinates below this leave room for what stands around a point, such as the end of a text.
constexpr double kFarthest = 1e300;

bool isWithinReach(const OdGePoint3d& point) {
  return std::abs(point.x) < kFarthest && std::abs(point.y) < kFarthest &&
         std::abs(point.z) < kFarthest;
}

} // namespace

Task<OdGeVector3d> askDisplacement(CommandContext& context) {
  const Answer<OdGePoint3d> answer = co_await context.input().point(
      {.text = u"Specify displacement", .base = OdGePoint3d(), .allowEmpty = true});
  co_return answer.value.asVector();
}

bool displace(OdDbEntity& entity, const OdGeVector3d& shift) {
  OdGeExtents3d box;
  if (entity.getGeomExtents(box) &&
      !(isWithinReach(box.minPoint() + shift) && isWithinReach(box.maxPoint() + shift)))
    return false;
  return entity.transformBy(OdGeMatrix3d::translation(shift));
}

} // namespace drafton
