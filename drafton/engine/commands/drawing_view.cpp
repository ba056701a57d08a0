#include "drafton/engine/commands/drawing_view.h"

#include <algorithm>

namespace drafton {
namespace {

OdDbObjectId activeViewportId(const OdDbDatabase& database) {
  const auto table = database.getViewportTableId().openAs<OdDbViewportTable>();
  return table->getAt(QStringLiteral("*Active"));
}

/// The active viewport; in a drawing without one, one like that which it would get.
OdDbViewportTableRecordPtr activeViewport(const OdDbDatabase& database) {
  const OdDbViewportTableRecordPtr record = activeViewportId(database).openObject();
  return record ? record : odrxMake<OdDbViewportTableRecord>();
}

} // namespace

DrawingView activeView(const OdDbDatabase& database) {
  const OdDbViewportTableRecordPtr viewport = activeViewport(database);
  return {viewport->centerPoint(), viewport->height()};
}

double activeViewAspect(const OdDbDatabase& database) { return activeViewport(database)->aspect(); }

void setActiveView(OdDbDatabase& database, const DrawingView& view, std::optional<double> aspect) {
  OdDbViewportTableRecordPtr viewport = activeViewportId(database).openObject(OdDb::kForWrite);
  if (!viewport) {
    viewport = odrxMake<OdDbViewportTableRecord>();
    viewport->setName(QStringLiteral("*Active"));
    database.getViewportTableId().openAs<OdDbViewportTable>(OdDb::kForWrite)->add(viewport);
  }
  viewport->setCenterPoint(view.center);
  viewport->setHeight(view.height);
  if (aspect) viewport->setAspect(*aspect);
}

DrawingView viewOf(const OdGeExtents3d& box, double aspect, double now) {
  const OdGePoint3d& low = box.minPoint();
  const OdGePoint3d& high = box.maxPoint();
  const double height = std::max(high.y - low.y, (high.x - low.x) / aspect);
  // Each half for itself: the sum may lie where numbers end.
  return {{low.x / 2 + high.x / 2, low.y / 2 + high.y / 2}, height > 0 ? height : now};
}

} // namespace drafton
