// Dimension styles.
#pragma once

#include "drawing/header_vars.h"
#include "drawing/tables/symbol_table.h"

/// A dimension style. Its variables are kept as the file has them.
class OdDbDimStyleTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbDimStyleTableRecord);

 public:
  const char* dxfName() const override { return "DIMSTYLE"; }
  const char* dxfSubclass() const override { return "AcDbDimStyleTableRecord"; }
  // Code 5 is the name of an arrow block in a dimension style, so its handle has another code.
  int dxfHandleCode() const override { return 105; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;

  /// The value of one of the style's variables under its name in the header ("DIMSCALE"); records
  /// are given by name. Nothing for a name that is no variable of dimension styles.
  std::optional<OdDbVarValue> variable(const OdString& name) const;

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbDimStyleTableRecord>(); }

 private:
  bool m_flagsRead = false; ///< while reading
};

/// The drawing's dimension styles.
ODDB_TABLE(OdDbDimStyleTable, OdDbDimStyleTableRecord, "DIMSTYLE");
