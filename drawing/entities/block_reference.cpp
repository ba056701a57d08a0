#include "drawing/entities/block_reference.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/objects/raw_object.h"

#include <QHash>

namespace {

constexpr int kMostCells = 32767;
/// Blocks within blocks deeper than this are not taken apart.
constexpr std::size_t kDeepest = 64;

/// What of an insert's data tells a frame: the image of the block's axes.
struct Frame {
  OdGeVector3d x, y, z;
  OdGePoint3d origin;
};

bool areSquare(const OdGeVector3d& a, const OdGeVector3d& b) {
  return std::abs(a.dotProduct(b)) <= 1e-9 * a.length() * b.length();
}

/// The data of an insert that shows a frame; nothing if no insert can.
std::optional<OdDbBlockReference::Data> dataOf(const Frame& f, OdDbBlockReference::Data data) {
  const double sx = f.x.length();
  const double sy = f.y.length();
  const double sz = f.z.length();
  if (!odcheck::areFinite(sx, sy, sz, f.origin) || !(sx > 0 && sy > 0 && sz > 0) ||
      !areSquare(f.x, f.y) || !areSquare(f.y, f.z) || !areSquare(f.z, f.x))
    return std::nullopt;
  // The normal keeps its side and y its sense: what is mirrored runs against x.
  const double zSign = data.scale.sz < 0 ? -1 : 1;
  const double ySign = data.scale.sy < 0 ? -1 : 1;
  const OdGeVector3d normal = odgeSettledNormal(f.z * (zSign / sz), data.normal);
  const OdGeVector3d y = f.y * (ySign / sy);
  const OdGeVector3d x = y.crossProduct(normal);
  const double xSign = x.dotProduct(f.x) < 0 ? -1 : 1;
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(normal).inverse();
  const OdGeVector3d inPlane = toPlane * x;
  data.scale = {xSign * sx, ySign * sy, zSign * sz};
  data.normal = normal;
  data.rotation = odgeNormalAngle(std::atan2(inPlane.y, inPlane.x));
  data.position = toPlane * f.origin;
  return data;
}

OdGeMatrix3d frameOf(const OdDbBlockReference::Data& d) {
  return OdGeMatrix3d::planeToWorld(d.normal) * OdGeMatrix3d::translation(d.position.asVector()) *
         OdGeMatrix3d::rotation(d.rotation, OdGeVector3d::zAxis());
}

OdDbBlockTableRecordPtr blockOf(OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  return OdDbBlockTableRecordPtr(odrxCast<OdDbBlockTableRecord>(object.get()));
}

/// The colour of an attribute among the pieces of its insert; nothing for that of the insert.
std::optional<OdCmColor> pieceColor(const OdDbEntity& attribute,
                                    const OdDbLayerTableRecord* layer) {
  const OdCmColor color = attribute.color();
  if (color.isByBlock()) return std::nullopt;
  if (!color.isByLayer()) return color;
  // Layer 0 is that of whatever stands around. Copies that are shown at a cursor are in no drawing.
  if (!layer || layer->objectId() == layer->database()->getLayerZeroId()) return std::nullopt;
  return layer->color();
}

} // namespace

OdDbBlockReference::OdDbBlockReference() = default;

OdDbBlockReference::OdDbBlockReference(OdDbObjectId block, const OdGePoint3d& position) {
  setBlockTableRecord(block);
  setPosition(position);
}

void OdDbBlockReference::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  const auto& insert = static_cast<const OdDbBlockReference&>(other);
  m_insert = insert.m_insert;
  m_own = insert.m_own;
}

OdRxObjectPtr OdDbBlockReference::clone() const {
  const OdDbBlockReferencePtr copy = OdDbEntity::clone();
  copy->m_insert.attributes.clear();
  copy->m_insert.end = {};
  copy->m_own.clear();
  for (const OdDbAttributePtr& attribute : attributes()) copy->m_own.push_back(attribute->clone());
  return copy;
}

void OdDbBlockReference::setBlockTableRecord(OdDbObjectId block) {
  if (block.isNull()) throw OdDbError(eNullObjectId, QStringLiteral("An insert needs a block"));
  assertWriteEnabled();
  m_insert.block = block;
}

OdString OdDbBlockReference::blockName() const {
  const OdDbBlockTableRecordPtr block = blockOf(m_insert.block);
  return block ? block->getName() : OdString();
}

OdGePoint3d OdDbBlockReference::position() const {
  return OdGeMatrix3d::planeToWorld(m_insert.normal) * m_insert.position;
}

void OdDbBlockReference::setPosition(const OdGePoint3d& position) {
  odcheck::finite(position);
  assertWriteEnabled();
  m_insert.position = OdGeMatrix3d::planeToWorld(m_insert.normal).inverse() * position;
}

