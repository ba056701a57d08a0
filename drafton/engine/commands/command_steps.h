// The steps of commands that go on until Enter, which their Undo takes back one by one.
#pragma once

#include "drafton/engine/command_context.h"
#include "drawing/database.h"

#include <vector>

namespace drafton {

/// Takes back what was done since the last of the marks, and forgets that; says so if there is
/// none.
void takeBackStep(CommandContext& context, std::vector<OdDbUndoMark>& marks);

} // namespace drafton
