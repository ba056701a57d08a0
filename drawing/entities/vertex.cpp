#include "drawing/entities/vertex.h"

OdDbVertex::OdDbVertex() = default;

void OdDbVertex::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_vertex = static_cast<const OdDbVertex&>(other).m_vertex;
}

bool OdDbVertex::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  return false;
}
