// What entities do unless they know better.
#include "drawing/entities/entity.h"
#include "drawing/graphics/measure.h"

bool OdDbEntity::getGeomExtents(OdGeExtents3d& extents) const {
  OdGiMeasure measure;
  worldDraw(measure);
  extents = measure.extents();
  return !extents.isEmpty();
}

OdDbEntityPtr OdDbEntity::getTransformedCopy(const OdGeMatrix3d& transform) const {
  const OdDbEntityPtr copy = clone();
  return copy->transformBy(transform) ? copy : OdDbEntityPtr();
}

bool OdDbEntity::explode(std::vector<OdDbEntityPtr>&) const { return false; }
