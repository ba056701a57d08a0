#include "drawing/entities/dimension.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/dimension_block.h"
#include "drawing/entities/dimension_text.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/xdata.h"

namespace {

OdDbBlockTableRecordPtr blockOf(OdDbObjectId id, OdDb::OpenMode mode = OdDb::kForRead) {
  const OdDbObjectPtr object = id.openObject(mode);
  return OdDbBlockTableRecordPtr(odrxCast<OdDbBlockTableRecord>(object.get()));
}

// An arc before the length of an arc, and the value of DIMARCSYM that asks for it.
constexpr QChar kArcSymbol = u'\u2312';
constexpr int kSymbolBefore = 0;

/// True for what only moves and turns.
bool isRigid(const OdGeMatrix3d& transform) {
  constexpr double kSlack = 1e-9;
  const OdGeVector3d x = transform * OdGeVector3d::xAxis();
  const OdGeVector3d y = transform * OdGeVector3d::yAxis();
  const OdGeVector3d z = transform * OdGeVector3d::zAxis();
  return std::abs(x.length() - 1) < kSlack && std::abs(y.length() - 1) < kSlack &&
         std::abs(x.dotProduct(y)) < kSlack && (x.crossProduct(y) - z).length() < kSlack;
}

} // namespace

OdDbDimension::OdDbDimension() = default;

void OdDbDimension::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  const auto& dimension = static_cast<const OdDbDimension&>(other);
  m_dimension = dimension.m_dimension;
  m_blockIsShared = dimension.m_blockIsShared;
  m_pendingMove = dimension.m_pendingMove;
  m_pictureIsOld = dimension.m_pictureIsOld;
}

OdRxObjectPtr OdDbDimension::clone() const {
  const OdDbDimensionPtr copy = OdDbEntity::clone();
  // Each dimension has a block of its own, which the copy gets when it comes to its drawing.
  copy->m_dimension.flags |= kOwnBlock;
  copy->m_blockIsShared = !m_dimension.block.isNull();
  if (database()) copy->m_pendingMove = {};
  return copy;
}

void OdDbDimension::enteredDatabase() {
  oddb::registerApplications(*this);
  if (m_dimension.block.isNull()) {
    recomputeDimBlock();
  } else if (m_blockIsShared) {
    const bool keepsPicture =
        !m_pictureIsOld && isRigid(m_pendingMove) && m_dimension.block.database() == database();
    if (keepsPicture || !recomputeDimBlock()) unshareBlock();
  }
  m_blockIsShared = false;
  m_pendingMove = {};
}

void OdDbDimension::unshareBlock() {
  const OdDbBlockTableRecordPtr from = blockOf(m_dimension.block);
  if (!from || from->database() != database()) {
    m_dimension.block = {};
    return;
  }
  std::vector<OdDbObjectId> entities;
  for (const auto it = from->newIterator(); !it->done(); it->step())
    entities.push_back(it->objectId());
  OdDbIdMapping mapping;
  database()->deepCloneObjects(entities, ownBlock(), mapping);
  moveBlock(m_pendingMove);
}

void OdDbDimension::aboutToChange() {
  assertWriteEnabled();
  m_pictureIsOld = true;
}

std::optional<oddb::DimensionBlock> OdDbDimension::laidOut(Data& drawn) const {
  if (!database()) return std::nullopt;
  std::optional<oddb::DimensionBlock> block(std::in_place, *this);
  if (!layOut(*block, drawn)) return std::nullopt;
  drawn.measurement = getMeasurement();
  drawn.insertion = {};
  return block;
}

bool OdDbDimension::recomputeDimBlock() {
  Data drawn = m_dimension;
  std::optional<oddb::DimensionBlock> block = laidOut(drawn);
  if (!block) return false;
  assertWriteEnabled();
  m_dimension = std::move(drawn);
  m_pictureIsOld = false;
  block->putInto(ownBlock());
  return true;
}

OdDbObjectId OdDbDimension::ownBlock() {
  if (m_dimension.block.isValid() && !m_blockIsShared) return m_dimension.block;
  assertWriteEnabled();
  m_dimension.block = oddb::addAnonymousBlock(*database(), u'D');
  m_blockIsShared = false;
  return m_dimension.block;
}

void OdDbDimension::setDatabaseDefaults(const OdDbDatabase& database) {
  OdDbEntity::setDatabaseDefaults(database);
  setDimensionStyle(database.currentDimStyle());
}

void OdDbDimension::setDimBlockId(OdDbObjectId block) {
  assertWriteEnabled();
  m_dimension.block = block;
}

void OdDbDimension::setDimensionStyle(OdDbObjectId style) {
  aboutToChange();
  m_dimension.style = style;
}

void OdDbDimension::setDimensionText(const OdString& text) {
  aboutToChange();
  m_dimension.text = text;
}

OdGePoint3d OdDbDimension::textPosition() const {
  return OdGeMatrix3d::planeToWorld(m_dimension.normal) * m_dimension.textMiddle;
}

void OdDbDimension::setTextPosition(const OdGePoint3d& position) {
  odcheck::finite(position);
  aboutToChange();
  m_dimension.textMiddle = OdGeMatrix3d::planeToWorld(m_dimension.normal).inverse() * position;
  m_dimension.flags |= kTextPlaced;
}

void OdDbDimension::useDefaultTextPosition() {
  aboutToChange();
  m_dimension.flags &= ~kTextPlaced;
}

