#include "drawing/tables/block_table.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/block_reference.h"
#include "drawing/objects/raw_object.h"
#include "drawing/objects/stored_path.h"
#include "drawing/tables/reference_flags.h"

namespace {
const QLatin1String kModelSpace("*Model_Space");
const QLatin1String kPaperSpace("*Paper_Space");
} // namespace

OdDbBlockTableRecord::OdDbBlockTableRecord() = default;

void OdDbBlockTableRecord::assignFrom(const OdDbObject& other) {
  OdDbSymbolTableRecord::assignFrom(other);
  m_block = static_cast<const OdDbBlockTableRecord&>(other).m_block;
}

OdDbObjectId OdDbBlockTableRecord::appendOdDbEntity(OdDbEntity* entity) {
  if (!isWriteEnabled())
    throw OdDbError(eNotOpenForWrite,
                    QStringLiteral("The block %1 is not open for writing").arg(getName()));
  if (entity->m_common.layer.isNull() && database())
    entity->m_common.layer = database()->getLayerZeroId();
  return database()->addObject(entity, objectId());
}

OdDbBlockIteratorPtr OdDbBlockTableRecord::newIterator(bool skipErased) const {
  return std::make_unique<OdDbBlockIterator>(*this, skipErased);
}

OdGeExtents3d OdDbBlockTableRecord::extents() const {
  OdGeExtents3d all;
  for (const auto it = newIterator(); !it->done(); it->step())
    if (OdGeExtents3d one; it->entity()->getGeomExtents(one)) all.addExt(one);
  return all;
}

bool OdDbBlockTableRecord::isLayout() const {
  return isModelSpace() || getName().startsWith(kPaperSpace, Qt::CaseInsensitive);
}

bool OdDbBlockTableRecord::isModelSpace() const {
  return getName().compare(kModelSpace, Qt::CaseInsensitive) == 0;
}

bool OdDbBlockTableRecord::isFromExternalReference() const {
  return m_block.blockFlags & (kXref | kXrefOverlay);
}

bool OdDbBlockTableRecord::isFromOverlayReference() const {
  return m_block.blockFlags & kXrefOverlay;
}

void OdDbBlockTableRecord::setComments(const OdString& text) {
  assertWriteEnabled();
  m_block.comments = text;
}

void OdDbBlockTableRecord::setPathName(const OdString& path) {
  assertWriteEnabled();
  m_block.xrefPath = oddb::givenPath(path);
}

void OdDbBlockTableRecord::setBlockFlag(int flag, bool on) {
  assertWriteEnabled();
  m_block.blockFlags = on ? m_block.blockFlags | flag : m_block.blockFlags & ~flag;
}

void OdDbBlockTableRecord::setIsFromExternalReference(bool xref, bool overlay) {
  if (!xref)
    setBlockFlag(oddb::kResolvedReference | oddb::kUsedReference | oddb::kUntoldReference, false);
  setBlockFlag(kXref, xref);
  setBlockFlag(kXrefOverlay, xref && overlay);
}

void OdDbBlockTableRecord::setIsUnloaded(bool unloaded) {
  assertWriteEnabled();
  m_block.blockFlags = oddb::withUnloaded(m_block.blockFlags, unloaded);
}

void OdDbBlockTableRecord::setIsAnonymous(bool on) { setBlockFlag(kAnonymousBlock, on); }

bool OdDbBlockTableRecord::hasAttributeDefinitions() const {
  for (const auto it = newIterator(); !it->done(); it->step()) {
    const OdDbEntityPtr entity = it->entity();
    const auto* const definition = odrxCast<OdDbAttributeDefinition>(entity.get());
    if (definition && !definition->isConstant()) return true;
  }
  return false;
}

std::vector<OdDbObjectId> OdDbBlockTableRecord::getBlockReferenceIds() const {
  std::vector<OdDbObjectId> inserts;
  const auto blocks = database()->getBlockTableId().openAs<OdDbBlockTable>();
  for (const auto block = blocks->newIterator(); !block->done(); block->step()) {
    const OdDbBlockTableRecordPtr record = block->getRecord();
    for (const auto it = record->newIterator(); !it->done(); it->step()) {
      const OdDbEntityPtr entity = it->entity();
      const auto* const insert = odrxCast<OdDbBlockReference>(entity.get());
      if (insert && insert->blockTableRecord() == objectId()) inserts.push_back(it->objectId());
    }
  }
  return inserts;
}

OdDbObjectId oddb::addAnonymousBlock(OdDbDatabase& database, QChar letter) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
  const OdString start = QStringLiteral("*") + letter;
  // Numbers below the highest one are not looked for: they are of erased blocks, which may come
  // back.
  int number = 0;
  for (const OdDbObjectId id : blocks->recordIds()) {
    const OdSmartPtr<OdDbBlockTableRecord> record = id.openObject(OdDb::kForRead, true);
    if (!record || !record->getName().startsWith(start, Qt::CaseInsensitive)) continue;
    bool isNumber = false;
    const int used = QStringView(record->getName()).mid(2).toInt(&isNumber);
    if (isNumber) number = std::max(number, used + 1);
  }
  const auto block = odrxMake<OdDbBlockTableRecord>();
  block->setName(start + OdString::number(number));
  block->setIsAnonymous(true);
  return blocks->add(block);
}

void OdDbBlockTableRecord::setOrigin(const OdGePoint3d& origin) {
  odcheck::finite(origin);
  assertWriteEnabled();
  m_block.origin = origin;
}

void OdDbBlockTableRecord::setBlockInsertUnits(int units) {
  assertWriteEnabled();
  m_block.units = units;
}

void OdDbBlockTableRecord::setLayoutId(OdDbObjectId layout) {
  assertWriteEnabled();
  m_block.layout = layout;
}

void OdDbBlockTableRecord::setBounds(OdDbObjectId begin, OdDbObjectId end) {
  m_block.begin = begin;
  m_block.end = end;
}

OdDbBlockIterator::OdDbBlockIterator(const OdDbBlockTableRecord& block, bool skipErased)
  : m_block(const_cast<OdDbBlockTableRecord*>(&block))
  , m_skipErased(skipErased) {
  skip();
}

void OdDbBlockIterator::step() {
  ++m_at;
  skip();
}

void OdDbBlockIterator::skip() {
  while (m_skipErased && !done() && !objectId().isValid()) ++m_at;
}

OdDbEntityPtr OdDbBlockIterator::entity(OdDb::OpenMode mode) const {
  return objectId().safeOpenObject(mode, !m_skipErased);
}

void OdDbBlockTableRecord::takeBegin(const OdDbBlockTableRecord& read) {
  m_block.origin = read.m_block.origin;
  m_block.comments = read.m_block.comments;
  m_block.xrefPath = read.m_block.xrefPath;
  m_block.blockFlags = read.m_block.blockFlags;
}

void OdDbBlockTableRecord::ensureBounds() {
  const auto bound = [&](OdDbObjectId& id, const char* name) {
    if (!id.isNull()) return;
    const auto entity = odrxMake<OdDbRawEntity>(name);
    if (!database()->getLayerZeroId().isNull()) entity->setLayer(database()->getLayerZeroId());
    id = database()->addObject(entity, objectId());
  };
  bound(m_block.begin, "BLOCK");
  bound(m_block.end, "ENDBLK");
}

void OdDbBlockTableRecord::enteredDatabase() { ensureBounds(); }
