// The units of drawings and blocks.
#pragma once

#include "frame/string.h"

namespace drafton {

/// The name of a value of $INSUNITS, such as "Millimeters"; "Unitless" for 0 and for unknown ones.
OdString unitName(int units);

/// How many of the units `to` one of the units `from` is; 1 if one of them is unitless or unknown.
double unitFactor(int from, int to);

} // namespace drafton
