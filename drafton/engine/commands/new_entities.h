// Putting new entities into the drawing as its current values say.
#pragma once

#include "drawing/database.h"

namespace drafton {

/// Appends an entity that has its properties already.
OdDbObjectId addToCurrentSpace(OdDbDatabase& database, OdDbEntity& entity);

/// Appends an entity with the current layer, colour and so on.
OdDbObjectId addNewEntity(OdDbDatabase& database, OdDbEntity& entity);

/// As addNewEntity, for entities that stand up by the current thickness.
template <class Entity>
OdDbObjectId addNewThickEntity(OdDbDatabase& database, Entity& entity) {
  entity.setThickness(database.sysVarReal("THICKNESS"));
  return addNewEntity(database, entity);
}

} // namespace drafton
