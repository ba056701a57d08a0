// MOVE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/displacement.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

Task<OdGeVector3d> askMove(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> base = co_await input.point(
      {.text = u"Specify base point", .keywords = u"Displacement", .allowEmpty = true});
  if (!base.isValue()) co_return co_await askDisplacement(context);
  const Answer<OdGePoint3d> second = co_await input.point(
      {.text = u"Specify second point (Enter: use first point as displacement)",
       .base = base.value,
       .allowEmpty = true});
  co_return second.isEmpty() ? base.value.asVector() : second.value - base.value;
}

} // namespace

Task<void> move(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const OdGeVector3d shift = co_await askMove(context);
  int failed = 0;
  for (const OdDbObjectId& id : chosen) {
    const auto entity = id.openAs<OdDbEntity>(OdDb::kForWrite);
    if (!displace(*entity, shift)) ++failed;
  }
  if (failed > 0) context.print(translated(u"%1 could not be moved.").arg(failed));
}

} // namespace drafton
