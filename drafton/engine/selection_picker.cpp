#include "drafton/engine/selection_picker.h"

#include "drafton/engine/document.h"
#include "drawing/entities/viewport.h"

#include <algorithm>
#include <unordered_set>

namespace drafton {

OdDbDatabase& SelectionPicker::database() const { return *m_document.database(); }

bool SelectionPicker::isReachable(const OdDbEntity& entity) const {
  if (!entity.isVisible() || !m_filter.accepts(entity)) return false;
  // The window that stands for the sheet is nothing that a user has drawn.
  if (const auto* const view = odrxCast<OdDbViewport>(&entity); view && view->isOverall())
    return false;
  const OdDbLayerTableRecordPtr layer = entity.layerId().openObject();
  return !layer || !(layer->isOff() || layer->isFrozen() || layer->isLocked());
}

std::vector<SelectionPicker::Candidate> SelectionPicker::candidates() const {
  std::vector<Candidate> found;
  const auto space = database().getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = space->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    if (!entity || !isReachable(*entity)) continue;
    Candidate candidate{at->objectId(), {}};
    if (OdGeExtents3d box; entity->getGeomExtents(box) && !box.isEmpty()) {
      candidate.box.add(flat(box.minPoint()));
      candidate.box.add(flat(box.maxPoint()));
    } else {
      // Lines without ends have no box of their own, but can be taken.
      constexpr double kCoarse = 1;
      candidate.box = shapeOf(*entity, kCoarse).box;
    }
    found.push_back(candidate);
  }
  return found;
}

double SelectionPicker::reach() const {
  OdVariant pixels;
  m_document.variables()->get(QStringLiteral("PICKBOX"), pixels);
  if (m_document.pixelSize() > 0) return pixels.toDouble() * m_document.pixelSize();
  // Without a window a thousandth of the drawing stands for a pixel.
  const auto space = database().getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  const OdGeExtents3d box = space->extents();
  if (box.isEmpty()) return 0;
  const OdGeVector3d size = box.maxPoint() - box.minPoint();
  return pixels.toDouble() * std::max({size.x, size.y, 1e-6}) / 1000;
}

Selection SelectionPicker::all() const {
  Selection found;
  for (const Candidate& candidate : candidates()) found.push_back(candidate.id);
  return found;
}

Selection SelectionPicker::last() const {
  const Selection every = all();
  return every.empty() ? Selection() : Selection{every.back()};
}

Selection SelectionPicker::amongst(const Selection& entities) const {
  Selection found;
  const OdDbObjectId space = database().getCurrentSpaceId();
  for (const OdDbObjectId& id : entities)
    if (const auto object = id.openObject(); auto* const entity = odrxCast<OdDbEntity>(object))
      if (entity->ownerId() == space && isReachable(*entity)) found.push_back(id);
  return found;
}

Selection SelectionPicker::previous() const { return amongst(m_document.previousSelection()); }

Selection SelectionPicker::at(const OdGePoint3d& point) const {
  const double near = reach();
  FlatBox box;
  box.add({point.x - near, point.y - near});
  box.add({point.x + near, point.y + near});
  // What is drawn last lies on top.
  const std::vector<Candidate> every = candidates();
  for (auto candidate = every.rbegin(); candidate != every.rend(); ++candidate) {
    if (!candidate->box.meets(box)) continue;
    const OdDbEntityPtr entity = candidate->id.openObject();
    if (entity && distanceTo(shapeOf(*entity, std::max(near / 100, 1e-12)), flat(point)) <= near)
      return {candidate->id};
  }
  return {};
}

Selection SelectionPicker::inside(const SelectionRegion& region) const {
  Selection found;
  for (const Candidate& candidate : candidates()) {
    if (!candidate.box.meets(region.box())) continue;
    const OdDbEntityPtr entity = candidate.id.openObject();
    if (entity && region.contains(shapeOf(*entity, region.deviation())))
      found.push_back(candidate.id);
  }
  return found;
}

Selection SelectionPicker::meeting(const SelectionRegion& region) const {
  Selection found;
  for (const Candidate& candidate : candidates()) {
    if (!candidate.box.meets(region.box())) continue;
    const OdDbEntityPtr entity = candidate.id.openObject();
    if (entity && region.meets(shapeOf(*entity, region.deviation()))) found.push_back(candidate.id);
  }
  return found;
}

Selection SelectionPicker::byHandle(const OdString& handle) const {
  const std::optional<OdDbHandle> number = OdDbHandle::fromText(handle.toLatin1().toStdString());
  const OdDbObjectId id = number ? database().getOdDbObjectId(*number) : OdDbObjectId();
  // What belongs to an entity, or bounds the space, has a handle as well.
  const Selection every = all();
  return std::find(every.begin(), every.end(), id) != every.end() ? Selection{id} : Selection();
}

} // namespace drafton
