// The paper of layouts.
#pragma once

#include "drafton/render/style.h"
#include "drawing/geometry/extents.h"
#include "drawing/objects/layout.h"

#include <QRgb>

#include <functional>

class QPainter;

namespace drafton {

struct View;

/// A sheet as its layout is plotted, in the coordinates of the layout's block.
struct Sheet {
  OdGeExtents3d paper; ///< with its margins; empty for the model and for a layout without a paper
  OdGeExtents3d shown; ///< the only part that is plotted; empty for all that is on the paper
  /// Millimetres on the paper of a drawing unit.
  double scale = 1;
};

/// Lays the paper under the drawing: its scale and place follow from what is plotted (the layout
/// from its origin, the extents, the limits, a window, a view), how that is moved or centred, and
/// whether it is fitted to the paper. `drawn` gives the box around all of the block; it is asked
/// only if that counts.
Sheet sheetOf(const OdDbLayout& layout, const std::function<OdGeExtents3d()>& drawn);
/// The same for what is plotted: the model too has a paper once its plot was set up.
Sheet plotOf(const OdDbLayout& layout, const std::function<OdGeExtents3d()>& drawn);
/// True for sheets, and for the model once its plot was set up: before, it has neither a device nor
/// an area that is plotted.
bool hasPaper(const OdDbLayout& layout);
/// What the layout's plot style table makes of colours: "monochrome" and "grayscale" are known.
Tones tonesOf(const OdDbLayout& layout);
/// The size of the sheet as it is plotted, in millimetres.
OdGePoint2d sheetSize(const OdDbLayout& layout);
/// Paints the sheet as a canvas shows it: paper with an edge and a shadow on `desk`, the printable
/// part within a dashed line.
void drawSheet(QPainter& painter, const OdDbLayout& layout, const Sheet& sheet, const View& view,
               QRgb desk, QRgb paper);

} // namespace drafton
