// Reading blocks, entities and objects.
#include "drawing/dxf/ahead_source.h"
#include "drawing/dxf/document_in.h"
#include "drawing/dxf/makers.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/objects/raw_object.h"

namespace {

/// A name as a message shows it.
OdString shown(std::string_view text) {
  constexpr std::size_t kShown = 40;
  return OdString::fromLatin1(text.data(), static_cast<qsizetype>(std::min(text.size(), kShown)));
}

/// The beginning of a block while it is read: most of it belongs to the block's record.
class BlockBegin : public OdDbRawEntity {
 public:
  BlockBegin()
    : OdDbRawEntity("BLOCK") {}

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override {
    if (OdDbRawEntity::dxfInTag(tag, in)) return true;
    if (!in.in("AcDbBlockBegin")) return false;
    if (tag.code == 2) name = in.text(tag.text);
    return tag.code == 100 || fields->dxfInBegin(tag, in);
  }

  OdDbBlockTableRecordPtr fields = odrxMake<OdDbBlockTableRecord>();
  OdString name;
};

} // namespace

void OdDbDxfReader::readBlocks() {
  m_in.next();
  while (!m_in.isDamaged() && !m_in.tag().is(0, "ENDSEC") && !m_in.tag().is(0, "EOF")) {
    if (m_in.tag().is(0, "BLOCK")) {
      readBlock();
      continue;
    }
    m_in.damage(QStringLiteral("something stands outside of every block"));
    while (m_in.next() && m_in.tag().code != 0) {
    }
  }
}

OdDbObjectId OdDbDxfReader::blockNamed(const OdString& name) {
  OdString wanted = name;
  // Old files write the two spaces so.
  if (m_in.isPlain() && wanted.startsWith(QLatin1Char('$'))) wanted[0] = QLatin1Char('*');
  OdDbSymbolTable& blocks = *m_tables[OdDbDatabaseData::kBlocks];
  if (const OdDbObjectId found = blocks.getAt(wanted); !found.isNull()) return found;
  const auto record = odrxMake<OdDbBlockTableRecord>();
  record->setName(wanted);
  if (!m_in.isPlain())
    m_in.note(QStringLiteral("the block \"%1\" has no record and got one").arg(wanted));
  return m_database.addObject(record, blocks.objectId());
}

void OdDbDxfReader::readBlock() {
  const auto begin = odrxMake<BlockBegin>();
  m_in.readTags(*begin);
  if (begin->name.isEmpty()) m_in.damage(QStringLiteral("a block has no name"));
  const OdDbObjectId id =
      blockNamed(begin->name.isEmpty() ? QStringLiteral("*Unnamed") : begin->name);
  const auto block = id.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  block->takeBegin(*begin->fields);
  if (m_in.isPlain()) m_readBlocks.insert(id);
  const bool isNew = block->blockBeginId().isNull();
  if (isNew) {
    const auto kept = odrxMake<OdDbRawEntity>("BLOCK");
    kept->assignFrom(*begin);
    m_in.enter(*kept, id);
    block->setBounds(kept->objectId(), {});
  }
  readEntities(id);
  if (!m_in.tag().is(0, "ENDBLK")) {
    if (!m_in.isDamaged()) m_in.damage(QStringLiteral("the block has no end"));
    return;
  }
  const auto end = odrxMake<OdDbRawEntity>("ENDBLK");
  m_in.readTags(*end);
  if (!isNew) return;
  m_in.enter(*end, id);
  block->setBounds(block->blockBeginId(), end->objectId());
}

void OdDbDxfReader::endParent() {
  OdDbEntity* const parent = std::exchange(m_parent, nullptr);
  const auto* const insert = odrxCast<OdDbBlockReference>(parent);
  const bool needsEnd =
      insert ? !insert->attributes().empty() : odrxCast<OdDb2dPolyline>(parent) != nullptr;
  if (!needsEnd) return;
  const auto end = odrxMake<OdDbRawEntity>("SEQEND");
  end->setPropertiesFrom(*parent);
  m_database.addObject(end, parent->objectId());
  parent->addFollower(*end);
}

void OdDbDxfReader::readEntities(OdDbObjectId block) {
  m_parentLeftOut = false;
  readEntitiesOf(block);
  endParent();
}

