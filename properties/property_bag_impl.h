// A set of properties: the implementation.
#pragma once

#include "module/persist_impl.h"
#include "properties/property_bag.h"

#include <vector>

namespace tc {

class OdTcPropertyBagImpl final : public OdTcPersistImpl<OdTcPropertyBag> {
 public:
  OdString elementName() const override { return QStringLiteral("GeneralProperties"); }

  /// A property without an owner gets the bag as its owner.
  void add(OdTcProperty* property) override;
  OdString getName() const override { return m_name; }
  void setName(const OdString& name) override { m_name = name; }
  OdTcEnumPtr<OdTcProperty> enumProperties() const override;
  OdTcProperty* findByName(const OdString& name) const override;
  int count() const override { return static_cast<int>(m_properties.size()); }
  void clear() override { m_properties.clear(); }

  void writeFields(OdTcFiler* filer) override;
  /// Takes any property object. An object of another class raises OdError_NotThatKindOfClass.
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  std::vector<OdTcPropertyPtr> m_properties;
  OdString m_name;
};

} // namespace tc
