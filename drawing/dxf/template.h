// The drawing that a new one starts from.
#pragma once

#include <string_view>

namespace oddxf {

/// The drawing without its header, in the short form that OdDbDxfShortSource reads.
std::string_view newDrawing();

} // namespace oddxf
