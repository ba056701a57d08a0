// What the snapshots of symbol table records share.
#pragma once

#include "module/persist_impl.h"
#include "properties/symbol_table_record.h"

namespace tc {

class OdTcSymbolTableRecordImplBase : public OdTcPersistImpl<OdTcSymbolTableRecord> {
 public:
  OdString recordName() const override { return m_name; }
  void setRecordName(const OdString& name) override { m_name = name; }

 protected:
  /// Writes the name as the child that all records have.
  void writeName(OdTcFiler* filer) const;
  /// Takes that child; false for another name.
  bool readName(const OdString& name, const OdVariant& value);

 private:
  OdString m_name;
};

} // namespace tc
