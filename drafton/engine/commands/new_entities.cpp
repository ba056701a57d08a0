#include "drafton/engine/commands/new_entities.h"

namespace drafton {

OdDbObjectId addToCurrentSpace(OdDbDatabase& database, OdDbEntity& entity) {
  const auto space = database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  return space->appendOdDbEntity(&entity);
}

OdDbObjectId addNewEntity(OdDbDatabase& database, OdDbEntity& entity) {
  entity.setDatabaseDefaults(database);
  return addToCurrentSpace(database, entity);
}

} // namespace drafton
