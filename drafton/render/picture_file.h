// Files with pictures of drawings.
#pragma once

#include "drawing/database.h"
#include "drawing/objects/layout.h"

#include <QColor>
#include <QRectF>
#include <QSize>

#include <optional>

class QPainter;

namespace drafton {

/// What to make a picture of, and how.
struct PictureRequest {
  /// The file as the platform names it; its extension (png, pdf, svg) says what it becomes.
  OdString file;
  /// Pixels; for pdf and svg a 96th of an inch each. Empty: what suits the drawing.
  QSize size;
  /// Invalid: white. May have an alpha part, which pdf files show as paper.
  QColor background;
  /// What to show, in the coordinates of the space; nothing: all of it, for a layout its paper.
  std::optional<QRectF> window;
  /// Shows all that a layout has, not its paper.
  bool extents = false;
  /// The name of a layout in any case, or "Model"; empty: the model space.
  OdString layout;
  /// The model too is shown on the paper for which its plot was set up, if it was.
  bool asPlotted = false;
  /// How it is plotted, in place of what the layout says itself; null for that.
  OdDbLayoutPtr plot;
};

/// True for the extensions that writePicture knows, in any case.
bool isPictureFile(const OdString& file);

/// Draws a space of a drawing into a file, which is written as a whole or not at all. Raises
/// OdFileError with the file and the reason, OdError(eInvalidInput) for a layout that is not there.
void writePicture(OdDbDatabase& database, const PictureRequest& request);

/// Draws what is asked for onto a page of `dots` that is open in a painter. Raises OdError
/// (eInvalidInput) for a layout that is not there.
void paintPage(QPainter& painter, OdDbDatabase& database, const PictureRequest& request,
               const QSizeF& dots, double dpi);

/// The names of the layouts, Model first, in the order of their tabs.
QStringList layoutNames(const OdDbDatabase& database);

} // namespace drafton
