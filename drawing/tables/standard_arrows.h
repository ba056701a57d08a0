// The arrows that every drawing knows by name.
#pragma once

#include "drawing/object_id.h"

#include <optional>

namespace oddb {

/// True for the names of the filled arrow, which needs no block: nothing, ".", "_ClosedFilled".
bool isFilledArrow(const OdString& name);
/// True for the names of the blocks that standard arrows are made as, "_Dot" and the like, upper
/// and lower case being the same; for that of the filled one as well.
bool isStandardArrowBlock(const OdString& name);
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
