#include "drafton/engine/hatch_settings.h"

namespace drafton {

OdVariant* HatchSettings::find(const OdString& key) {
  if (key == QLatin1String("hatch_type")) return &m_type;
  if (key == QLatin1String("hatch_pattern_file")) return &m_patternFile;
  return nullptr;
}

bool HatchSettings::get(const OdString& key, OdVariant& out) {
  const OdVariant* const value = find(key);
  if (value) out = *value;
  return value != nullptr;
}

void HatchSettings::set(const OdString& key, const OdVariant& value) {
  if (OdVariant* const known = find(key))
    *known = known == &m_type ? OdVariant(value.toInt32()) : OdVariant(value.toString());
}

} // namespace drafton
