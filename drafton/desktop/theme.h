// Light and dark.
#pragma once

#include "frame/string.h"

#include <QColor>
#include <QIcon>
#include <QPalette>

namespace drafton {

/// True where texts are lighter than what they stand on, as the system's palette has it.
bool isDark(const QPalette& palette);

/// Has the program drawn in a style by its name ("Fusion"). In dark colours it gives check boxes an
/// edge that is seen also where they are not ticked.
void setStyle(const OdString& name);
/// The name of the style in force.
OdString styleName();

/// The icon of a command, in the sizes that toolbars and menus have on screens of any density; null
/// if it has none.
QIcon themeIcon(const OdString& command, bool dark);

/// The colours of what is painted over a drawing.
struct CanvasColors {
  QColor ground;   ///< behind the model
  QColor desk;     ///< behind the sheets of layouts
  QColor cross;    ///< the crosshair
  QColor band;     ///< rubber bands
  QColor window;   ///< the box that chooses what is inside
  QColor crossing; ///< the box that chooses what it meets
  QColor marker;   ///< of object snaps
  QColor track;    ///< lines of ortho and polar
  QColor grip;     ///< of chosen entities
  QColor hotGrip;  ///< under the cursor, or being dragged
  QColor gridMinor, gridMajor;
  QColor axisX, axisY;
  QColor tip, tipGround; ///< the small texts at the cursor
};

const CanvasColors& canvasColors(bool dark);

} // namespace drafton
