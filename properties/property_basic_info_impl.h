// Whether and how a general property is set: its implementation.
#pragma once

#include "module/persist_impl.h"
#include "properties/property_basic_info.h"

#include <cstdint>

namespace tc {

/// Kept small: every general property of every tool has one.
class OdTcPropertyBasicInfoImpl final : public OdTcPersistImpl<OdTcPropertyBasicInfo> {
 public:
  OdString elementName() const override { return QStringLiteral("BasicPropInfo"); }

  bool isUnspecified() const override { return m_unspecified; }
  void setUnspecified(bool unspecified) override { m_unspecified = unspecified; }
  std::int32_t valueType() const override { return m_valueType; }
  void setValueType(std::int32_t type) override;
  bool hasValueType() const override { return m_hasValueType; }
  OdVariant value() const override { return m_value; }
  void setValue(const OdVariant& value) override { m_value = value; }

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdVariant m_value;
  std::int32_t m_valueType = 0;
  bool m_unspecified = false;
  bool m_hasValueType = false;
};

} // namespace tc
