// The values of properties as commands show them.
#pragma once

#include "drawing/color.h"
#include "drawing/enums.h"
#include "drawing/object_id.h"
#include "drawing/transparency.h"
#include "frame/string.h"

class OdDbEntity;

namespace drafton {

/// "ByLayer", "ByBlock", "1 (red)", "30", "255,128,0" or "Book$Color".
OdString shownColor(const OdCmColor& color);
/// "ByLayer", "ByBlock", "Default" or "0.25mm".
OdString shownLineWeight(OdDb::LineWeight weight);
/// "ByLayer", "ByBlock" or a percentage.
OdString shownTransparency(OdCmTransparency transparency);
/// "ByLayer", "ByBlock", "Normal" or the name of a plot style.
OdString shownPlotStyle(OdDb::PlotStyleNameType type, OdDbObjectId id);
/// The name of a record of a table; empty for a null id.
OdString recordName(OdDbObjectId id);
/// The line type of an entity; that by layer for one that was never given any, as in most files.
OdDbObjectId shownLinetype(const OdDbEntity& entity);

} // namespace drafton
