// What of the drawing the model tab's window shows.
#pragma once

#include "drawing/database.h"

#include <optional>

namespace drafton {

/// A view from above. The width follows from the window's proportions.
struct DrawingView {
  OdGePoint2d center;
  double height = 1;
  bool operator==(const DrawingView&) const = default;
};

/// The view of the active viewport, as the drawing keeps it in its table of viewports.
DrawingView activeView(const OdDbDatabase& database);
/// Width by height of the active viewport.
double activeViewAspect(const OdDbDatabase& database);
/// A drawing without an active viewport gets one. `aspect` is that of the window, where it is
/// known.
void setActiveView(OdDbDatabase& database, const DrawingView& view,
                   std::optional<double> aspect = {});

/// The view that shows a box, touched by it at two sides at least. A box without size is shown with
/// the height `now`.
DrawingView viewOf(const OdGeExtents3d& box, double aspect, double now);

} // namespace drafton
