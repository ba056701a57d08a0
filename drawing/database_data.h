// What a drawing consists of. Not for use outside of the library.
#pragma once

#include "drawing/database.h"
#include "drawing/file_stamp.h"
#include "drawing/seldom.h"
#include "drawing/undo.h"

#include <unordered_set>

/// A section or a part of one that is written back as it was read.
struct OdDbRawSection {
  QByteArray name;
  QByteArray tags; ///< lines as the writer writes them
};

/// One place in the order of the header's variables.
struct OdDbHeaderEntry {
  int known = -1;              ///< the row of the table, or -1
  std::int16_t code = 0;       ///< the group code in the file, or 0
  OdDbSeldom<QByteArray> tags; ///< the lines of a variable that the table does not know
};

struct OdDbDatabaseData {
  OdDbDatabaseData(const OdDbDatabaseData&) = delete;
  OdDbDatabaseData& operator=(const OdDbDatabaseData&) = delete;
  explicit OdDbDatabaseData(OdDbDatabase& database)
    : stubs(database)
    , undo(database) {}

  OdDbStubPool stubs;
  OdDbHandleTable byHandle;
  std::uint64_t handseed = 1;

  enum Table {
    kViewports,
    kLinetypes,
    kLayers,
    kTextStyles,
    kViews,
    kUcss,
    kRegApps,
    kDimStyles,
    kBlocks,
    kTableCount
  };
  OdDbObjectId tables[kTableCount];
  OdDbObjectId rootDictionary, modelSpace, paperSpace;
  OdDbObjectId layerZero, byLayer, byBlock, continuous, textStyleStandard;

  std::vector<OdDbVarValue> vars; ///< one for each row of the table
  std::vector<char> varPresent;   ///< the variable stands in the file
  std::vector<OdDbHeaderEntry> headerOrder;

  QByteArray classes;
  std::vector<OdDbRawSection> otherSections;
  std::unordered_set<OdDbObjectId> transient; ///< came with external references: files lack them
  std::vector<OdDbObjectId> objects;          ///< of the OBJECTS section, in the order of the file
  QByteArray encoding = "UTF-8";              ///< in which kept tags stand

  OdString fileName;
  OdDbFileStamp fileStamp; ///< of the file when it was read or written
  QStringList unknownContent, readNotes;
  OdDb::DwgVersion version = OdDb::kR2018;
  bool modified = false;

  OdDbUndo undo;
  std::vector<OdDbDatabaseReactor*> reactors;
  std::vector<OdDbStub*> changed;

  /// The stub of a handle, made if there is none.
  OdDbStub& stubFor(OdDbHandle handle);
  /// Notes that an object has changed or is about to.
  void noteChange(OdDbStub& stub);
  template <class F>
  void tell(F call) {
    // A reactor may take itself away from within the call.
    const auto all = reactors;
    for (OdDbDatabaseReactor* r : all) call(*r);
  }
};

/// The table in which the values of a variable are found by name; nothing for other variables.
std::optional<OdDbDatabaseData::Table> oddbTableOf(const OdDbHeaderVarInfo& row);
/// The first version of the files that knows the variable.
OdDb::DwgVersion oddbHeaderVarSince(const OdDbHeaderVarInfo& row);
/// The value of a new drawing; records are given by name.
OdDbVarValue oddbPresetOf(const OdDbHeaderVarInfo& row);
inline OdString oddbPresetText(const OdDbHeaderVarInfo& row) { return QLatin1String(row.preset); }
