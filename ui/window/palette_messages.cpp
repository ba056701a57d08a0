#include "ui/window/palette_messages.h"

#include "host/host_locator.h"
#include "host/window_services.h"

#include <QCoreApplication>
#include <QWidget>

namespace tc {
namespace {

int numberOf(const char16_t* name) {
  const auto windows = host::service<IHostWindowServices>();
  return windows ? windows->registeredMessage(OdString::fromUtf16(name)) : 0;
}

} // namespace

int closedMessage() { return numberOf(u"WM_TC_PALETTE_CLOSED"); }
int customizeMessage() { return numberOf(u"WM_TC_CUSTOMIZE"); }

void registerPaletteMessages() {
  closedMessage();
  customizeMessage();
}

void sendPaletteClosed(QWidget& window) {
  const int message = closedMessage();
  if (message == 0) return;
  HostMessage event(message);
  QCoreApplication::sendEvent(&window, &event);
}

} // namespace tc
