// The host's map from the class of a drawing object to the command that draws one like it.
#pragma once

#include "frame/string.h"

namespace tc {

/// The command that the host's route map gives for adding an object of that class; empty if the
/// host has no map, the map cannot be read, or the class is not in it. In the map's XML it is
/// "Entries/Entry[OdRxClassInfo[@className=...]]/Command[@name="ADDSELECTED"]/StartCommand/@name".
OdString addSelectedCommand(const OdString& className);

} // namespace tc
