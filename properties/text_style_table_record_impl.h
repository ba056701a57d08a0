// The snapshot of a text style.
#pragma once

#include "properties/symbol_table_record_impl_base.h"

#include <cstdint>

namespace tc {

/// The values of a text style; angles in radians.
struct OdTcTextStyleValues {
  OdString fontOrShapeFile;
  OdString bigFontFile; ///< kept in memory only
  OdString typeFace;
  double widthRatio = 1.0;
  double fixedHeight = 0.0;
  double obliqueAngle = 0.0;
  double priorHeight = 0.0;
  std::int32_t charSet = 0;
  std::int32_t pitchAndFamily = 0;
  bool isShapeFile = false;
  bool isMirroredInX = false;
  bool isMirroredInY = false;
  bool isVertical = false;
  bool isBold = false;
  bool isItalic = false;
  bool operator==(const OdTcTextStyleValues&) const = default;
};

/// Element `TextstyleTableRecord`.
class OdTcTextStyleTableRecordImpl final : public OdTcSymbolTableRecordImplBase {
 public:
  OdString elementName() const override { return QStringLiteral("TextstyleTableRecord"); }
  QStringView what() const override { return u"text style"; }
  const OdTcTextStyleValues& values() const { return m_values; }
  void setValues(const OdTcTextStyleValues& values) { m_values = values; }

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

  OdSmartPtr<OdDbSymbolTableRecord> createRecord(OdDbDatabase* database) const override;
  void takeFrom(OdDbObjectId record) override;
  OdDbObjectId tableId(const OdDbDatabase* database) const override;

 private:
  OdTcTextStyleValues m_values;
};

} // namespace tc
