// The concrete values of general properties: a colour, or the snapshot of a named record.
#pragma once

#include "drawing/color.h"
#include "module/persist_impl.h"
#include "properties/property_create_info.h"
#include "properties/symbol_table_record.h"

#include <QStringView>

#include <optional>

namespace tc {

template <class T>
class OdTcPropertyCreateInfoImplBase : public OdTcPersistImpl<T> {
 public:
  /// True if there is no value: such a create info imposes nothing and is not written.
  virtual bool isEmpty() const = 0;
};
using OdTcPropertyCreateInfoBase = OdTcPropertyCreateInfoImplBase<OdTcPropertyCreateInfo>;

/// Element `ColorCreateInfo`.
class OdTcColorPropertyCreateInfoImpl final : public OdTcPropertyCreateInfoBase {
 public:
  OdString elementName() const override { return QStringLiteral("ColorCreateInfo"); }
  bool isEmpty() const override { return !m_color.has_value(); }
  /// By layer if no colour was set.
  OdCmColor color() const { return m_color.value_or(OdCmColor()); }
  void setColor(const OdCmColor& color) { m_color = color; }

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  std::optional<OdCmColor> m_color;
};

/// What tells one kind of named record from another.
struct RecordInfoKind {
  QStringView element;       ///< of the create info
  QStringView recordElement; ///< of the snapshot
  OdTcSymbolTableRecordPtr (*makeRecord)();
  bool (*isRecord)(const OdRxObject* object);
};
extern const RecordInfoKind kLayerInfo, kLineTypeInfo, kTextStyleInfo, kDimStyleInfo;

/// A create info that owns the snapshot of a named record.
class OdTcRecordCreateInfo : public OdTcPropertyCreateInfoBase {
 public:
  virtual const RecordInfoKind& kind() const = 0;

  OdString elementName() const override { return kind().element.toString(); }
  bool isEmpty() const override { return m_record.isNull(); }
  /// The name of the record; empty if there is no snapshot.
  OdString name() const { return m_record ? m_record->recordName() : OdString(); }
  /// The snapshot, or null. Borrowed.
  OdTcSymbolTableRecord* record() const { return m_record; }
  /// Raises OdError_NotThatKindOfClass for a snapshot of another kind.
  void setRecord(OdTcSymbolTableRecord* record);

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;

 protected:
  void copyTo(OdTcRecordCreateInfo& copy) const;

 private:
  OdTcSymbolTableRecordPtr m_record;
};

template <const RecordInfoKind& Kind>
class OdTcRecordCreateInfoImpl final : public OdTcRecordCreateInfo {
 public:
  const RecordInfoKind& kind() const override { return Kind; }
  OdRxObjectPtr clone() const override {
    auto copy = odrxMake<OdTcRecordCreateInfoImpl>();
    copyTo(*copy);
    return copy;
  }
};

using OdTcLayerPropertyCreateInfoImpl = OdTcRecordCreateInfoImpl<kLayerInfo>;
using OdTcLineTypePropertyCreateInfoImpl = OdTcRecordCreateInfoImpl<kLineTypeInfo>;
using OdTcTextStylePropertyCreateInfoImpl = OdTcRecordCreateInfoImpl<kTextStyleInfo>;
using OdTcDimStylePropertyCreateInfoImpl = OdTcRecordCreateInfoImpl<kDimStyleInfo>;

} // namespace tc
