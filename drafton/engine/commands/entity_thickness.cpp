#include "drafton/engine/commands/entity_thickness.h"

#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/text.h"

namespace drafton {
namespace {

struct ThickKind {
  bool (*get)(const OdDbEntity& entity, double& thickness);
  bool (*set)(OdDbEntity& entity, double thickness);
};

template <class Entity>
bool get(const OdDbEntity& entity, double& thickness) {
  const Entity* const thick = odrxCast<Entity>(&entity);
  if (thick) thickness = thick->thickness();
  return thick != nullptr;
}

template <class Entity>
bool set(OdDbEntity& entity, double thickness) {
  Entity* const thick = odrxCast<Entity>(&entity);
  if (thick) thick->setThickness(thickness);
  return thick != nullptr;
}

template <class Entity>
constexpr ThickKind kind() {
  return {get<Entity>, set<Entity>};
}

constexpr ThickKind kKinds[] = {
    kind<OdDbLine>(),     kind<OdDbArc>(),        kind<OdDbCircle>(), kind<OdDbPoint>(),
    kind<OdDbPolyline>(), kind<OdDb2dPolyline>(), kind<OdDbSolid>(),  kind<OdDbText>(),
};

} // namespace

std::optional<double> thicknessOf(const OdDbEntity& entity) {
  double thickness = 0;
  for (const ThickKind& row : kKinds)
    if (row.get(entity, thickness)) return thickness;
  return std::nullopt;
}

bool setThickness(OdDbEntity& entity, double thickness) {
  for (const ThickKind& row : kKinds)
    if (row.set(entity, thickness)) return true;
  return false;
}

} // namespace drafton
