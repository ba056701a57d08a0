#include "drawing/tables/block_table.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/objects/raw_object.h"

namespace {
constexpr int kXref = 4;
constexpr int kXrefOverlay = 8;
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
