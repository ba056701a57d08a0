#include "properties/symbol_table_record_impl_base.h"

#include "drawing/database.h"
#include "persistence/filer.h"

namespace tc {

void OdTcSymbolTableRecordImplBase::writeName(OdTcFiler* filer) const {
  // An element without a text would end the reading of the record.
  if (!m_name.isEmpty()) filer->writeElement(QStringLiteral("SymbolTableNameRecord"), m_name);
}

bool OdTcSymbolTableRecordImplBase::readName(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("SymbolTableNameRecord")) return false;
  m_name = value.toString();
  return true;
}

OdDbObjectId ensureRecord(OdDbDatabase* database, const OdTcSymbolTableRecord* snapshot) {
  if (!database || !snapshot || snapshot->recordName().isEmpty()) return {};
  const auto table = snapshot->tableId(database).openAs<OdDbSymbolTable>();
  if (const OdDbObjectId found = table->getAt(snapshot->recordName())) return found;
  const OdDbSymbolTableRecordPtr record = snapshot->createRecord(database);
  if (!record) return {};
  table->upgradeOpen();
  const OdDbObjectId added = table->add(record);
  table->downgradeOpen();
  return added;
}

} // namespace tc
