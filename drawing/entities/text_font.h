// The font of a text style.
#pragma once

#include "drawing/graphics/text_metrics.h"
#include "drawing/object_id.h"

/// The font that texts of a style are written in; without a style the usual one, txt.
OdGiFont oddbFontOf(OdDbObjectId style);
