// True colours and names of colour books as files tell them. Not for use outside of the library.
#pragma once

#include "drawing/color.h"

namespace oddxf {

/// Makes it the true colour of 0xRRGGBB; its names stay.
void setTrueColor(OdCmColor& color, std::int64_t value);
/// Its names as one text, "Book$Name".
OdString colorNames(const OdCmColor& color);
/// Takes the names from such a text; without a `$` it is the name alone.
void setColorNames(OdCmColor& color, const OdString& names);

} // namespace oddxf
