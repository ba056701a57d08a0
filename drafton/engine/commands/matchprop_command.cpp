// MATCHPROP.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/entity_thickness.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {

Task<void> matchProperties(CommandContext& context) {
  const PickedEntity source = co_await selectEntity(context, u"Select source object");
  if (source.id.isNull()) co_return;
  const Selection chosen = co_await selectObjects(context, u"Select destination objects");
  const OdDbEntityPtr from = source.id.openObject();
  const std::optional<double> thickness = thicknessOf(*from);
  for (const OdDbObjectId& id : chosen) {
    const auto entity = id.openAs<OdDbEntity>(OdDb::kForWrite);
    entity->setPropertiesFrom(*from);
    if (thickness) setThickness(*entity, *thickness);
  }
}

} // namespace drafton
