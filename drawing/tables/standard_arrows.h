// The arrows that every drawing knows by name. Not for use outside of the library.
#pragma once

#include "drawing/object_id.h"

#include <optional>

namespace oddb {

/// True for the names of the filled arrow, which needs no block: nothing, ".", "_ClosedFilled".
bool isFilledArrow(const OdString& name);
/// True for arrows that the dimension line runs through up to the tip.
bool lineReachesTip(const OdString& arrowName);

/// The name of the block for an arrow, as the drawing's styles and variables tell it: empty for the
/// filled one; of a block of the drawing its name; of a standard arrow, with or without the
/// underscore, the block that is made if it is not there. Nothing if there is no such arrow.
std::optional<OdString> arrowBlockNamed(OdDbDatabase& database, const OdString& name);
/// Old programs drew the standard arrows by themselves and left the underscore out: styles that
/// name empty blocks for them get the standard ones.
void useStandardArrows(OdDbDatabase& database);

} // namespace oddb
