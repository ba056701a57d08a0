// The snapshot of a dimension style.
#pragma once

#include "properties/dim_style_parts.h"
#include "properties/dim_style_variables.h"
#include "properties/symbol_table_record_impl_base.h"

#include <array>

namespace tc {

/// Element `DimstyleTableRecord`.
class OdTcDimStyleTableRecordImpl final : public OdTcSymbolTableRecordImplBase {
 public:
  OdString elementName() const override { return QStringLiteral("DimstyleTableRecord"); }
  QStringView what() const override { return u"dimension style"; }
  const OdTcDimStyleVariables& variables() const { return m_variables; }
  OdTcDimStyleVariables& variables() { return m_variables; }
  /// May be null. Borrowed.
  OdTcDimStylePart* part(DimStylePart part) const {
    return m_parts[static_cast<std::size_t>(part)];
  }
  /// Puts the part in its place and takes a reference.
  void setPart(OdTcDimStylePart* part);

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

  OdSmartPtr<OdDbSymbolTableRecord> createRecord(OdDbDatabase* database) const override;
  void takeFrom(OdDbObjectId record) override;
  OdDbObjectId tableId(const OdDbDatabase* database) const override;

 private:
  OdTcDimStyleVariables m_variables;
  std::array<OdTcDimStylePartPtr, kDimStylePartCount> m_parts;
};

} // namespace tc
