// The command line of the program with a window.
#pragma once

#include "frame/string.h"

#include <optional>

namespace drafton {

struct DesktopOptions {
  QStringList drawings; ///< as the platform names them
  std::optional<OdString> catalogs;
  OdString profile;    ///< empty for the user's own settings
  QStringList unknown; ///< options that there are not
};

/// `arguments` are those behind the program's name; widgets' own ones were taken out.
DesktopOptions parseDesktopArguments(const QStringList& arguments);

} // namespace drafton
