// The paper of layouts.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/objects/layout.h"

#include <QRgb>

class QPainter;

namespace drafton {

struct View;

/// The sheet of a layout in the coordinates of its block: what cannot be printed on is around the
/// origin's quadrant. Empty for the model and for a layout without a paper.
OdGeExtents3d sheetOf(const OdDbLayout& layout);
/// The size of the sheet as it is plotted, in millimetres.
OdGePoint2d sheetSize(const OdDbLayout& layout);
/// Paints the sheet as a canvas shows it: paper with an edge and a shadow on `desk`, the printable
/// part within a dashed line.
void drawSheet(QPainter& painter, const OdDbLayout& layout, const View& view, QRgb desk,
               QRgb paper);

} // namespace drafton
