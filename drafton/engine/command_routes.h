// The command route map: which command does what for entities of a class.
#pragma once

#include "frame/string.h"

namespace drafton {

/// The name of the command that `command` ("ADDSELECTED") starts for entities of a class, as the
/// map in the file of a stored path says. Empty if the map has no such entry or cannot be read.
OdString startCommand(const OdString& mapPath, const OdString& className, const OdString& command);

} // namespace drafton
