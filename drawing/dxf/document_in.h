// Reading whole drawings.
#pragma once

#include "drawing/dxf/bytes.h"
#include "drawing/dxf/in.h"
#include "drawing/dxf/missing_owners.h"
#include "drawing/dxf/start.h"

#include <array>
#include <functional>

class OdDbDxfAheadSource;

/// Reads a drawing section by section into an empty database.
class OdDbDxfReader {
 public:
  /// `start` is what a look ahead found, `name` the path for messages.
  OdDbDxfReader(OdDbDatabase& database, OdDbDxfSource& source, const oddxf::Start& start,
                OdString name);
  /// The same with entities that are read ahead.
  OdDbDxfReader(OdDbDatabase& database, OdDbDxfAheadSource& source, const oddxf::Start& start,
                OdString name);
  ~OdDbDxfReader();
  /// Raises OdFileError if nothing can be trusted.
  void read();

 private:
  void readSections();
  void readSection(const std::string& name);
  void passOverStray();
  void readHeader();
  void readClasses();
  void readTables();
  void readTable();
  void readRecord(OdDbSymbolTable& table);
  void readBlocks();
  void readBlock();
  OdDbObjectId blockNamed(const OdString& name);
  void readEntities(OdDbObjectId block);
  void readEntitiesOf(OdDbObjectId block);
  void readEntity(OdDbObjectId block);
  bool takeEntities(OdDbObjectId block);
  void enterEntity(std::string_view name, OdDbEntityPtr entity, OdDbObjectId block);
  /// Corners or attributes end here; a file may lack the mark that says so, which then is added.
  void endParent();
  OdDbBlockTableRecord& spaceOf(OdDbObjectId id);
  OdDbBlockTableRecord& spaceFor(OdDbObjectId block);
  void readObjects();
  bool takeObjects();
  void enterObject(OdDbObject& object);
  void keepSection(std::string_view name);
  void finish();
  void finishHeader();
  OdDbObjectId ensureRecord(OdDbDatabaseData::Table table, const char* name);
  void ensureTable(std::size_t table);
  void ensureTables();

  OdDbDatabase& m_database;
  OdDbDatabaseData& m_data;
  OdDbDxfIn m_in;
  OdDbDxfAheadSource* m_ahead = nullptr; ///< if entities are read ahead
  std::array<OdDbSymbolTablePtr, OdDbDatabaseData::kTableCount> m_tables;
  OdDbDxfMissingOwners m_owners{m_data};
  std::unordered_set<OdDbObjectId> m_readBlocks; ///< of a file without a table of blocks
  OdDbBlockTableRecordPtr m_space;               ///< of the last entity
  std::string m_name;
  std::uint64_t m_firstFree = 0; ///< what has a higher handle was made while reading
  bool m_tablesReady = false, m_trustworthy = false;
  // What follows a polyline or an insert belongs to it.
  OdDbEntity* m_parent = nullptr;
  bool m_parentLeftOut = false;
};

namespace oddxf {

/// Reads a drawing with up to `threads` threads; what comes of it does not depend on their number.
/// `make` gives the bytes from their beginning; it is called again behind a long look ahead.
/// `name` is the path for messages. Raises OdFileError if nothing can be trusted.
OdDbDatabasePtr readDocument(const std::function<OdDbDxfBytes()>& make, const OdString& name,
                             std::size_t threads);

/// A new drawing whose handles lie above `lastHandle`.
OdDbDatabasePtr newDocument(std::uint64_t lastHandle);

} // namespace oddxf
