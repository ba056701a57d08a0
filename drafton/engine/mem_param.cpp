#include "drafton/engine/mem_param.h"

namespace drafton {

void MemParam::setValue(const OdString& name, const OdVariant& value) {
  for (auto& [known, old] : m_values)
    if (known == name) {
      old = value;
      return;
    }
  m_values.emplace_back(name, value);
}

bool MemParam::value(const OdString& name, OdVariant& out) const {
  for (const auto& [known, found] : m_values)
    if (known == name) {
      out = found;
      return true;
    }
  return false;
}

QStringList MemParam::names() const {
  QStringList result;
  for (const auto& [name, value] : m_values) result << name;
  return result;
}

} // namespace drafton