void OdDbDimension::setTextRotation(double angle) {
  odcheck::finite(angle);
  aboutToChange();
  m_dimension.textRotation = angle;
}

void OdDbDimension::setHorizontalRotation(double angle) {
  odcheck::finite(angle);
  aboutToChange();
  m_dimension.horizontalDirection = angle;
}

void OdDbDimension::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  aboutToChange();
  m_dimension.normal = n;
}

OdString OdDbDimension::displayedText() const {
  const bool isAngle = kind() == kAngular || kind() == k3PointAngular;
  const OdDbDimVarValues vars = dimVars();
  const OdString symbol = kind() == kRadial      ? QStringLiteral("R")
                          : kind() == kDiametric ? QStringLiteral("%%c")
                          : kind() == kArcLength && vars.dimarcsym == kSymbolBefore
                              ? OdString(kArcSymbol)
                              : OdString();
  return oddb::dimensionText(m_dimension.text, getMeasurement(), isAngle, vars, symbol);
}

OdDbDimVarValues OdDbDimension::dimVars() const {
  const OdDbObjectPtr record = m_dimension.style.openObject();
  const auto* const style = odrxCast<OdDbDimStyleTableRecord>(record.get());
  OdDbDimVarValues values = style ? style->values() : OdDbDimVarValues();
  oddb::applyDimOverrides(*this, values);
  return values;
}

void OdDbDimension::setDimVarOverride(const OdString& name, const OdDbVarValue& value) {
  oddb::setDimOverride(*this, name, value);
  m_pictureIsOld = true;
}

void OdDbDimension::worldDraw(OdGiWorldDraw& draw) const {
  if (m_dimension.block.isValid()) {
    draw.block(m_dimension.block, blockTransform(), *this);
    return;
  }
  Data drawn = m_dimension;
  if (const auto block = laidOut(drawn)) block->draw(draw);
}

OdGeMatrix3d OdDbDimension::blockTransform() const {
  const OdGePoint3d place = OdGeMatrix3d::planeToWorld(m_dimension.normal) * m_dimension.insertion;
  return m_pendingMove * OdGeMatrix3d::translation(place.asVector());
}

bool OdDbDimension::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_dimension.normal);
  if (!plane.valid) return false;
  Data moved = m_dimension;
  for (OdGePoint3d Data::*point : {&Data::definition, &Data::first, &Data::second, &Data::third,
                                   &Data::leaderFirst, &Data::leaderSecond})
    moved.*point = transform * (m_dimension.*point);
  for (OdGePoint3d Data::*point : {&Data::textMiddle, &Data::arcPoint})
    moved.*point = plane.inPlane * (m_dimension.*point);
  moved.normal = plane.normal;
  moved.rotation = plane.angle(m_dimension.rotation);
  // The axes of coordinates turn with them.
  if (kind() == kOrdinate)
    moved.horizontalDirection = 0 - plane.angle(0 - m_dimension.horizontalDirection);
  moved.leaderLength *= plane.scale();
  if (plane.mirrors) moved.oblique = 0 - moved.oblique;
  if (moved.measurement > 0 && kind() != kAngular && kind() != k3PointAngular)
    moved.measurement *= plane.scale();
  if (!odcheck::areFinite(moved.definition, moved.first, moved.second, moved.third,
                          moved.textMiddle, moved.rotation))
    return false;
  assertWriteEnabled();
  m_dimension = std::move(moved);
  if (!database())
    m_pendingMove = transform * m_pendingMove;
  else if (const bool keepsPicture =
               !m_pictureIsOld && m_dimension.block.isValid() && isRigid(transform);
           keepsPicture || !recomputeDimBlock())
    moveBlock(transform);
  return true;
}

void OdDbDimension::moveBlock(OdGeMatrix3d transform) {
  const OdDbBlockTableRecordPtr block = blockOf(m_dimension.block);
  if (!block) return;
  m_pendingMove = {};
  const OdGeMatrix3d place = blockTransform();
  const OdGeMatrix3d within = place.inverse() * transform * place;
  for (const auto it = block->newIterator(); !it->done(); it->step())
    it->entity(OdDb::kForWrite)->transformBy(within);
}

bool OdDbDimension::explode(std::vector<OdDbEntityPtr>& pieces) const {
  const OdDbBlockTableRecordPtr block = blockOf(m_dimension.block);
  if (!block) {
    Data drawn = m_dimension;
    const auto made = laidOut(drawn);
    if (!made) return false;
    for (const OdDbEntityPtr& piece : made->pieces()) {
      if (!layerId().isNull()) piece->setLayer(layerId());
      pieces.push_back(piece);
    }
    return true;
  }
  const OdGeMatrix3d place = blockTransform();
  std::vector<OdDbEntityPtr> found;
  for (const auto it = block->newIterator(); !it->done(); it->step()) {
    const OdDbEntityPtr entity = it->entity();
    // Points on this layer only say where the dimension is fastened.
    if (entity->layer().compare(QLatin1String("Defpoints"), Qt::CaseInsensitive) == 0) continue;
    const OdDbEntityPtr copy = entity->getTransformedCopy(place);
    if (!copy) return false;
    if (copy->layerId() == block->database()->getLayerZeroId() && !layerId().isNull())
      copy->setLayer(layerId());
    found.push_back(copy);
  }
  if (found.empty()) return false;
  pieces.insert(pieces.end(), found.begin(), found.end());
  return true;
}
