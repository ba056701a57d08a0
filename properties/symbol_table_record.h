// Snapshots of symbol table records.
#pragma once

#include "drawing/object_id.h"
#include "module/persist.h"

class OdDbDatabase;
class OdDbSymbolTableRecord;

namespace tc {

/// A snapshot of a layer, line type, text style or dimension style, from which the record can be
/// made in a drawing that lacks it.
class OdTcSymbolTableRecord : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcSymbolTableRecord);

 public:
  /// The record's name in its table.
  virtual OdString recordName() const = 0;
  virtual void setRecordName(const OdString& name) = 0;

  /// What the record is, in English: "layer".
  virtual QStringView what() const = 0;

  /// A new record filled from the snapshot, ready to be added to the drawing's table. What the
  /// record refers to is found in the drawing or added to it. Raises OdError for values that no
  /// drawing takes.
  virtual OdSmartPtr<OdDbSymbolTableRecord> createRecord(OdDbDatabase* database) const = 0;
  /// Fills the snapshot from the drawing's record. Raises OdError_NotThatKindOfClass for another
  /// kind of object, and OdError for a null id.
  virtual void takeFrom(OdDbObjectId record) = 0;
  /// The table of such records.
  virtual OdDbObjectId tableId(const OdDbDatabase* database) const = 0;
};
using OdTcSymbolTableRecordPtr = OdSmartPtr<OdTcSymbolTableRecord>;

/// The drawing's record of that name in the table; null if there is none. The user is told of one
/// that belongs to an external reference: it cannot be used, and null is given.
OdDbObjectId usableRecord(OdDbObjectId table, const OdString& name);
/// The drawing's record of the snapshot's name. If there is none, it is made from the snapshot and
/// added; an existing record is used as it stands. Null for a snapshot without a name, and if the
/// record cannot be made, of which the user is told. Raises OdError_NotThatKindOfClass if the table
/// cannot be opened.
OdDbObjectId ensureRecord(OdDbDatabase* database, const OdTcSymbolTableRecord* snapshot);
/// The same for a snapshot whose name the drawing is known to lack.
OdDbObjectId addRecord(OdDbDatabase* database, const OdTcSymbolTableRecord& snapshot);

} // namespace tc
