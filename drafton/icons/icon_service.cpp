#include "drafton/icons/icon_service.h"

#include "drafton/icons/command_icon.h"

namespace drafton {

QImage IconService::icon(const OdString& name, int pixels) {
  QImage icon = commandIcon(name, pixels);
  if (icon.isNull() && m_findCommand) icon = commandIcon(m_findCommand(name), pixels);
  return icon;
}

} // namespace drafton
