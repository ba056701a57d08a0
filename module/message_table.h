// The numbered errors that the user sees.
#pragma once

#include "frame/string.h"

namespace tc {

enum class StringId : int;

/// The text of an error by its code, 0 to 5, in the user's language; empty for an unknown code.
/// With `showBox` the text, if there is one, is also shown in a message box with the picture of a
/// warning.
OdString showMessage(int code, bool showBox);
inline OdString showMessage(StringId code, bool showBox) {
  return showMessage(static_cast<int>(code), showBox);
}

/// Shows a text that has no number in the same way, and gives it back.
OdString showWarning(const OdString& text);

} // namespace tc
