// Dimension styles.
#pragma once

#include "drawing/symbol_table.h"

/// A dimension style. Its variables are kept as the file has them.
class OdDbDimStyleTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbDimStyleTableRecord);

 public:
  const char* dxfName() const override { return "DIMSTYLE"; }
  const char* dxfSubclass() const override { return "AcDbDimStyleTableRecord"; }
  // Code 5 is the name of an arrow block in a dimension style, so its handle has another code.
  int dxfHandleCode() const override { return 105; }

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbDimStyleTableRecord>(); }
};

/// The drawing's dimension styles.
ODDB_TABLE(OdDbDimStyleTable, OdDbDimStyleTableRecord, "DIMSTYLE");
