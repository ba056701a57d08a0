#include "tools/menu_command.h"

#include "host/host_locator.h"
#include "persistence/value_storage.h"

namespace tc {

std::optional<HostMenuEntry> findMenuCommand(const OdString& name) {
  const KVPtr<IHostCommandMenu> menu = host::service<IHostCommandMenu>();
  const int count = menu ? menu->count() : 0;
  for (int i = 0; i < count; ++i) {
    HostMenuEntry entry = menu->entry(i);
    if (entry.isCommand && entry.commandName.compare(name, Qt::CaseInsensitive) == 0) return entry;
  }
  return std::nullopt;
}

OdString toolNameOf(const HostMenuEntry& command) {
  if (!command.label.isEmpty())
    return OdTcValueStorageImpl::hasOwnDisplayName(command.commandName)
               ? host::translate(command.label)
               : command.label;
  OdString tip = command.shortText;
  tip.remove(u'&');
  return tip.isEmpty() ? host::translate(command.commandName) : tip;
}

} // namespace tc
