// The snapshot of a layer.
#pragma once

#include "properties/property.h"
#include "properties/symbol_table_record_impl_base.h"

#include <cstdint>

class OdCmColor;

namespace tc {

/// Element `LayerTableRecord`.
class OdTcLayerTableRecordImpl final : public OdTcSymbolTableRecordImplBase {
 public:
  OdString elementName() const override { return QStringLiteral("LayerTableRecord"); }
  QStringView what() const override { return u"layer"; }

  bool isNotPlotted() const { return m_values.isNotPlotted; }
  void setNotPlotted(bool notPlotted) { m_values.isNotPlotted = notPlotted; }
  /// Hundredths of a millimetre; -1, -2 and -3 as the drawing has them.
  std::int32_t lineWeight() const { return m_values.lineWeight; }
  void setLineWeight(std::int32_t weight) { m_values.lineWeight = weight; }
  OdString plotStyleName() const { return m_values.plotStyleName; }
  void setPlotStyleName(const OdString& name) { m_values.plotStyleName = name; }
  /// The colour property (OdTcColorPropertyImpl), or null. Borrowed.
  OdTcDatabaseProperty* color() const { return m_color; }
  void setColor(const OdCmColor& color);
  /// The line type property (OdTcLineTypePropertyImpl), or null. Borrowed.
  OdTcDatabaseProperty* lineType() const { return m_lineType; }
  /// Raises OdError_NotThatKindOfClass for another kind of property.
  void setLineType(OdTcDatabaseProperty* lineType);

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

  OdSmartPtr<OdDbSymbolTableRecord> createRecord(OdDbDatabase* database) const override;
  void takeFrom(OdDbObjectId record) override;
  OdDbObjectId tableId(const OdDbDatabase* database) const override;

  struct Values {
    OdString plotStyleName;
    std::int32_t lineWeight = -3; // the program's default width
    bool isNotPlotted = false;
  };

 private:
  Values m_values;
  OdTcDatabasePropertyPtr m_color;
  OdTcDatabasePropertyPtr m_lineType;
};

} // namespace tc
