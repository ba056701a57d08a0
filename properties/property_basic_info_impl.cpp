#include "properties/property_basic_info_impl.h"

#include "persistence/filer.h"
#include "persistence/xml_text.h"

namespace tc {

void OdTcPropertyBasicInfoImpl::setValueType(std::int32_t type) {
  m_valueType = type;
  m_hasValueType = true;
}

void OdTcPropertyBasicInfoImpl::writeFields(OdTcFiler* filer) {
  OdTcFieldMap map;
  map.set(QStringLiteral("unspecified"), boolText(m_unspecified, BoolStyle::kCapitals));
  if (m_hasValueType) map.set(QStringLiteral("valueType"), OdString::number(m_valueType));
  // Some values have no text in a file, such as arrays.
  if (!m_unspecified && !valueText(m_value, OdTcNumberForm::kUnsigned).isEmpty())
    map.set(QStringLiteral("value"), m_value);
  filer->writeElementAttributes(QStringLiteral("PropValue"), map);
}

bool OdTcPropertyBasicInfoImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("unspecified"))
    m_unspecified = boolFromText(value.toString());
  else if (name == QLatin1String("valueType"))
    setValueType(static_cast<std::int32_t>(odParseInt(value.toString())));
  else if (name == QLatin1String("value"))
    m_value = value;
  else
    return false;
  return true;
}

OdRxObjectPtr OdTcPropertyBasicInfoImpl::clone() const {
  auto copy = odrxMake<OdTcPropertyBasicInfoImpl>();
  copy->m_value = m_value;
  copy->m_valueType = m_valueType;
  copy->m_hasValueType = m_hasValueType;
  copy->m_unspecified = m_unspecified;
  return copy;
}

} // namespace tc
