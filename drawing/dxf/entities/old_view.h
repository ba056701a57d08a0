// The views of windows on sheets as files before R2000 have them.
#pragma once

#include "drawing/dxf/in.h"
#include "drawing/entities/viewport.h"

namespace oddxf {

/// Those files keep what a window shows in extended data of the format itself ("MVIEW"). Takes it
/// into the view and away from the window's extended data. What is not as it should be is told as a
/// note, and stays where it is.
void takeOldView(OdDbViewport& viewport, OdDbViewport::Data& view, OdDbDxfIn& in);

} // namespace oddxf