void OdDbBlockReference::setScaleFactors(const OdGeScale3d& scale) {
  for (const double factor : {scale.sx, scale.sy, scale.sz}) odcheck::positive(std::abs(factor));
  assertWriteEnabled();
  m_insert.scale = scale;
}

void OdDbBlockReference::setRotation(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_insert.rotation = angle;
}

void OdDbBlockReference::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  const OdGePoint3d place = position();
  m_insert.normal = n;
  setPosition(place);
}

void OdDbBlockReference::setArray(int columns, int rows, double columnSpacing, double rowSpacing) {
  if (columns < 1 || columns > kMostCells || rows < 1 || rows > kMostCells)
    throw OdError(eInvalidInput,
                  QStringLiteral("%1 columns and %2 rows are no array").arg(columns).arg(rows));
  odcheck::finite(columnSpacing);
  odcheck::finite(rowSpacing);
  assertWriteEnabled();
  m_insert.columns = columns;
  m_insert.rows = rows;
  m_insert.columnSpacing = columnSpacing;
  m_insert.rowSpacing = rowSpacing;
}

OdGeMatrix3d OdDbBlockReference::blockTransform() const {
  const OdGeScale3d& s = m_insert.scale;
  const OdDbBlockTableRecordPtr block = blockOf(m_insert.block);
  const OdGeVector3d base = block ? block->origin().asVector() : OdGeVector3d();
  return frameOf(m_insert) * OdGeMatrix3d::scaling(s.sx, s.sy, s.sz) *
         OdGeMatrix3d::translation(-base);
}

namespace {

/// Calls `act` with the transformation of every cell, row by row.
template <class Act>
void forEachCell(const OdDbBlockReference::Data& d, const OdGeMatrix3d& first, Act act) {
  const OdGeMatrix3d frame = frameOf(d);
  const OdGeVector3d right = frame * OdGeVector3d{d.columnSpacing, 0, 0};
  const OdGeVector3d up = frame * OdGeVector3d{0, d.rowSpacing, 0};
  // Files can ask for more cells than anybody can show.
  constexpr std::size_t kShown = 1'000'000;
  std::size_t count = 0;
  for (int row = 0; row < d.rows; ++row)
    for (int column = 0; column < d.columns && count < kShown; ++column, ++count)
      act(OdGeMatrix3d::translation(right * column + up * row) * first);
}

} // namespace

std::vector<OdGeMatrix3d> OdDbBlockReference::cellTransforms() const {
  std::vector<OdGeMatrix3d> all;
  forEachCell(m_insert, blockTransform(), [&](const OdGeMatrix3d& cell) { all.push_back(cell); });
  return all;
}

std::vector<OdDbAttributePtr> OdDbBlockReference::attributes(OdDb::OpenMode mode) const {
  std::vector<OdDbAttributePtr> all;
  for (const OdDbObjectId id : m_insert.attributes)
    if (const OdDbAttributePtr attribute{odrxCast<OdDbAttribute>(id.openObject(mode).get())})
      all.push_back(attribute);
  all.insert(all.end(), m_own.begin(), m_own.end());
  return all;
}

OdDbAttributePtr OdDbBlockReference::attribute(const OdString& tag, OdDb::OpenMode mode) const {
  for (const OdDbAttributePtr& attribute : attributes(mode))
    if (attribute->tag().compare(tag, Qt::CaseInsensitive) == 0) return attribute;
  return nullptr;
}

OdDbObjectId OdDbBlockReference::appendAttribute(OdDbAttribute* attribute) {
  assertWriteEnabled();
  if (!database()) {
    m_own.emplace_back(attribute);
    return {};
  }
  if (attribute->layerId().isNull()) attribute->setLayer(layerId());
  const OdDbObjectId id = database()->addObject(attribute, objectId());
  m_insert.attributes.push_back(id);
  addEnd();
  return id;
}

void OdDbBlockReference::appendAttributesFromBlock(const QHash<OdString, OdString>& values) {
  const OdDbBlockTableRecordPtr block = blockOf(m_insert.block);
  if (!block) return;
  QHash<OdString, OdString> byTag;
  for (auto it = values.cbegin(); it != values.cend(); ++it)
    byTag.insert(it.key().toCaseFolded(), it.value());
  const OdGeMatrix3d transform = blockTransform();
  for (const auto it = block->newIterator(); !it->done(); it->step()) {
    const OdDbEntityPtr entity = it->entity();
    const auto* const definition = odrxCast<OdDbAttributeDefinition>(entity.get());
    if (!definition || definition->isConstant()) continue;
    const auto attribute = odrxMake<OdDbAttribute>();
    attribute->setAttributeFromBlock(*definition, transform);
    const auto value = byTag.constFind(definition->tag().toCaseFolded());
    if (value != byTag.cend()) {
      attribute->setTextString(*value);
      attribute->adjustAlignment();
    }
    appendAttribute(attribute);
  }
}

