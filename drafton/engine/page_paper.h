// Paper of layouts.
#pragma once

#include "drawing/objects/layout.h"

#include <span>

namespace drafton {

/// A sheet by its name, upright, in millimetres.
struct PagePaper {
  const char16_t* name;
  const char16_t* series; ///< by which plotters call it
  double width, height;
};
/// The usual ones.
std::span<const PagePaper> pagePapers();

/// The paper of a size, however it lies; null for none of the usual ones.
const PagePaper* findPaper(const OdGePoint2d& size);

/// Puts a layout on paper of this size, as it lies; its scale and margins stay.
void setPaper(OdDbLayout& layout, const OdGePoint2d& size);

/// Gives the window that stands for a sheet, and its limits, the size of the paper. Nothing for the
/// model.
void fitSheetToPaper(OdDbLayout& layout);

} // namespace drafton
