#include "drawing/dxf/document_in.h"

#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/spline.h"
#include "drawing/entities/text.h"
#include "drawing/objects/raw_object.h"

namespace {

template <class T, class Base>
OdSmartPtr<Base> make() {
  return odrxMake<T>();
}

template <class Base>
struct Maker {
  std::string_view name;
  OdSmartPtr<Base> (*make)();
};

constexpr Maker<OdDbEntity> kEntities[] = {
    {"LINE", make<OdDbLine, OdDbEntity>},     {"LWPOLYLINE", make<OdDbPolyline, OdDbEntity>},
    {"CIRCLE", make<OdDbCircle, OdDbEntity>}, {"ARC", make<OdDbArc, OdDbEntity>},
    {"TEXT", make<OdDbText, OdDbEntity>},     {"ELLIPSE", make<OdDbEllipse, OdDbEntity>},
    {"SPLINE", make<OdDbSpline, OdDbEntity>},
};

constexpr Maker<OdDbObject> kObjects[] = {
    {"DICTIONARY", make<OdDbDictionary, OdDbObject>},
    {"ACDBDICTIONARYWDFLT", [] { return OdDbObjectPtr(odrxMake<OdDbDictionary>(true)); }},
    {"DICTIONARYVAR", make<OdDbDictionaryVar, OdDbObject>},
};

// In the order of OdDbDatabaseData::Table.
constexpr Maker<OdDbSymbolTable> kTables[] = {
    {"VPORT", make<OdDbViewportTable, OdDbSymbolTable>},
    {"LTYPE", make<OdDbLinetypeTable, OdDbSymbolTable>},
    {"LAYER", make<OdDbLayerTable, OdDbSymbolTable>},
    {"STYLE", make<OdDbTextStyleTable, OdDbSymbolTable>},
    {"VIEW", make<OdDbViewTable, OdDbSymbolTable>},
    {"UCS", make<OdDbUCSTable, OdDbSymbolTable>},
    {"APPID", make<OdDbRegAppTable, OdDbSymbolTable>},
    {"DIMSTYLE", make<OdDbDimStyleTable, OdDbSymbolTable>},
    {"BLOCK_RECORD", make<OdDbBlockTable, OdDbSymbolTable>},
};
static_assert(std::size(kTables) == OdDbDatabaseData::kTableCount);

QByteArray bytes(std::string_view text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}
QLatin1String latin(std::string_view text) {
  return QLatin1String(text.data(), static_cast<qsizetype>(text.size()));
}

template <class Raw, class Base, std::size_t N>
OdSmartPtr<Base> made(const Maker<Base> (&makers)[N], std::string_view name) {
  for (const auto& maker : makers)
    if (maker.name == name) return maker.make();
  return odrxMake<Raw>(bytes(name));
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

/// What has to be known of a header before it is read.
struct HeaderStart {
  OdDb::DwgVersion version = OdDb::kR12;
  std::string_view versionText, codePage;
  std::uint64_t handseed = 0;
};

OdDb::DwgVersion versionOf(std::string_view text) {
  for (int v = OdDb::kR12; v <= OdDb::kR2018; ++v)
    if (const auto version = static_cast<OdDb::DwgVersion>(v); text == OdDb::versionText(version))
      return version;
  // Older than R12 is much like it, and so is R14 like R2000; what is newer may be like nothing.
  if (text > std::string_view(OdDb::versionText(OdDb::kR2018))) return OdDb::kVersionUnknown;
  return text < std::string_view(OdDb::versionText(OdDb::kR12)) ? OdDb::kR12 : OdDb::kR2000;
}

/// `source` stands behind the first tag.
HeaderStart lookAtHeader(OdDbDxfSource& source) {
  HeaderStart start;
  std::string_view variable;
  OdDbDxfTag tag;
  while (source.next(tag) == OdDbDxfSource::kTag && !tag.is(0, "ENDSEC")) {
    if (tag.code == 9) variable = tag.text;
    if (variable == "$HANDSEED" && tag.code == 5)
      start.handseed = OdDbHandle::fromText(tag.text).value_or(0);
    if (variable == "$DWGCODEPAGE" && tag.code == 3) start.codePage = tag.text;
    if (variable != "$ACADVER" || tag.code != 1) continue;
    start.versionText = tag.text;
    start.version = versionOf(tag.text);
  }
  return start;
}

} // namespace

bool OdDbDxfReader::isPlain(OdDbDxfSource& source) {
  OdDbDxfTag tag;
  return source.next(tag) == OdDbDxfSource::kTag && tag.is(0, "SECTION") &&
         lookAtHeader(source).version == OdDb::kR12;
}

OdDbDxfReader::OdDbDxfReader(OdDbDatabase& database, SourceMaker maker, OdString name)
  : m_database(database)
  , m_data(database.data())
  , m_maker(std::move(maker))
  , m_name(std::move(name))
  , m_source(m_maker())
  , m_in(database, *m_source, m_name) {}

void OdDbDxfReader::read() {
  look();
  if (m_in.isPlain()) {
    // Old files lack most of what a drawing has today: they are read into a new one.
    for (std::size_t i = 0; i < m_tables.size(); ++i)
      m_tables[i] = m_data.tables[i].safeOpenObject(OdDb::kForWrite);
    m_tablesReady = true;
  } else {
    for (std::size_t i = 0; i < m_tables.size(); ++i) m_tables[i] = kTables[i].make();
  }
  readSections();
  finish();
}

void OdDbDxfReader::look() {
  // The version decides how all that follows is read, and new objects need free handles.
  const auto ahead = m_maker();
  OdDbDxfTag tag;
  if (ahead->next(tag) != OdDbDxfSource::kTag || !tag.is(0, "SECTION")) {
    m_in.next();
    m_in.fail(ahead->problem().isEmpty()
                  ? QStringLiteral("this is not a DXF drawing")
                  : QStringLiteral("this is not a DXF drawing: ") + ahead->problem());
  }
  const HeaderStart start = lookAtHeader(*ahead);
  const OdDb::DwgVersion version = start.version;
  std::uint64_t handseed = start.handseed;
  if (version == OdDb::kVersionUnknown)
    throw OdDbFileError(
        m_name, ahead->line(),
        QStringLiteral("the version %1 is not known").arg(latin(start.versionText.substr(0, 40))));
  m_data.version = version;
  m_in.setPlain(version == OdDb::kR12);
  // Texts may stand before the variable that tells their code page.
  m_in.setCodePage(start.codePage.empty() ? std::string_view("ANSI_1252") : start.codePage);
  if (m_in.isPlain()) return;
  constexpr std::uint64_t kHighest = ~std::uint64_t{0} >> 8;
  if (handseed == 0 || handseed > kHighest) {
    handseed = 1;
    while (ahead->next(tag) == OdDbDxfSource::kTag)
      if (tag.code == 5 || tag.code == 105)
        if (const auto handle = OdDbHandle::fromText(tag.text); handle && *handle < kHighest)
          handseed = std::max<std::uint64_t>(handseed, *handle + 1);
  }
  m_data.handseed = handseed;
}

void OdDbDxfReader::readSections() {
  m_in.next();
  while (!m_in.isDamaged() && !m_in.tag().is(0, "EOF")) {
    if (!m_in.tag().is(0, "SECTION")) {
      if (m_in.tag().code != 0)
        m_in.damage(QStringLiteral("a tag stands outside of every section"));
      else
        m_in.damage(QStringLiteral("%1 stands where a section is expected")
                        .arg(latin(m_in.tag().text.substr(0, 40))));
      while (m_in.next() && m_in.tag().code != 0) {
      }
      continue;
    }
    m_in.next();
    if (m_in.tag().code != 2) {
      // An empty section says nothing.
      if (m_in.tag().is(0, "ENDSEC")) m_in.next();
      continue;
    }
    const std::string_view name = m_in.tag().text;
    const bool contents = name == "BLOCKS" || name == "ENTITIES" || name == "OBJECTS";
    if (contents) ensureTables();
    if (name == "HEADER") {
      readHeader();
    } else if (name == "TABLES") {
      readTables();
    } else if (name == "BLOCKS") {
      readBlocks();
    } else if (name == "ENTITIES") {
      m_trustworthy = true;
      m_in.next();
      readEntities({});
    } else if (name == "OBJECTS") {
      readObjects();
    } else if (name == "CLASSES") {
      readClasses();
    } else {
      keepSection(name);
    }
    if (m_in.tag().is(0, "ENDSEC")) m_in.next();
  }
  if (!m_in.isDamaged()) return;
  // Without the tables what follows hangs in the air; a cut in the entities leaves those before it.
  if (!m_trustworthy) {
    OdString why = m_data.unknownContent.isEmpty() ? OdString() : m_data.unknownContent.last();
    why.remove(0, why.indexOf(QLatin1String(": ")) + 2);
    m_in.fail(why);
  }
}

void OdDbDxfReader::readClasses() {
  m_data.classes.clear();
  while (m_in.next() && !m_in.tag().is(0, "ENDSEC"))
    oddxf::addLines(m_data.classes, m_in.tag().code, m_in.tag().text);
}

void OdDbDxfReader::keepSection(std::string_view name) {
  OdDbRawSection& section = m_data.otherSections.emplace_back();
  section.name = bytes(name);
  while (m_in.next() && !m_in.tag().is(0, "ENDSEC"))
    oddxf::addLines(section.tags, m_in.tag().code, m_in.tag().text);
}

void OdDbDxfReader::readTables() {
  m_in.next();
  while (!m_in.isDamaged() && !m_in.tag().is(0, "ENDSEC") && !m_in.tag().is(0, "EOF")) {
    if (m_in.tag().is(0, "TABLE")) {
      readTable();
      continue;
    }
    if (!m_in.tag().is(0, "ENDTAB"))
      m_in.damage(QStringLiteral("something stands outside of every table"));
    m_in.next();
  }
}

void OdDbDxfReader::readTable() {
  m_in.next();
  const std::string_view name = m_in.tag().code == 2 ? m_in.tag().text : std::string_view();
  const auto* const at = std::find_if(std::begin(kTables), std::end(kTables),
                                      [&](const auto& maker) { return maker.name == name; });
  if (at == std::end(kTables)) {
    m_in.damage(QStringLiteral("there is no table \"%1\"").arg(latin(name.substr(0, 40))));
    while (m_in.next() && !m_in.tag().is(0, "ENDTAB") && !m_in.tag().is(0, "ENDSEC")) {
    }
    return;
  }
  const auto i = static_cast<std::size_t>(at - kTables);
  OdDbSymbolTable& table = *m_tables[i];
  if (!table.isDBRO()) {
    m_in.readObject(table, {});
    m_data.tables[i] = table.objectId();
  } else {
    // A table in two pieces, or one that an old file adds to.
    while (m_in.next() && m_in.tag().code != 0) {
    }
  }
  while (m_in.tag().is(0, table.dxfRecordName())) readRecord(table);
  if (!m_in.tag().is(0, "ENDTAB") && !m_in.isDamaged())
    m_in.damage(QStringLiteral("the table %1 has a %2 in it")
                    .arg(latin(name), latin(m_in.tag().text.substr(0, 40))));
}

void OdDbDxfReader::readRecord(OdDbSymbolTable& table) {
  const OdDbSymbolTableRecordPtr record = table.newRecord();
  m_in.readTags(*record);
  if (record->getName().isEmpty()) {
    m_in.damage(QStringLiteral("a %1 without a name is left out")
                    .arg(QLatin1String(table.dxfRecordName())));
    return;
  }
  const OdDbObjectId known = table.getAt(record->getName());
  // Several parts of the screen share one name.
  const bool isViewport = &table == m_tables[OdDbDatabaseData::kViewports].get();
  if (known.isNull() || (isViewport && !m_in.isPlain())) {
    m_in.enter(*record, table.objectId());
    return;
  }
  if (m_in.isPlain())
    known.safeOpenObject(OdDb::kForWrite)->assignFrom(*record);
  else
    m_in.damage(QStringLiteral("a second %1 \"%2\" is left out")
                    .arg(QLatin1String(table.dxfRecordName()), record->getName()));
}

void OdDbDxfReader::ensureTables() {
  if (m_tablesReady) return;
  m_tablesReady = true;
  for (std::size_t i = 0; i < m_tables.size(); ++i) {
    if (m_tables[i]->isDBRO()) continue;
    m_data.tables[i] = m_database.addObject(m_tables[i], {});
    m_in.note(QStringLiteral("the table %1 is missing and was added").arg(latin(kTables[i].name)));
  }
  m_data.byBlock = ensureRecord(OdDbDatabaseData::kLinetypes, "ByBlock");
  m_data.byLayer = ensureRecord(OdDbDatabaseData::kLinetypes, "ByLayer");
  m_data.continuous = ensureRecord(OdDbDatabaseData::kLinetypes, "Continuous");
  m_data.layerZero = ensureRecord(OdDbDatabaseData::kLayers, "0");
  m_data.textStyleStandard = ensureRecord(OdDbDatabaseData::kTextStyles, "Standard");
  ensureRecord(OdDbDatabaseData::kDimStyles, "Standard");
  ensureRecord(OdDbDatabaseData::kRegApps, "ACAD");
  m_data.modelSpace = ensureRecord(OdDbDatabaseData::kBlocks, "*Model_Space");
  m_data.paperSpace = ensureRecord(OdDbDatabaseData::kBlocks, "*Paper_Space");
}

OdDbObjectId OdDbDxfReader::ensureRecord(OdDbDatabaseData::Table table, const char* name) {
  OdDbSymbolTable& records = *m_tables[table];
  const OdString wanted = QLatin1String(name);
  if (const OdDbObjectId found = records.getAt(wanted); !found.isNull()) return found;
  const OdDbSymbolTableRecordPtr record = records.newRecord();
  record->setName(wanted);
  m_in.note(QStringLiteral("%1 \"%2\" is missing and was added")
                .arg(QLatin1String(records.dxfRecordName()), wanted));
  return m_database.addObject(record, records.objectId());
}

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

void OdDbDxfReader::readEntities(OdDbObjectId block) {
  m_parent = nullptr;
  m_parentLeftOut = false;
  while (!m_in.isDamaged()) {
    const std::string_view name = m_in.tag().text;
    if (name == "ENDSEC" || name == "ENDBLK" || name == "EOF" || name == "SECTION") return;
    readEntity(block);
  }
}

OdDbObjectId OdDbDxfReader::spaceFor(OdDbObjectId block) {
  if (!block.isNull()) return block;
  if (const auto named = m_database.getOdDbObjectId(m_in.namedOwner());
      !m_in.isPlain() && odrxCast<OdDbBlockTableRecord>(named.openObject().get()))
    return named;
  return m_in.wasInPaperSpace() ? m_data.paperSpace : m_data.modelSpace;
}

void OdDbDxfReader::readEntity(OdDbObjectId block) {
  const std::string_view name = m_in.tag().text;
  const OdDbEntityPtr entity = made<OdDbRawEntity>(kEntities, name);
  const bool follows = name == "VERTEX" || name == "ATTRIB" || name == "SEQEND";
  m_in.readTags(*entity);
  if (m_in.isDamaged()) return;
  if (!follows) m_parentLeftOut = m_in.valueWasBad();
  if (m_in.valueWasBad() || (follows && m_parentLeftOut)) {
    m_in.damage(QStringLiteral("this %1 is left out").arg(latin(name.substr(0, 40))));
    return;
  }
  auto* const raw = odrxCast<OdDbRawEntity>(entity.get());
  if (raw && m_in.isPlain() && !(follows && m_parent))
    m_in.damage(
        QStringLiteral("a %1 of this version cannot be taken over").arg(latin(name.substr(0, 40))));
  if (entity->layerId().isNull()) entity->setLayer(m_data.layerZero);
  if (follows && m_parent) {
    m_in.enterFollower(*entity, m_parent->objectId());
    m_parent->addFollower(*entity);
    if (name == "SEQEND") m_parent = nullptr;
    return;
  }
  m_in.enter(*entity, spaceFor(block));
  m_parent = entity->takesFollowers() || (raw && m_in.hasFollowers()) ? entity.get() : nullptr;
}

void OdDbDxfReader::readObjects() {
  m_in.next();
  while (!m_in.isDamaged()) {
    const std::string_view name = m_in.tag().text;
    if (name == "ENDSEC" || name == "EOF" || name == "SECTION") return;
    const OdDbObjectPtr object = made<OdDbRawObject>(kObjects, name);
    m_in.readTags(*object);
    if (m_in.isDamaged()) return;
    m_in.enter(*object, {});
    if (m_data.rootDictionary.isNull() && odrxCast<OdDbDictionary>(object.get()))
      m_data.rootDictionary = object->objectId();
  }
}

void OdDbDxfReader::finish() {
  ensureTables();
  if (m_data.rootDictionary.isNull()) {
    m_data.rootDictionary = m_database.addObject(odrxMake<OdDbDictionary>(), {});
    m_in.note(QStringLiteral("the dictionary of named objects is missing and was added"));
  }
  for (const OdDbObjectId id : m_tables[OdDbDatabaseData::kBlocks]->recordIds()) {
    const auto block = id.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    if (block->blockBeginId().isNull() || block->blockEndId().isNull()) {
      if (block->blockBeginId().isNull())
        m_in.note(
            QStringLiteral("the block \"%1\" has no beginning and got one").arg(block->getName()));
      block->ensureBounds();
    }
  }
  finishHeader();
  m_data.modified = false;
}
