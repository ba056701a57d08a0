// Where the last line or arc ended, to go on from there.
#pragma once

#include "drawing/database.h"

#include <optional>

namespace drafton {

/// The end of something drawn.
struct DrawnEnd {
  OdGePoint3d point;
  double direction = 0; ///< of travel, in radians
  bool isCurved = false;
};

/// The end of the latest line, arc or polyline in the current space. An arc does not tell which of
/// its ends was drawn last; if one is at `lastPoint` it is that one, else its counterclockwise end.
std::optional<DrawnEnd> lastDrawnEnd(const OdDbDatabase& database, const OdGePoint3d& lastPoint);

} // namespace drafton
