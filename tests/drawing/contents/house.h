// A drawing with nested blocks, to be copied and referred to.
#pragma once

#include "drawing/database.h"
#include "drawing/entities/block_reference.h"

#include "drawing/contents/support.h"

namespace oddbtest {

inline OdDbObjectId blockNamed(const OdDbDatabase& db, const char* name) {
  return db.getBlockTableId().openAs<OdDbBlockTable>()->getAt(OdString::fromUtf8(name));
}
inline OdDbObjectId layerNamed(const OdDbDatabase& db, const char* name) {
  return db.getLayerTableId().openAs<OdDbLayerTable>()->getAt(OdString::fromUtf8(name));
}

/// A drawing with an insert of nested blocks on layers of their own.
inline OdDbDatabasePtr house() {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId walls = addLayer(*db, QStringLiteral("Wände"), 3);
  const OdDbObjectId door = addBlock(*db, QStringLiteral("DOOR"));
  entitiesOf(door)[0]->objectId().openAs<OdDbEntity>(OdDb::kForWrite)->setLayer(walls);
  const OdDbObjectId room = addBlock(*db, QStringLiteral("ROOM"));
  const auto nested = odrxMake<OdDbBlockReference>(door, OdGePoint3d{5, 0, 0});
  room.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(nested);
  const auto insert = odrxMake<OdDbBlockReference>(room, OdGePoint3d{1, 1, 0});
  const auto attribute = odrxMake<OdDbAttribute>();
  attribute->setTag(QStringLiteral("NAME"));
  attribute->setTextString(QStringLiteral("Küche"));
  insert->appendAttribute(attribute);
  addTo(*db, insert);
  return db;
}

} // namespace oddbtest
