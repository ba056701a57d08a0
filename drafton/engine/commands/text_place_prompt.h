// Asking where a line of text goes, how large it is and how it is turned.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/text_line.h"
#include "drafton/engine/task.h"

namespace drafton {

/// Asks for justification, text style, place, height and rotation. Enter at the first question puts
/// the line below the latest text of the class `kind` instead; if there is none, `nothingBelow`
/// says so and the questions come again.
Task<TextLayout> askTextLayout(CommandContext& context, const OdRxClass* kind,
                               QStringView nothingBelow);

} // namespace drafton
