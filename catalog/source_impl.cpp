#include "catalog/source_impl.h"

namespace tc {

bool OdTcToolSourceImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("ID"))
    m_id = value.toString();
  else if (name == QLatin1String("Palette"))
    m_palette = value.toString();
  else
    return false;
  return true;
}

} // namespace tc
