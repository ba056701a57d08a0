// The font of a text style. Not for use outside of the library.
#pragma once

#include "drawing/graphics/text_metrics.h"
#include "drawing/object_id.h"

/// The font that texts of a style are written in; that of the style Standard for a null id.
OdGiFont oddbFontOf(OdDbObjectId style);
