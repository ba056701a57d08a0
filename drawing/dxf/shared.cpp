#include "drawing/dxf/shared.h"

#include <thread>

namespace {

/// The other thread lets go after a few entities, and to be woken then takes longer than that.
std::unique_lock<std::mutex> lockSoon(std::mutex& mutex) {
  constexpr int kTries = 100;
  std::unique_lock lock(mutex, std::try_to_lock);
  for (int i = 0; i < kTries && !lock; ++i) {
    std::this_thread::yield();
    (void)lock.try_lock();
  }
  if (!lock) lock.lock();
  return lock;
}

} // namespace

OdDbObjectId OdDbDxfShared::recordNamed(OdDbDatabaseData::Table table, const OdString& name) {
  const std::unique_lock lock = lockSoon(m_mutex);
  // To open the table would end what others do with it.
  const OdDbStub* const stub = m_data.tables[table].stub();
  return static_cast<const OdDbSymbolTable&>(*stub->object).getAt(name);
}

OdDbStub* OdDbDxfShared::stubFor(OdDbHandle handle) {
  const std::unique_lock lock = lockSoon(m_mutex);
  const bool isThere = m_data.byHandle.find(handle) != OdDbHandleTable::kNone;
  return isThere || handle < m_data.handseed ? &m_data.stubFor(handle) : nullptr;
}
