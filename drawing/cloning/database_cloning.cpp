// Copies within a drawing, into another one, and as a new one.
#include "drawing/cloning/cloner.h"
#include "drawing/cloning/unused_records.h"
#include "drawing/objects/named_styles.h"

namespace {

/// Header variables that belong to one drawing alone.
bool isOwnVar(const OdDbHeaderVarInfo& row) {
  static constexpr std::string_view kNames[] = {
      "ACADMAINTVER", "ACADVER", "DWGCODEPAGE", "EXTMAX",   "EXTMIN",  "HANDSEED",
      "INSBASE",      "PEXTMAX", "PEXTMIN",     "TILEMODE", "UCSNAME", "PUCSNAME",
  };
  return row.type == OdDbHeaderVarInfo::kHandle || row.type == OdDbHeaderVarInfo::kTime ||
         oddbTableOf(row) ||
         std::find(std::begin(kNames), std::end(kNames), row.name) != std::end(kNames);
}

/// A new drawing with the settings of another one.
OdDbDatabasePtr newLike(const OdDbDatabase& source) {
  const OdDbDatabasePtr made = OdDbDatabase::createDatabase();
  const auto rows = oddbHeaderVars();
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (!isOwnVar(rows[i]) && source.data().varPresent[i])
      made->setSysVar(QLatin1String(rows[i].name), source.data().vars[i]);
  return made;
}

/// Cloning asks for drawings that can be changed, but changes nothing in the source.
OdDbDatabase& sourceOf(const OdDbDatabase& database) { return const_cast<OdDbDatabase&>(database); }

std::vector<OdDbObjectId> entitiesOf(OdDbObjectId block) {
  std::vector<OdDbObjectId> ids;
  const auto record = block.openAs<OdDbBlockTableRecord>();
  for (const auto it = record->newIterator(); !it->done(); it->step())
    ids.push_back(it->objectId());
  return ids;
}

/// The entities move together or not at all.
bool moveAll(const std::vector<OdDbObjectId>& entities, const OdGeMatrix3d& transform) {
  std::size_t moved = 0;
  while (moved < entities.size()) {
    const auto entity = entities[moved].openAs<OdDbEntity>(OdDb::kForWrite);
    if (!entity->transformBy(transform)) break;
    ++moved;
  }
  if (moved == entities.size()) return true;
  const OdGeMatrix3d back = transform.inverse();
  for (std::size_t i = 0; i < moved; ++i)
    entities[i].openAs<OdDbEntity>(OdDb::kForWrite)->transformBy(back);
  return false;
}

/// A block under a name: empty, whether new or known.
OdDbBlockTableRecordPtr emptyBlock(OdDbDatabase& database, const OdString& name) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
  const OdDbObjectId known = blocks->getAt(name);
  if (known.isNull()) {
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(name);
    blocks->add(block);
    return block;
  }
  const OdDbBlockTableRecordPtr block = known.safeOpenObject(OdDb::kForWrite);
  if (block->isLayout())
    throw OdDbError(eInvalidName, QStringLiteral("%1 is no name for a block").arg(name));
  for (const auto it = block->newIterator(); !it->done(); it->step())
    it->entity(OdDb::kForWrite)->erase();
  if (block->isFromExternalReference()) block->setIsFromExternalReference(false);
  return block;
}

OdDbObjectId insertBlock(OdDbDatabase& target, OdDbDatabase& source, OdDbObjectId contents,
                         const OdString& name, const OdGePoint3d& base, int units) {
  if (&source == &target)
    throw OdError(eInvalidInput, QStringLiteral("A drawing cannot be inserted into itself"));
  const OdDbBlockTableRecordPtr block = emptyBlock(target, name);
  block->setOrigin(base);
  block->setBlockInsertUnits(units);
  block->setComments(contents.openAs<OdDbBlockTableRecord>()->comments());
  OdDbIdMapping mapping;
  oddb::Cloner cloner(source, target, mapping, OdDb::kDrcIgnore, name);
  // A block of this name within the other drawing is not the one that is made here.
  cloner.setReservedBlock(name);
  cloner.addEntitiesOf(contents, block->objectId());
  cloner.run();
  // What came with the references of the other drawing is no more saved here than there.
  for (const OdDbIdMapping::Pair& pair : mapping.pairs())
    if (pair.isCloned && source.data().transient.contains(pair.key))
      target.data().transient.insert(pair.value);
  return block->objectId();
}

} // namespace

void OdDbDatabase::deepCloneObjects(const std::vector<OdDbObjectId>& objects, OdDbObjectId owner,
                                    OdDbIdMapping& mapping) {
  oddb::Cloner cloner(*this, *this, mapping, OdDb::kDrcIgnore);
  for (const OdDbObjectId id : objects) cloner.add(id, owner);
  cloner.run();
  const OdDbObjectPtr container = owner.openObject(OdDb::kForWrite);
  auto* const dictionary = odrxCast<OdDbDictionary>(container.get());
  if (!dictionary) return;
  for (const OdDbObjectId id : objects) {
    const OdString name = oddb::nameOf(id);
    OdString wanted = name.isEmpty() ? QStringLiteral("*A1") : name;
    for (int i = 1; !dictionary->getAt(wanted).isNull(); ++i)
      wanted = (name.isEmpty() ? QStringLiteral("*A") : name + u'$') + OdString::number(i);
    if (const OdDbObjectId copy = mapping.find(id); !copy.isNull())
      dictionary->setEntry(wanted, copy);
  }
}