void OdDbBlockReference::addEnd() {
  if (!m_insert.end.isNull()) return;
  const auto end = odrxMake<OdDbRawEntity>("SEQEND");
  end->setLayer(layerId());
  m_insert.end = database()->addObject(end, objectId());
}

void OdDbBlockReference::enteredDatabase() {
  for (const OdDbAttributePtr& attribute : std::exchange(m_own, {})) appendAttribute(attribute);
}

void OdDbBlockReference::addFollower(OdDbEntity& follower) {
  if (odrxCast<OdDbAttribute>(&follower))
    m_insert.attributes.push_back(follower.objectId());
  else if (m_insert.end.isNull())
    m_insert.end = follower.objectId();
}

void OdDbBlockReference::worldDraw(OdGiWorldDraw& draw) const {
  if (!m_insert.block.isNull())
    forEachCell(m_insert, blockTransform(),
                [&](const OdGeMatrix3d& cell) { draw.block(m_insert.block, cell, *this); });
  for (const OdDbAttributePtr& attribute : attributes()) {
    const OdDbObjectPtr record = attribute->layerId().openObject();
    const auto* const layer = odrxCast<OdDbLayerTableRecord>(record.get());
    if (!attribute->isVisible() || (layer && (layer->isOff() || layer->isFrozen()))) continue;
    draw.setPieceColor(pieceColor(*attribute, layer));
    attribute->worldDraw(draw);
  }
  draw.setPieceColor(std::nullopt);
}

bool OdDbBlockReference::transformBy(const OdGeMatrix3d& transform) {
  const OdGeScale3d& s = m_insert.scale;
  const OdGeMatrix3d frame = transform * frameOf(m_insert);
  const Frame moved{frame * OdGeVector3d{s.sx, 0, 0}, frame * OdGeVector3d{0, s.sy, 0},
                    frame * OdGeVector3d{0, 0, s.sz}, frame * OdGePoint3d()};
  std::optional<Data> data = m_insert;
  if (odgeIsShift(transform)) {
    data->position = OdGePlaneImage(transform, m_insert.normal).inPlane * m_insert.position;
  } else {
    data = dataOf(moved, m_insert);
    if (!data) return false;
    // Distances between cells follow the axes that they are measured along.
    const OdGeMatrix3d newFrame = frameOf(*data);
    const auto along = [&](const OdGeVector3d& axis) {
      const OdGeVector3d was = frame * axis;
      return was.length() * (was.dotProduct(newFrame * axis) < 0 ? -1 : 1);
    };
    data->columnSpacing *= along(OdGeVector3d::xAxis());
    data->rowSpacing *= along(OdGeVector3d::yAxis());
  }
  if (!odcheck::areFinite(data->columnSpacing, data->rowSpacing, data->rotation, data->position))
    return false;
  assertWriteEnabled();
  m_insert = std::move(*data);
  for (const OdDbAttributePtr& attribute : attributes(OdDb::kForWrite))
    attribute->transformBy(transform);
  return true;
}

bool OdDbBlockReference::explode(std::vector<OdDbEntityPtr>& pieces) const {
  std::vector<OdDbEntityPtr> found;
  std::vector<OdDbObjectId> open;
  for (const OdGeMatrix3d& transform : cellTransforms())
    if (!explodeCell(transform, found, open)) return false;
  if (found.empty()) return false;
  pieces.insert(pieces.end(), found.begin(), found.end());
  return true;
}

bool OdDbBlockReference::explodeCell(const OdGeMatrix3d& transform,
                                     std::vector<OdDbEntityPtr>& pieces,
                                     std::vector<OdDbObjectId>& open) const {
  const OdDbBlockTableRecordPtr block = blockOf(m_insert.block);
  const bool isOpen = std::find(open.begin(), open.end(), m_insert.block) != open.end();
  // A block within itself has no end.
  if (!block || isOpen || open.size() > kDeepest) return false;
  open.push_back(m_insert.block);
  bool all = true;
  for (const auto it = block->newIterator(); all && !it->done(); it->step()) {
    const OdDbEntityPtr entity = it->entity();
    if (const OdDbEntityPtr copy = entity->getTransformedCopy(transform)) {
      pieces.push_back(copy);
    } else if (const auto* const nested = odrxCast<OdDbBlockReference>(entity.get())) {
      for (const OdGeMatrix3d& cell : nested->cellTransforms())
        all = all && nested->explodeCell(transform * cell, pieces, open);
    } else {
      // What cannot take the shape falls into pieces that can.
      std::vector<OdDbEntityPtr> parts;
      all = entity->explode(parts);
      for (const OdDbEntityPtr& part : parts) {
        const OdDbEntityPtr moved = all ? part->getTransformedCopy(transform) : nullptr;
        all = moved.get() != nullptr;
        if (all) pieces.push_back(moved);
      }
    }
  }
  open.pop_back();
  return all;
}