void OdDbDxfReader::readEntitiesOf(OdDbObjectId block) {
  while (!m_in.isDamaged()) {
    const std::string_view name = m_in.tag().text;
    if (name == "ENDSEC" || name == "ENDBLK" || name == "EOF" || name == "SECTION") return;
    if (!takeEntities(block)) readEntity(block);
  }
}

OdDbBlockTableRecord& OdDbDxfReader::spaceOf(OdDbObjectId id) {
  // Neighbours mostly share their block.
  if (!m_space || m_space->objectId() != id) m_space = id.openAs<OdDbBlockTableRecord>();
  return *m_space;
}

OdDbBlockTableRecord& OdDbDxfReader::spaceFor(OdDbObjectId block) {
  if (!block.isNull()) return spaceOf(block);
  if (m_in.isPlain() || m_in.namedOwner().isNull())
    return spaceOf(m_in.wasInPaperSpace() ? m_data.paperSpace : m_data.modelSpace);
  if (m_space && m_space->handle() == m_in.namedOwner()) return *m_space;
  const OdDbObjectId named = m_database.getOdDbObjectId(m_in.namedOwner());
  if (odrxCast<OdDbBlockTableRecord>(named.openObject().get())) return spaceOf(named);
  return spaceOf(m_in.wasInPaperSpace() ? m_data.paperSpace : m_data.modelSpace);
}

void OdDbDxfReader::readEntity(OdDbObjectId block) {
  m_name = m_in.tag().text;
  OdDbEntityPtr entity = m_in.readEntity(m_name);
  if (!m_in.isDamaged()) enterEntity(m_name, std::move(entity), block);
}

bool OdDbDxfReader::takeEntities(OdDbObjectId block) {
  if (!m_ahead) return false;
  const auto entities = m_ahead->entities(m_in);
  if (entities.empty()) return false;
  for (OdDbDxfReadEntity& read : entities) {
    m_ahead->takeOver(read, m_in);
    enterEntity(read.name, std::move(read.entity), block);
  }
  m_ahead->goBehind(entities.back(), m_in);
  return true;
}

void OdDbDxfReader::enterEntity(std::string_view name, OdDbEntityPtr entity, OdDbObjectId block) {
  const bool follows = name == "VERTEX" || name == "ATTRIB" || name == "SEQEND";
  if (!follows) m_parentLeftOut = !entity;
  if (!entity || (follows && m_parentLeftOut)) {
    m_in.damage(QStringLiteral("this %1 is left out").arg(shown(name)));
    return;
  }
  if (follows && m_parent) {
    m_in.enterFollower(*entity, m_parent->objectId());
    m_parent->addFollower(*entity);
    if (name == "SEQEND") m_parent = nullptr;
    return;
  }
  endParent();
  OdDbEntity* const entered = entity.get();
  m_in.enterEntity(std::move(entity), spaceFor(block));
  m_parent =
      entered->takesFollowers() || m_in.hasFollowers() || name == "POLYLINE" ? entered : nullptr;
}

void OdDbDxfReader::readObjects() {
  m_in.next();
  while (!m_in.isDamaged()) {
    const std::string_view name = m_in.tag().text;
    if (name == "ENDSEC" || name == "EOF" || name == "SECTION") return;
    if (takeObjects()) continue;
    const OdDbObjectPtr object = oddxf::makeObject(name);
    m_in.readTags(*object);
    if (m_in.isDamaged()) return;
    enterObject(*object);
  }
}

bool OdDbDxfReader::takeObjects() {
  if (!m_ahead) return false;
  const auto objects = m_ahead->objects(m_in);
  if (objects.empty()) return false;
  for (const OdDbDxfReadObject& read : objects) {
    m_ahead->takeOver(read, m_in);
    enterObject(*read.object);
  }
  m_ahead->goBehind(objects.back(), m_in);
  return true;
}

void OdDbDxfReader::enterObject(OdDbObject& object) {
  const bool isUnowned = m_in.namedOwner().isNull() && !m_in.isPlain();
  const auto* const dictionary = odrxCast<OdDbDictionary>(&object);
  const bool isRoot = m_data.rootDictionary.isNull() && dictionary;
  const OdDbHandle handle = m_in.head().handle;
  m_in.enter(object, isUnowned && !isRoot ? m_owners.of(object, handle) : OdDbObjectId());
  if (isUnowned && dictionary) m_owners.note(*dictionary);
  if (isRoot) m_data.rootDictionary = object.objectId();
}
