#include "properties/property_bag_impl.h"

#include "module/persist_cast.h"
#include "persistence/filer.h"
#include "properties/owned_part.h"

namespace tc {

void OdTcPropertyBagImpl::add(OdTcProperty* property) {
  if (!property) return;
  if (!property->owner()) property->setOwner(this);
  m_properties.emplace_back(property);
}

OdTcEnumPtr<OdTcProperty> OdTcPropertyBagImpl::enumProperties() const {
  using Enum = OdTcEnumImpl<OdTcProperty, std::vector<OdTcPropertyPtr>>;
  return odrxMake<Enum>(this, m_properties);
}

OdTcProperty* OdTcPropertyBagImpl::findByName(const OdString& name) const {
  for (const OdTcPropertyPtr& property : m_properties)
    if (property->getDisplayName() == name) return property;
  return nullptr;
}

void OdTcPropertyBagImpl::writeFields(OdTcFiler* filer) {
  for (const OdTcPropertyPtr& property : m_properties) filer->writeObject(property);
}

bool OdTcPropertyBagImpl::readField(const OdString&, const OdVariant& value) {
  if (!value.isObject()) return false;
  add(persistCast<OdTcProperty>(value));
  return true;
}

OdRxObjectPtr OdTcPropertyBagImpl::clone() const {
  auto copy = odrxMake<OdTcPropertyBagImpl>();
  copy->m_name = m_name;
  copy->m_properties.reserve(m_properties.size());
  for (const OdTcPropertyPtr& property : m_properties)
    copy->m_properties.push_back(clonePart(property, copy));
  return copy;
}

} // namespace tc
