#include "drawing/dxf/shared.h"

OdDbObjectId OdDbDxfShared::recordNamed(OdDbDatabaseData::Table table, const OdString& name) {
  const std::lock_guard lock(m_mutex);
  // To open the table would end what others do with it.
  const OdDbStub* const stub = m_data.tables[table].stub();
  return static_cast<const OdDbSymbolTable&>(*stub->object).getAt(name);
}

OdDbStub* OdDbDxfShared::stubFor(OdDbHandle handle) {
  const std::lock_guard lock(m_mutex);
  const bool isThere = m_data.byHandle.find(handle) != OdDbHandleTable::kNone;
  return isThere || handle < m_data.handseed ? &m_data.stubFor(handle) : nullptr;
}
