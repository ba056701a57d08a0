// The commands of the program beside this one: those of its menus, and which of them draw what.
#pragma once

#include "host/command_menu.h"

#include <QList>

namespace tpal {

/// The stored path of the route map beside this program; empty if there is none.
OdString commandRouteMap();

/// The commands of the menus, in English, so that tools can be made of commands, and tools of
/// several commands become tools of one, without a window. Empty without the program's list.
class RouteMenu : public IHostCommandMenu {
 public:
  bool queryInterface(KVInterfaceId id, void** out) override;
  // It lives as long as the process: its counts mean nothing.
  unsigned long addRef() override { return 1; }
  unsigned long release() override { return 1; }
  int count() override;
  HostMenuEntry entry(int index) override;

 private:
  const QList<HostMenuEntry>& entries();

  QList<HostMenuEntry> m_entries;
  bool m_isRead = false;
};

} // namespace tpal
