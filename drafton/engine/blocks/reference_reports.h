// What is told of external references.
#pragma once

#include "drawing/objects/xref_manager.h"

namespace drafton {

/// What became of a reference, as a line for users: its name, its file and the reason.
OdString reportLine(const OdDbXRefMan::Report& report);
/// One word or two for a list: "loaded", "unloaded", "not found" ...
OdString stateName(OdDbXRefMan::Result result);

} // namespace drafton
