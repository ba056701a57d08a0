// Scale factors as ZOOM takes them.
#pragma once

#include "frame/string.h"

#include <optional>

namespace drafton {

/// A factor above 0, and what it is measured against.
struct ZoomScale {
  enum class Against {
    kLimits,  ///< "2": the view of the drawing's limits
    kCurrent, ///< "2x": the present view
    kPaper,   ///< "2xp": units of the sheet
  };
  double factor = 1;
  Against against = Against::kLimits;
};

/// None if the text is no such factor.
std::optional<ZoomScale> parseZoomScale(QStringView text);

} // namespace drafton
