// The ways in which PLINE asks for an arc.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/task.h"

namespace drafton {

/// One option of the arc mode: it asks for the rest of an arc from `start`, and gives none if there
/// is no such arc.
struct PolylineArcOption {
  const char16_t* keyword;
  Task<std::optional<ArcPath>> (*ask)(CommandContext& context, OdGePoint3d start);
};

/// The option of a keyword; null if the keyword is none of an arc.
const PolylineArcOption* findPolylineArcOption(QStringView keyword);

} // namespace drafton
