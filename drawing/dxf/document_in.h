// Reading whole drawings.
#pragma once

#include "drawing/dxf/in.h"

#include <array>

class OdDbRawEntity;

/// Reads a drawing section by section into an empty database.
class OdDbDxfReader {
 public:
  /// Makes the source again from its start, to look ahead in it.
  using SourceMaker = std::function<std::unique_ptr<OdDbDxfSource>()>;

  OdDbDxfReader(OdDbDatabase& database, SourceMaker maker, OdString name);
  /// Raises OdFileError if nothing can be trusted.
  void read();
  /// True for drawings of R12 and before, which are read into a new drawing.
  static bool isPlain(OdDbDxfSource& source);

 private:
  void look();
  void readSections();
  void readHeader();
  void readClasses();
  void readTables();
  void readTable();
  void readRecord(OdDbSymbolTable& table);
  void readBlocks();
  void readBlock();
  OdDbObjectId blockNamed(const OdString& name);
  void readEntities(OdDbObjectId block);
  void readEntity(OdDbObjectId block);
  OdDbObjectId spaceFor(OdDbObjectId block);
  void readObjects();
  void keepSection(std::string_view name);
  void finish();
  void finishHeader();
  OdDbObjectId ensureRecord(OdDbDatabaseData::Table table, const char* name);
  void ensureTables();

  OdDbDatabase& m_database;
  OdDbDatabaseData& m_data;
  SourceMaker m_maker;
  OdString m_name;
  std::unique_ptr<OdDbDxfSource> m_source;
  OdDbDxfIn m_in;
  std::array<OdDbSymbolTablePtr, OdDbDatabaseData::kTableCount> m_tables;
  bool m_tablesReady = false, m_trustworthy = false;
  // What follows a polyline or an insert belongs to it.
  OdDbEntity* m_parent = nullptr;
  bool m_parentLeftOut = false;
};
