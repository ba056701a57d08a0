// The snapshot of a line type.
#pragma once

#include "properties/line_type_element.h"
#include "properties/symbol_table_record_impl_base.h"

#include <cstdint>

class OdDbLinetypeTableRecord;

namespace tc {

/// Element `LinetypeTableRecord`.
class OdTcLineTypeTableRecordImpl final : public OdTcSymbolTableRecordImplBase {
 public:
  OdTcLineTypeTableRecordImpl();

  OdString elementName() const override { return QStringLiteral("LinetypeTableRecord"); }
  QStringView what() const override { return u"line type"; }
  /// The number of dashes as the file or the drawing has it.
  std::int32_t numberOfDashes() const { return m_values.numberOfDashes; }
  OdString comments() const { return m_values.comments; }
  double patternLength() const { return m_values.patternLength; }
  /// Never null. Borrowed.
  OdTcLineTypeElementsList* elements() const { return m_elements; }
  /// Null if no text style is in use. Borrowed.
  OdTcTextStyleTableRecordCollection* textStyles() const { return m_textStyles; }

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

  OdSmartPtr<OdDbSymbolTableRecord> createRecord(OdDbDatabase* database) const override;
  void takeFrom(OdDbObjectId record) override;
  OdDbObjectId tableId(const OdDbDatabase* database) const override;

  struct Values {
    OdString comments;
    double patternLength = 0.0;
    std::int32_t numberOfDashes = 0;
  };

 private:
  void takeDash(const OdDbLinetypeTableRecord& record, int index);
  /// The drawing's text style for elements of that handle, made if need be; null without a
  /// snapshot.
  OdDbObjectId styleOf(std::uint64_t handle, OdDbDatabase* database) const;

  Values m_values;
  OdTcLineTypeElementsListPtr m_elements;
  OdTcTextStyleTableRecordCollectionPtr m_textStyles;
};

} // namespace tc
