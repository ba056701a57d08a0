#include "drafton/desktop/grip_tool.h"

#include <cmath>

namespace drafton {
namespace {

/// More grips than this hide the drawing.
constexpr std::size_t kMostEntities = 100;

} // namespace

void GripTool::setEntities(const std::vector<OdDbObjectId>& entities) {
  m_places.clear();
  if (entities.size() > kMostEntities) return;
  for (const OdDbObjectId id : entities) {
    const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get());
    if (!entity) continue;
    for (const Grip& grip : gripsOf(*entity)) m_places.push_back({id, grip});
  }
}

const GripTool::Place* GripTool::at(const QPointF& pixel, const CanvasView& view,
                                    double reach) const {
  for (const Place& place : m_places) {
    const QPointF way = view.pixelOf(place.grip.at) - pixel;
    if (std::max(std::abs(way.x()), std::abs(way.y())) <= reach) return &place;
  }
  return nullptr;
}

PreviewShapes GripTool::shownAt(const OdGePoint3d& point) const {
  const OdDbEntityPtr entity = odrxCast<OdDbEntity>(m_dragged->entity.openObject().get());
  if (!entity) return {};
  const OdDbEntityPtr copy = odrxCast<OdDbEntity>(entity->clone().get());
  return moveGrip(*copy, m_dragged->grip.number, point) ? PreviewShapes{copy} : PreviewShapes();
}

void GripTool::end(Desktop& desktop, const OdGePoint3d& point) {
  const Place place = *std::exchange(m_dragged, std::nullopt);
  desktop.change(QStringLiteral("GRIP"), [&](OdDbDatabase&) {
    const OdDbEntityPtr entity =
        odrxCast<OdDbEntity>(place.entity.openObject(OdDb::kForWrite).get());
    if (!entity || !moveGrip(*entity, place.grip.number, point))
      desktop.engine().print(translated(u"The object cannot take that shape."));
  });
}

} // namespace drafton
