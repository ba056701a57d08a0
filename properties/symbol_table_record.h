// Snapshots of symbol table records.
#pragma once

#include "module/persist.h"

class OdDbDatabase;

namespace tc {

/// A snapshot of a layer, line type, text style or dimension style, from which the record can be made
/// in a drawing that lacks it.
class OdTcSymbolTableRecord : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcSymbolTableRecord);

 public:
  /// The record's name in its table.
  virtual OdString recordName() const = 0;
  virtual void setRecordName(const OdString& name) = 0;
};
using OdTcSymbolTableRecordPtr = OdSmartPtr<OdTcSymbolTableRecord>;

} // namespace tc
