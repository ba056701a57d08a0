// How clear the entities of a layer are.
#pragma once

#include "drawing/tables/layer_table.h"
#include "drawing/transparency.h"

/// The transparency of a layer, which files keep in extended data; solid if there is none.
OdCmTransparency oddbLayerTransparency(const OdDbLayerTableRecord& layer);
