#include "host/show_message.h"

#include "host/host_locator.h"

namespace host {

messagebox::Answer showMessage(const OdString& text, const OdString& caption, unsigned style) {
  if (const KVPtr<IHostMessageBoxes> boxes = service<IHostMessageBoxes>())
    return boxes->show(text, caption, style);
  if (const KVPtr<IHostMessages> messages = service<IHostMessages>())
    messages->messageBox(text, caption);
  return messagebox::defaultOf(style);
}

} // namespace host
