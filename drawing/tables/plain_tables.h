// Tables whose records are known by name, and kept whole as the file has them.
#pragma once

#include "drawing/tables/symbol_table.h"
#include "drawing/tables/view_table.h"

/// Declares a record of which the name and the flags are understood.
#define ODDB_PLAIN_RECORD(Class, DXF_NAME, SUBCLASS)                                               \
  class Class : public OdDbSymbolTableRecord {                                                     \
    ODRX_DECLARE_MEMBERS(Class);                                                                   \
                                                                                                   \
   public:                                                                                         \
    const char* dxfName() const override { return DXF_NAME; }                                      \
    const char* dxfSubclass() const override { return SUBCLASS; }                                  \
                                                                                                   \
   protected:                                                                                      \
    OdDbObjectPtr newInstance() const override { return odrxMake<Class>(); }                       \
  }

/// An application that keeps extended data in the drawing.
ODDB_PLAIN_RECORD(OdDbRegAppTableRecord, "APPID", "AcDbRegAppTableRecord");

ODDB_TABLE(OdDbRegAppTable, OdDbRegAppTableRecord, "APPID");
