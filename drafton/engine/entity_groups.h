// Groups of entities.
#pragma once

#include "drafton/engine/selection_picker.h"

namespace drafton {

/// The entities with all that are in a group with them that is chosen as a whole.
Selection withGroups(const OdDbDatabase& database, const Selection& entities);

/// The groups of which every entity is among those given.
std::vector<OdDbObjectId> wholeGroups(const OdDbDatabase& database, const Selection& entities);

} // namespace drafton
