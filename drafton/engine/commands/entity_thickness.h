// The thickness of entities that can have one.
#pragma once

#include "drawing/entities/entity.h"

#include <optional>

namespace drafton {

/// Nothing for entities of kinds that have no thickness.
std::optional<double> thicknessOf(const OdDbEntity& entity);
/// False for entities of kinds that have no thickness.
bool setThickness(OdDbEntity& entity, double thickness);

} // namespace drafton
