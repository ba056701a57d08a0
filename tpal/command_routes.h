// The commands that draw an object of a class, as the program beside this one knows them.
#pragma once

#include "host/command_menu.h"

#include <QList>

namespace tpal {

/// The stored path of the route map beside this program; empty if there is none.
OdString commandRouteMap();

/// The commands of the route map as entries of a menu, so that tools of several commands can become
/// tools of one without a window. An entry is called like its command and types it.
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
