// MOVE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/displacement.h"
#include "drafton/engine/selection.h"

namespace drafton {

Task<void> move(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const MoverOf moverOf = [](const OdGeVector3d& shift) {
    return by(OdGeMatrix3d::translation(shift));
  };
  const OdGeVector3d shift = co_await askShift(context, chosen, moverOf);
  moveEntities(context, chosen, moverOf(shift), u"%1 could not be moved.");
}

} // namespace drafton
