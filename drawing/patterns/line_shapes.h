// Shapes that line types carry.
#pragma once

#include "drawing/geometry/geometry.h"
#include "frame/string.h"

#include <cstdint>
#include <vector>

/// A small figure of lines. Drawings name shapes by a number in a compiled file that is rarely at
/// hand, so the program has figures of its own for the usual numbers.
struct OdLineShape {
  std::uint16_t number;
  const char16_t* name;
  /// "M x y" moves, "L x y" draws a line, "A x y r start sweep" an arc (degrees).
  const char* path;
};

namespace odpattern {

/// The shape of a name in any case; null if there is none.
const OdLineShape* findShape(const OdString& name);
/// The shape of a number; null if there is none.
const OdLineShape* findShape(std::uint16_t number);
/// The figure as open lines; arcs as chords.
std::vector<std::vector<OdGePoint2d>> shapeLines(const OdLineShape& shape);

} // namespace odpattern
