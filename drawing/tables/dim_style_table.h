// Dimension styles.
#pragma once

#include "drawing/header_vars.h"
#include "drawing/tables/dim_vars.h"
#include "drawing/tables/symbol_table.h"

#include <bitset>

/// A dimension style: a value for each variable of dimensions.
class OdDbDimStyleTableRecord : public OdDbSymbolTableRecord {
  ODDB_CONCRETE(OdDbDimStyleTableRecord, "DIMSTYLE")

  // dimscale() and setDimscale(1.0) for DIMSCALE, and so on for all of them. Arrow blocks, text
  // style and line types are given by their ids; null stands for the usual one.
#define ODDB_DIM_ACCESSORS(accessor, Accessor, NAME, code, Type, preset)                           \
  const Type& accessor() const { return m_values.accessor; }                                       \
  void set##Accessor(const Type& value) { set(&OdDbDimVarValues::accessor, value); }
  ODDB_DIM_VARS(ODDB_DIM_ACCESSORS)
#undef ODDB_DIM_ACCESSORS

  const OdDbDimVarValues& values() const { return m_values; }
  void setValues(const OdDbDimVarValues& values);
  /// The value of a variable under its name in the header ("DIMSCALE"); records are given by name.
  /// Nothing for a name that is no variable of dimension styles.
  std::optional<OdDbVarValue> variable(const OdString& name) const;
  /// False if the name is not known, or the value of another kind; records are given by name or id.
  bool setVariable(const OdString& name, const OdDbVarValue& value);

  const char* dxfSubclass() const override { return "AcDbDimStyleTableRecord"; }
  // Code 5 is the name of an arrow block in a dimension style, so its handle has another code.
  int dxfHandleCode() const override { return 105; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOutXData(OdDbDxfOut& out) const override;

 protected:
  void dxfOutFields(OdDbDxfOut& out) const override;

 private:
  template <class T>
  void set(T OdDbDimVarValues::*member, const T& value) {
    assertWriteEnabled();
    m_values.*member = value;
  }

  OdDbDimVarValues m_values;
  std::bitset<128> m_inFile; ///< rows that the file has, though they may be as usual
  bool m_flagsRead = false, m_ownData = false; ///< while reading
};

/// The drawing's dimension styles.
ODDB_TABLE(OdDbDimStyleTable, OdDbDimStyleTableRecord, "DIMSTYLE");
