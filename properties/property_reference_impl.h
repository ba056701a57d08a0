// Links an element of a line type to the snapshot of its text style: the implementation.
#pragma once

#include "module/persist_impl.h"
#include "properties/property_reference.h"

#include <cstdint>

namespace tc {

class OdTcPropertyReferenceImpl final : public OdTcPersistImpl<OdTcPropertyReference> {
 public:
  OdString elementName() const override { return QStringLiteral("Reference"); }
  std::uint64_t handle() const override { return m_handle; }
  void setHandle(std::uint64_t handle) override { m_handle = handle; }
  OdTcPersist* textStyle() const override { return m_textStyle; }
  /// Raises OdError_NotThatKindOfClass for anything but a text style property.
  void setTextStyle(OdTcPersist* textStyle) override;

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  std::uint64_t m_handle = 0;
  OdTcPersistPtr m_textStyle;
};

} // namespace tc
