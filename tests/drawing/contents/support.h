// Drawings for the tests of this folder.
#pragma once

#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"

#include <gtest/gtest.h>

namespace oddbtest {

inline OdDbObjectId addTo(OdDbDatabase& db, OdDbEntity* entity) {
  return db.getModelSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(entity);
}

/// A block with a line and a circle.
inline OdDbObjectId addBlock(OdDbDatabase& db, const OdString& name) {
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(name);
  const OdDbObjectId id = db.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
  block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{1, 0, 0}));
  block->appendOdDbEntity(odrxMake<OdDbCircle>(OdGePoint3d{0, 0, 0}, OdGeVector3d::zAxis(), 1.0));
  return id;
}

inline OdDbObjectId addLayer(OdDbDatabase& db, const OdString& name, int color = 1) {
  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(name);
  layer->setColor(OdCmColor::fromColorIndex(color));
  return db.getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
}

inline std::vector<OdDbEntityPtr> entitiesOf(OdDbObjectId block) {
  std::vector<OdDbEntityPtr> all;
  const auto record = block.openAs<OdDbBlockTableRecord>();
  for (const auto it = record->newIterator(); !it->done(); it->step()) all.push_back(it->entity());
  return all;
}

} // namespace oddbtest
