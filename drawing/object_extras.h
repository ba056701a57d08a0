// What few objects have. Not for use outside of the library.
#pragma once

#include "drawing/color.h"
#include "drawing/dxf/residue.h"
#include "drawing/object_id.h"
#include "drawing/transparency.h"

#include <optional>

/// Kept beside an object, so that those who have nothing of it do not pay for it.
struct OdDbObjectExtras {
  std::optional<OdDbDxfResidue> residue;

  // Of entities.
  OdString colorName, bookName;
  int colorIndex = -1; ///< that a file tells beside a true colour, if it is not the nearest one
  double linetypeScale = 1;
  OdDbObjectId plotStyle;
  OdCmTransparency transparency;
};
