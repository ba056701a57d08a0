// The scale at which the sheet that is drawn in is plotted.
#pragma once

#include <optional>

class OdDbDatabase;

namespace tc {

/// The standard scale of the active layout; nothing if the drawing has no record of it.
std::optional<double> activePlotScale(const OdDbDatabase& database);

} // namespace tc
