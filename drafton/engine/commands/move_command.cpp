// MOVE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/displacement.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/selection.h"

namespace drafton {
namespace {

Task<OdGeVector3d> askMove(CommandContext& context, const Selection& chosen) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> base = co_await input.point(
      {.text = u"Specify base point", .keywords = u"Displacement", .enterText = u"Displacement"});
  if (!base.isValue()) co_return co_await askDisplacement(context);
  const auto moved = [&](const OdGePoint3d& to) {
    return movedShapes(chosen, by(OdGeMatrix3d::translation(to - base.value)));
  };
  const Answer<OdGePoint3d> second =
      co_await input.point({.text = u"Specify second point",
                            .base = base.value,
                            .enterText = u"use first point as displacement",
                            .preview = moved});
  co_return second.isEmpty() ? displacementOf(base) : second.value - base.value;
}

} // namespace

Task<void> move(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const OdGeVector3d shift = co_await askMove(context, chosen);
  moveEntities(context, chosen, by(OdGeMatrix3d::translation(shift)), u"%1 could not be moved.");
}

} // namespace drafton
