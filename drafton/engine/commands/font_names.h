// Fonts of text styles as users name them.
#pragma once

#include "drawing/tables/text_style_table.h"

namespace drafton {

/// "Arial Bold Italic", "arial.ttf", "txt.shx" or "txt.shx,bigfont.shx".
OdString shownFont(const OdDbTextStyleTableRecord& style);

/// Gives a style a font: a typeface ("Arial", with Bold or Italic behind it), a font file, or a
/// shape font with its big font behind a comma. Gives why that cannot be; empty if it is done.
OdString setFont(OdDbTextStyleTableRecord& style, const OdString& name);

/// True if the letters of the style are shapes, which can stand below each other.
bool hasShapeFont(const OdDbTextStyleTableRecord& style);

} // namespace drafton
