#include "drafton/engine/commands/drawing_session.h"

#include "drafton/engine/document.h"

namespace drafton {

DrawingSession& DrawingSession::of(const CommandContext& context) {
  // No variable has such a name, so nobody meets the object who does not look for it.
  OdVariant& slot = context.document().values()[QStringLiteral("*SESSION")];
  if (!slot.isObject()) slot = OdVariant(odrxMake<DrawingSession>());
  return *static_cast<DrawingSession*>(slot.object());
}

} // namespace drafton
