#include "drafton/engine/commands/new_entities.h"

namespace drafton {

OdDbObjectId currentSpaceId(const OdDbDatabase& database) {
  return database.sysVarInt("TILEMODE") != 0 ? database.getModelSpaceId()
                                             : database.getPaperSpaceId();
}

OdDbObjectId addToCurrentSpace(OdDbDatabase& database, OdDbEntity& entity) {
  const auto space = currentSpaceId(database).openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  return space->appendOdDbEntity(&entity);
}

OdDbObjectId addNewEntity(OdDbDatabase& database, OdDbEntity& entity) {
  entity.setDatabaseDefaults(database);
  return addToCurrentSpace(database, entity);
}

} // namespace drafton
