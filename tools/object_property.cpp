#include "tools/object_property.h"

#include "host/host_locator.h"

namespace tc {

OdString OdTcObjectProperty::getDisplayName() const {
  return host::translate(m_caption.toString());
}

OdString fileDialogFilter(const OdString& name, std::span<const QStringView> extensions) {
  QStringList patterns;
  for (const QStringView extension : extensions)
    patterns << QStringLiteral("*.") + extension.toString();
  return QStringLiteral("%1 (%2)").arg(name, patterns.join(u' '));
}

} // namespace tc
