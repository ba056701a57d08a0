// What those have in common who read one drawing at the same time.
#pragma once

#include "drawing/database_data.h"

#include <mutex>

/// One thread enters what is read into the drawing, in the order of the file. Helpers read ahead of
/// it, and may look for records by name and make stubs for references: only while they hold the
/// mutex, which the thread that enters holds unless it waits.
class OdDbDxfShared {
 public:
  explicit OdDbDxfShared(OdDbDatabase& database)
    : m_data(database.data()) {}

  std::mutex& mutex() { return m_mutex; }
  /// For helpers: the record of that name; null if there is none.
  OdDbObjectId recordNamed(OdDbDatabaseData::Table table, const OdString& name);
  /// For helpers: the stub of a handle. Null if it would have to be made where new objects get
  /// their handles: what comes of a file must not depend on how far helpers got.
  OdDbStub* stubFor(OdDbHandle handle);

 private:
  OdDbDatabaseData& m_data;
  std::mutex m_mutex;
};
