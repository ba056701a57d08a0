// Message boxes, whatever the host has for them.
#pragma once

#include "host/message_box.h"

namespace host {

/// Shows a message box in a style of messagebox. A host that knows no styles shows the text as it
/// does all others, and without a host nothing is shown: the answer is then the default button's.
messagebox::Answer showMessage(const OdString& text, const OdString& caption, unsigned style);

} // namespace host
