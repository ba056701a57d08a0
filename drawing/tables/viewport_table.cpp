#include "drawing/tables/viewport_table.h"

#include "drawing/checks.h"

namespace {

// Group codes.
constexpr int kLowerLeft = 10;
constexpr int kUpperRight = 11;
constexpr int kAspect = 41;

constexpr double kUsualAspect = 4.0 / 3;

struct Preset {
  int code;
  double value;
};

/// What a new viewport is: it fills the window, looks from above, and has neither snap nor grid
/// switched on.
constexpr Preset kPresets[] = {
    {10, 0},  {20, 0},  {11, 1}, {21, 1},  {12, 0},
    {22, 0},  {13, 0},  {23, 0}, {14, 10}, {24, 10},
    {15, 10}, {25, 10}, {16, 0}, {26, 0},  {36, 1},
    {17, 0},  {27, 0},  {37, 0}, {42, 50}, {43, 0},
    {44, 0},  {50, 0},  {51, 0}, {40, 1},  {kAspect, kUsualAspect},
};

} // namespace

const OdDbAbstractViewTableRecord::Codes& OdDbViewportTableRecord::codes() const {
  static constexpr Codes kCodes{12, 16, 17, 40, kAspect, 42, 51};
  return kCodes;
}

double OdDbViewportTableRecord::aspect() const {
  const double aspect = real(kAspect, kUsualAspect);
  return aspect > 0 ? aspect : kUsualAspect;
}

void OdDbViewportTableRecord::setAspect(double aspect) {
  odcheck::positive(aspect);
  setReal(kAspect, aspect);
}

OdGePoint2d OdDbViewportTableRecord::lowerLeftCorner() const { return pair(kLowerLeft); }
OdGePoint2d OdDbViewportTableRecord::upperRightCorner() const { return pair(kUpperRight, {1, 1}); }

void OdDbViewportTableRecord::setCorners(const OdGePoint2d& lowerLeft,
                                         const OdGePoint2d& upperRight) {
  setPair(kLowerLeft, lowerLeft);
  setPair(kUpperRight, upperRight);
}

void OdDbViewportTableRecord::enteredDatabase() {
  OdDbKeptTags presets;
  for (const Preset& row : kPresets) presets.setReal(row.code, row.value);
  preset(presets);
}
