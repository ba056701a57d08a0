#include "properties/symbol_table_record_impl_base.h"

#include "drawing/database.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/record_names.h"
#include "host/host_locator.h"
#include "module/string_table.h"
#include "persistence/filer.h"
#include "properties/refusals.h"

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

namespace {

/// Why the drawing's tables allow no such name; empty if they do.
OdString nameFault(const OdString& name) {
  QChar sign;
  switch (oddbNameFault(name, &sign)) {
  case OdDbNameFault::kTooLong:
    return host::translate(QStringLiteral("the name is too long"));
  case OdDbNameFault::kSign:
    return formatText(host::translate(QStringLiteral("names must not have the character %s")),
                      OdString(sign));
  case OdDbNameFault::kControl:
    return host::translate(QStringLiteral("names must not have control characters"));
  case OdDbNameFault::kBlank:
    return host::translate(QStringLiteral("names must not begin or end with a blank"));
  case OdDbNameFault::kEmpty:
  case OdDbNameFault::kNone:
    break;
  }
  return {};
}

} // namespace

OdDbObjectId usableRecord(OdDbObjectId tableId, const OdString& name) {
  const OdDbObjectId found = tableId.openAs<OdDbSymbolTable>()->getAt(name);
  if (found.isNull() || !OdDbXRefMan::owns(*found.openAs<OdDbSymbolTableRecord>())) return found;
  tellRecordUnusable(host::translate(QStringLiteral(
                         "\n\"%s\" belongs to an external reference and cannot be used.")),
                     name);
  return {};
}

OdDbObjectId ensureRecord(OdDbDatabase* database, const OdTcSymbolTableRecord* snapshot) {
  if (!database || !snapshot || snapshot->recordName().isEmpty()) return {};
  const OdDbObjectId tableId = snapshot->tableId(database);
  const OdString name = snapshot->recordName();
  return tableId.openAs<OdDbSymbolTable>()->has(name) ? usableRecord(tableId, name)
                                                      : addRecord(database, *snapshot);
}

OdDbObjectId addRecord(OdDbDatabase* database, const OdTcSymbolTableRecord& snapshot) {
  const auto table = snapshot.tableId(database).openAs<OdDbSymbolTable>();
  if (const OdString fault = nameFault(snapshot.recordName()); !fault.isEmpty()) {
    tellRecordRefused(snapshot, fault);
    return {};
  }
  try {
    const OdDbSymbolTableRecordPtr record = snapshot.createRecord(database);
    table->upgradeOpen();
    const OdDbObjectId added = table->add(record);
    table->downgradeOpen();
    return added;
  } catch (const OdError_NotThatKindOfClass&) {
    throw;
  } catch (const OdError& error) {
    tellRecordRefused(snapshot, error.description());
    return {};
  }
}

} // namespace tc