void OdDbDatabase::wblockCloneObjects(const std::vector<OdDbObjectId>& objects, OdDbObjectId owner,
                                      OdDbIdMapping& mapping,
                                      OdDb::DuplicateRecordCloning cloning) {
  OdDbDatabase* source = nullptr;
  for (const OdDbObjectId id : objects)
    if (id.isValid() && !source) source = id.database();
  if (!source) return;
  if (source == this) {
    deepCloneObjects(objects, owner, mapping);
    return;
  }
  oddb::Cloner cloner(*source, *this, mapping, cloning);
  for (const OdDbObjectId id : objects) {
    if (id.database() != source)
      throw OdError(eInvalidInput, QStringLiteral("The objects are of several drawings"));
    const OdDbObjectPtr object = id.openObject();
    if (odrxCast<OdDbEntity>(object.get()))
      cloner.add(id, owner);
    else if (object)
      cloner.addNamed(id);
  }
  cloner.run();
}

OdDbDatabasePtr OdDbDatabase::wblock() const {
  const OdDbDatabasePtr copy = readDxf(writeDxf(OdDb::kR2018), fileName());
  copy->data().version = data().version < OdDb::kR2000 ? OdDb::kR2018 : data().version;
  for (const OdDbObjectId id : oddb::unusedRecords(*copy)) {
    if (const auto block =
            OdDbBlockTableRecordPtr(odrxCast<OdDbBlockTableRecord>(id.openObject().get())))
      for (const auto it = block->newIterator(); !it->done(); it->step())
        it->entity(OdDb::kForWrite)->erase();
    id.safeOpenObject(OdDb::kForWrite)->erase();
  }
  return copy;
}

OdDbDatabasePtr OdDbDatabase::wblock(OdDbObjectId blockId) const {
  const auto block = blockId.openAs<OdDbBlockTableRecord>();
  const OdDbDatabasePtr made = newLike(*this);
  OdDbIdMapping mapping;
  oddb::Cloner cloner(sourceOf(*this), *made, mapping, OdDb::kDrcReplace);
  cloner.addEntitiesOf(blockId, made->getModelSpaceId());
  cloner.run();
  // A block that contains itself came along as a record, whose contents went to the model space.
  const OdDbObjectId again = mapping.find(blockId);
  if (again.isValid() && again != made->getModelSpaceId()) {
    OdDbIdMapping within;
    made->deepCloneObjects(entitiesOf(made->getModelSpaceId()), again, within);
  }
  if (!block->isLayout()) made->setSysVar(QStringLiteral("INSBASE"), block->origin());
  // What was said of the block is said of the drawing's contents, until that is a block again.
  if (!block->comments().isEmpty())
    made->getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->setComments(block->comments());
  made->clearUndo();
  return made;
}

OdDbDatabasePtr OdDbDatabase::wblock(const std::vector<OdDbObjectId>& entities,
                                     const OdGePoint3d& basePoint) const {
  const OdDbDatabasePtr made = newLike(*this);
  OdDbIdMapping mapping;
  made->wblockCloneObjects(entities, made->getModelSpaceId(), mapping, OdDb::kDrcReplace);
  std::vector<OdDbObjectId> copies;
  for (const OdDbObjectId id : entities)
    if (const OdDbObjectId copy = mapping.find(id); copy.isValid()) copies.push_back(copy);
  // Where something cannot be moved, the base point stays where it is and is told.
  if (!moveAll(copies, OdGeMatrix3d::translation(-basePoint.asVector())))
    made->setSysVar(QStringLiteral("INSBASE"), basePoint);
  made->clearUndo();
  return made;
}

OdDbObjectId OdDbDatabase::insert(const OdString& blockName, OdDbDatabase* source, bool) {
  return insertBlock(*this, *source, source->getModelSpaceId(), blockName,
                     source->sysVarPoint("INSBASE"),
                     static_cast<int>(source->sysVarInt("INSUNITS")));
}

OdDbObjectId OdDbDatabase::insert(const OdString& sourceBlockName, const OdString& blockName,
                                  OdDbDatabase* source, bool) {
  const OdDbObjectId id =
      source->getBlockTableId().openAs<OdDbBlockTable>()->getAt(sourceBlockName);
  if (id.isNull())
    throw OdDbError(eNullObjectId, QStringLiteral("There is no block \"%1\"").arg(sourceBlockName));
  const auto block = id.openAs<OdDbBlockTableRecord>();
  return insertBlock(*this, *source, id, blockName, block->origin(), block->blockInsertUnits());
}

void OdDbDatabase::insert(const OdGeMatrix3d& transform, OdDbDatabase* source, bool) {
  if (source == this)
    throw OdError(eInvalidInput, QStringLiteral("A drawing cannot be inserted into itself"));
  const std::vector<OdDbObjectId> entities = entitiesOf(source->getModelSpaceId());
  OdDbIdMapping mapping;
  wblockCloneObjects(entities, getModelSpaceId(), mapping);
  for (const OdDbObjectId id : entities)
    if (const OdSmartPtr<OdDbEntity> copy = mapping.find(id).openObject(OdDb::kForWrite))
      copy->transformBy(transform);
}
