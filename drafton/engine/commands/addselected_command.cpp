// ADDSELECTED.

#include "drafton/engine/command_routes.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/current_values.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {

Task<void> addSelected(CommandContext& context) {
  OdString command;
  CurrentValues values(context);
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select object");
    if (picked.id.isNull()) co_return;
    const auto entity = picked.id.openAs<OdDbEntity>();
    command = startCommand(context.engine().commandRouteMap(), entity->isA()->name(),
                           QStringLiteral("ADDSELECTED"));
    values.take(*entity);
    if (values.hasGradient()) command = QStringLiteral("FASTGRADIENTCMD");
    if (!command.isEmpty()) break;
    context.print(translated(u"There is no command that draws objects of this kind."));
  }
  const CurrentValues former(context);
  values.makeCurrent(context);
  const bool isDrawn = context.run(command);
  former.makeCurrent(context);
  if (!isDrawn) throw CommandFailure(translated(u"%1 did not end.").arg(command));
}

} // namespace drafton
