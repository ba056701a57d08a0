#include "drawing/tables/symbol_table.h"

#include "drawing/database_data.h"

namespace {

/// A name as the index has it. Folding all of Unicode takes long, and most names need none of it.
OdString folded(const OdString& name) {
  OdString key(name.size(), Qt::Uninitialized);
  QChar* to = key.data();
  for (const QChar c : name) {
    if (c.unicode() >= 0x80) return name.toCaseFolded();
    *to++ = c >= u'A' && c <= u'Z' ? QChar(c.unicode() - u'A' + u'a') : c;
  }
  return key;
}

/// Of several records of one name the first one counts.
void noteName(QHash<OdString, OdDbObjectId>& index, const OdString& name, OdDbObjectId id) {
  OdDbObjectId& noted = index[folded(name)];
  if (noted.isNull()) noted = id;
}

} // namespace

OdDbSymbolTableRecord::OdDbSymbolTableRecord() = default;

void OdDbSymbolTableRecord::setName(const OdString& name) {
  if (name.isEmpty())
    throw OdDbError(eInvalidName,
                    QStringLiteral("A %1 needs a name").arg(QLatin1String(dxfName())));
  OdSmartPtr<OdDbSymbolTable> table;
  if (isDBRO()) {
    table = ownerId().openObject();
    const OdDbObjectId found = table ? table->getAt(name) : OdDbObjectId();
    if (!found.isNull() && found != objectId())
      throw OdDbError(
          eDuplicateRecordName,
          QStringLiteral("There is a %1 \"%2\" already").arg(QLatin1String(dxfName()), name));
  }
  assertWriteEnabled();
  m_name = name;
  if (table) table->renamed();
}

void OdDbSymbolTableRecord::setFlag(int bit, bool on) {
  assertWriteEnabled();
  m_flags = on ? m_flags | bit : m_flags & ~bit;
}

void OdDbSymbolTableRecord::setIsDependent(bool dependent) {
  setFlag(kDependent | kResolved, dependent);
}

void OdDbSymbolTableRecord::replaceBy(const OdDbSymbolTableRecord& other) {
  assertWriteEnabled();
  const OdString name = m_name;
  assignFrom(other);
  m_name = name;
}

void OdDbSymbolTableRecord::assignFrom(const OdDbObject& other) {
  OdDbObject::assignFrom(other);
  const auto& record = static_cast<const OdDbSymbolTableRecord&>(other);
  m_name = record.m_name;
  m_flags = record.m_flags;
}

OdDbSymbolTable::OdDbSymbolTable() = default;

OdDbObjectId OdDbSymbolTable::getAt(const OdString& name) const {
  // What has no name is not found by one.
  if (name.isEmpty()) return {};
  if (!m_indexed) {
    m_index.clear();
    m_index.reserve(static_cast<qsizetype>(m_records.size()));
    for (const OdDbObjectId id : m_records) {
      const OdDbSymbolTableRecordPtr record = id.openObject();
      if (!record) continue;
      noteName(m_index, record->getName(), id);
    }
    m_indexed = true;
  }
  return m_index.value(folded(name));
}

OdDbObjectId OdDbSymbolTable::add(OdDbSymbolTableRecord* record) {
  if (!record || (record->getName().isEmpty() && !record->mayBeNameless()))
    throw OdDbError(eInvalidName, QStringLiteral("A record needs a name"));
  if (has(record->getName()))
    throw OdDbError(eDuplicateRecordName,
                    QStringLiteral("There is a %1 \"%2\" already")
                        .arg(QLatin1String(dxfRecordName()), record->getName()));
  if (!isWriteEnabled())
    throw OdDbError(eNotOpenForWrite, QStringLiteral("The table of %1 is not open for writing")
                                          .arg(QLatin1String(dxfRecordName())));
  return database()->addObject(record, objectId());
}

void OdDbSymbolTable::attach(OdDbObjectId id) {
  m_records.push_back(id);
  if (!m_indexed) return;
  const OdDbSymbolTableRecordPtr record = id.openObject();
  noteName(m_index, record->getName(), id);
}

OdDbSymbolTableIteratorPtr OdDbSymbolTable::newIterator(bool skipErased) const {
  return std::make_unique<OdDbSymbolTableIterator>(*this, skipErased);
}

void OdDbSymbolTable::assignFrom(const OdDbObject& other) { OdDbObject::assignFrom(other); }

OdDbSymbolTableIterator::OdDbSymbolTableIterator(const OdDbSymbolTable& table, bool skipErased)
  : m_table(const_cast<OdDbSymbolTable*>(&table))
  , m_skipErased(skipErased) {
  skip();
}

void OdDbSymbolTableIterator::step() {
  ++m_at;
  skip();
}

void OdDbSymbolTableIterator::skip() {
  while (m_skipErased && !done() && !getRecordId().isValid()) ++m_at;
}

OdDbSymbolTableRecordPtr OdDbSymbolTableIterator::getRecord(OdDb::OpenMode mode) const {
  return getRecordId().safeOpenObject(mode, !m_skipErased);
}
