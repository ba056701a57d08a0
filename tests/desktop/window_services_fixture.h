// The services that the window offers to modules.
#pragma once

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/host_pane.h"
#include "drafton/desktop/window_services.h"

class WindowServicesTest : public DesktopFixture {
 protected:
  KVPtr<IHostWindowServices> windows() {
    return kvQuery<IHostWindowServices>(&desktop().engine().services());
  }
  drafton::PaneDock* dock() { return window().findChild<drafton::PaneDock*>(); }
};
