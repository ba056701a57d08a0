#include "drawing/tables/viewport_table.h"

#include "drawing/checks.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"

namespace {

// Group codes.
constexpr int kCenterX = 12;
constexpr int kCenterY = 22;
constexpr int kHeight = 40;
constexpr int kAspect = 41;

constexpr double kUsualAspect = 4.0 / 3;

struct Preset {
  int code;
  double value;
};

/// What a new viewport is: it fills the window, looks from above, and has neither snap nor grid
/// switched on.
constexpr Preset kPresets[] = {
    {10, 0},       {20, 0},  {11, 1}, {21, 1},      {kCenterX, 0},
    {kCenterY, 0}, {13, 0},  {23, 0}, {14, 10},     {24, 10},
    {15, 10},      {25, 10}, {16, 0}, {26, 0},      {36, 1},
    {17, 0},       {27, 0},  {37, 0}, {42, 50},     {43, 0},
    {44, 0},       {50, 0},  {51, 0}, {kHeight, 1}, {kAspect, kUsualAspect},
};

double above0(double value, double otherwise) { return value > 0 ? value : otherwise; }

} // namespace

OdDbKeptTags OdDbViewportTableRecord::kept() const {
  const QByteArray* const lines = residue() ? residue()->of(dxfSubclass()) : nullptr;
  return OdDbKeptTags(lines ? *lines : QByteArray());
}

void OdDbViewportTableRecord::keep(const OdDbKeptTags& tags) {
  editResidue().edit(dxfSubclass()) = tags.lines();
}

OdGePoint2d OdDbViewportTableRecord::centerPoint() const {
  const OdDbKeptTags tags = kept();
  return {tags.real(kCenterX, 0), tags.real(kCenterY, 0)};
}

void OdDbViewportTableRecord::setCenterPoint(const OdGePoint2d& center) {
  odcheck::finite(center);
  OdDbKeptTags tags = kept();
  tags.setReal(kCenterX, center.x);
  tags.setReal(kCenterY, center.y);
  keep(tags);
}

double OdDbViewportTableRecord::height() const { return above0(kept().real(kHeight, 1), 1); }

void OdDbViewportTableRecord::setHeight(double height) {
  odcheck::positive(height);
  OdDbKeptTags tags = kept();
  tags.setReal(kHeight, height);
  keep(tags);
}

double OdDbViewportTableRecord::aspect() const {
  return above0(kept().real(kAspect, kUsualAspect), kUsualAspect);
}

void OdDbViewportTableRecord::setAspect(double aspect) {
  odcheck::positive(aspect);
  OdDbKeptTags tags = kept();
  tags.setReal(kAspect, aspect);
  keep(tags);
}

void OdDbViewportTableRecord::enteredDatabase() {
  OdDbKeptTags tags;
  for (const Preset& preset : kPresets) tags.setReal(preset.code, preset.value);
  for (const OdDbKeptTags::Tag& tag : kept().tags) tags.set(tag.code, tag.value);
  keep(tags);
}
