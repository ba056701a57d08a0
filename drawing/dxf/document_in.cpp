#include "drawing/dxf/document_in.h"

#include "drawing/dxf/ahead_source.h"
#include "drawing/dxf/makers.h"
#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"
#include "drawing/objects/raw_object.h"
#include "drawing/tables/standard_arrows.h"

namespace {

QByteArray bytes(std::string_view text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}
/// A name as a message shows it.
OdString shown(std::string_view text) {
  constexpr std::size_t kShown = 40;
  return OdString::fromLatin1(text.data(), static_cast<qsizetype>(std::min(text.size(), kShown)));
}

} // namespace

OdDbDxfReader::OdDbDxfReader(OdDbDatabase& database, OdDbDxfSource& source,
                             const oddxf::Start& start, OdString name)
  : m_database(database)
  , m_data(database.data())
  , m_in(database, source, std::move(name)) {
  m_data.version = start.version;
  m_in.setPlain(start.isPlain(), start.hasHandles);
  // Texts may stand before the variable that tells their code page.
  m_in.setCodePage(start.codePage.empty() ? std::string_view("ANSI_1252") : start.codePage);
  m_data.handseed = std::max<std::uint64_t>(m_data.handseed, start.handseed);
  m_firstFree = m_data.handseed;
}

OdDbDxfReader::OdDbDxfReader(OdDbDatabase& database, OdDbDxfAheadSource& source,
                             const oddxf::Start& start, OdString name)
  : OdDbDxfReader(database, static_cast<OdDbDxfSource&>(source), start, std::move(name)) {
  m_ahead = &source;
}

OdDbDxfReader::~OdDbDxfReader() {
  if (m_ahead) m_ahead->end();
}

void OdDbDxfReader::read() {
  if (m_in.isPlain()) {
    // Old files lack most of what a drawing has today: they are read into a new one.
    for (std::size_t i = 0; i < m_tables.size(); ++i)
      m_tables[i] = m_data.tables[i].safeOpenObject(OdDb::kForWrite);
    m_tablesReady = true;
  } else {
    for (std::size_t i = 0; i < m_tables.size(); ++i) m_tables[i] = oddxf::makeTable(i);
  }
  readSections();
  finish();
}

void OdDbDxfReader::readSections() {
  m_in.next();
  while (!m_in.isDamaged() && !m_in.tag().is(0, "EOF")) {
    if (!m_in.tag().is(0, "SECTION")) {
      passOverStray();
      continue;
    }
    m_in.next();
    // An empty section says nothing.
    const bool hasName = m_in.tag().code == 2;
    if (hasName) readSection(std::string(m_in.tag().text));
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

/// Passes over what stands outside of every section.
void OdDbDxfReader::passOverStray() {
  if (m_in.tag().code != 0)
    m_in.damage(QStringLiteral("a tag stands outside of every section"));
  else
    m_in.damage(
        QStringLiteral("%1 stands where a section is expected").arg(shown(m_in.tag().text)));
  while (m_in.next() && m_in.tag().code != 0) {
  }
}

void OdDbDxfReader::readSection(const std::string& name) {
  const bool contents = name == "BLOCKS" || name == "ENTITIES" || name == "OBJECTS";
  if (m_ahead && (!contents || name == "OBJECTS")) m_ahead->end();
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
  const std::string name(m_in.tag().code == 2 ? m_in.tag().text : std::string_view());
  std::size_t i = 0;
  while (i < m_tables.size() && oddxf::tableName(i) != name) ++i;
  if (i == m_tables.size()) {
    m_in.damage(QStringLiteral("there is no table \"%1\"").arg(shown(name)));
    while (m_in.next() && !m_in.tag().is(0, "ENDTAB") && !m_in.tag().is(0, "ENDSEC")) {
    }
    return;
  }
  OdDbSymbolTable& table = *m_tables[i];
  // Layers name their line types, which stand before them in all but damaged files.
  if (i == OdDbDatabaseData::kLayers) ensureTable(OdDbDatabaseData::kLinetypes);
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
    m_in.damage(
        QStringLiteral("the table %1 has a %2 in it").arg(shown(name), shown(m_in.tag().text)));
}

void OdDbDxfReader::readRecord(OdDbSymbolTable& table) {
  const OdDbSymbolTableRecordPtr record = table.newRecord();
  m_in.readTags(*record);
  // Half a record at the end of a cut file says nothing about the record.
  if (m_in.isDamaged()) return;
  if (record->getName().isEmpty() && record->mayBeNameless()) {
    m_in.enter(*record, table.objectId());
    return;
  }
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
  if (m_in.isPlain() || known.getHandle() >= m_firstFree)
    known.safeOpenObject(OdDb::kForWrite)->assignFrom(*record);
  else
    m_in.damage(QStringLiteral("a second %1 \"%2\" is left out")
                    .arg(QLatin1String(table.dxfRecordName()), record->getName()));
}

void OdDbDxfReader::ensureTable(std::size_t table) {
  if (m_tables[table]->isDBRO()) return;
  m_data.tables[table] = m_database.addObject(m_tables[table], {});
  m_in.note(
      QStringLiteral("the table %1 is missing and was added").arg(shown(oddxf::tableName(table))));
}

void OdDbDxfReader::ensureTables() {
  if (m_tablesReady) return;
  m_tablesReady = true;
  for (std::size_t i = 0; i < m_tables.size(); ++i) ensureTable(i);
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

void OdDbDxfReader::finish() {
  if (m_ahead) m_ahead->end();
  ensureTables();
  if (m_data.rootDictionary.isNull()) {
    m_data.rootDictionary = m_database.addObject(odrxMake<OdDbDictionary>(), {});
    m_in.note(QStringLiteral("the dictionary of named objects is missing and was added"));
  }
  std::vector<OdDbObjectId> missing;
  for (const OdDbObjectId id : m_tables[OdDbDatabaseData::kBlocks]->recordIds()) {
    const auto block = id.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    if (block->blockBeginId().isNull() || block->blockEndId().isNull()) {
      if (block->blockBeginId().isNull())
        m_in.note(
            QStringLiteral("the block \"%1\" has no beginning and got one").arg(block->getName()));
      block->ensureBounds();
    }
    if (m_in.isPlain() && !block->isLayout() && !m_readBlocks.contains(id)) missing.push_back(id);
  }
  if (m_in.isPlain()) oddb::useStandardArrows(m_database);
  for (const OdDbObjectId id : missing)
    if (const OdDbBlockTableRecordPtr block = id.openObject();
        block && block->newIterator()->done())
      m_in.note(QStringLiteral("the block \"%1\" is missing and was added").arg(block->getName()));
  finishHeader();
  m_data.modified = false;
}
